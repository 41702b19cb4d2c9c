// What lists of records have in common in the pages of the host's own dialogs.

const dialogList = {
    // A row is written anew only when it says something else: a press may be under way.
    draw(body, records, rowOf) {
        records.forEach((record, index) => {
            const text = JSON.stringify(record);
            const old = body.children[index];
            if (old && old.getAttribute('data-text') === text) {
                return;
            }
            const row = rowOf(record);
            row.setAttribute('data-text', text);
            if (old) {
                body.replaceChild(row, old);
            } else {
                body.appendChild(row);
            }
        });
        while (body.children.length > records.length) {
            body.removeChild(body.lastChild);
        }
    },

    // Adds a cell with that text, which is shown whole when the mouse rests on it.
    addCell(row, text, className) {
        const cell = document.createElement('td');
        cell.textContent = text;
        cell.title = text;
        cell.className = className || '';
        row.appendChild(cell);
        return cell;
    },

    // The row, of so many, that a key leads to from row `at`; -1 for a key that leads nowhere.
    step(event, count, at) {
        const steps = { 38: -1, 40: 1, 36: -count, 35: count, 33: -10, 34: 10 };
        if (steps[event.keyCode] === undefined || count === 0) {
            return -1;
        }
        event.preventDefault();
        return Math.max(0, Math.min(at + steps[event.keyCode], count - 1));
    }
};

// A list of records of which one is chosen, by a press or by the arrows. `own` says what differs: `nameOf(record)`,
// null of one that can't be chosen, `rowOf(record)`, and what is to be done when the choice has changed
// (`chosenAnew()`).
function choiceList(id, own) {
    return Object.assign({
        records: [],
        chosenName: null,

        beginChoices(page) {
            const list = byId(id);
            list.addEventListener('mousedown', event =>
                page.guarded(() => this.pick(event.target.closest('tbody tr'))));
            list.addEventListener('keydown', event => page.guarded(() => this.key(event)));
        },

        // Takes the records as they are now; when the chosen one has gone, another is.
        take(records) {
            this.records = records;
            if (!this.chosen()) {
                const next = this.preferred();
                this.choose(next ? this.nameOf(next) : null);
            }
            dialogList.draw(byId(id).querySelector('tbody'), records, record => this.namedRow(record));
            this.mark();
        },

        namedRow(record) {
            const row = this.rowOf(record);
            const name = this.nameOf(record);
            if (name !== null) {
                row.setAttribute('data-name', name);
            }
            return row;
        },

        // The rows that can be chosen.
        rows() {
            return Array.from(byId(id).querySelectorAll('tbody tr[data-name]'));
        },

        choices() {
            return this.records.filter(record => this.nameOf(record) !== null);
        },

        chosen() {
            return this.choices().filter(record => this.nameOf(record) === this.chosenName)[0];
        },

        preferred() {
            return this.choices()[0];
        },

        mark() {
            this.rows().forEach(row =>
                row.classList.toggle('chosen', row.getAttribute('data-name') === this.chosenName));
        },

        pick(row) {
            const name = row && row.getAttribute('data-name');
            if (name && name !== this.chosenName) {
                this.choose(name);
                this.mark();
                this.chosenAnew();
            }
        },

        choose(name) {
            this.chosenName = name;
        },

        key(event) {
            this.step(event);
        },

        // The row that has been chosen, and whether the key was one that chooses another.
        step(event) {
            const rows = this.rows();
            const at = rows.findIndex(row => row.getAttribute('data-name') === this.chosenName);
            const next = dialogList.step(event, rows.length, at);
            if (next >= 0) {
                this.pick(rows[next]);
                rows[next].scrollIntoViewIfNeeded(false);
            }
            return { row: rows[at], isTaken: next >= 0 };
        }
    }, own);
}
