// A list of recordings with a tick each, and a look at the chosen one. `own` says what differs: `nameOf(record)`, null
// of one that can't be chosen, `rowOf(record)`, `pictureOf(record)` in Base64, `factsOf(record)`, `isTickedAtFirst`,
// and what is to be done when the choice (`chosenAnew()`) or the ticks (`tickedAnew()`) have changed.
function recordingList(id, own) {
    return Object.assign({
        records: [],
        otherTicks: new Set(), // names of those that are not as at first
        chosenName: null,
        previewTimer: 0,
        page: null,

        beginList(page) {
            this.page = page;
            const list = byId(id);
            list.addEventListener('change', event => page.guarded(() => this.tick(event.target)));
            list.addEventListener('mousedown', event =>
                page.guarded(() => this.pick(event.target.closest('tbody tr'))));
            list.addEventListener('keydown', event => page.guarded(() => this.key(event)));
        },

        // Takes the records as they are now; when the chosen one has gone, another is.
        take(records) {
            this.records = records;
            if (!this.chosen()) {
                const first = this.choices()[0];
                this.choose(first ? this.nameOf(first) : null);
            }
            dialogList.draw(byId(id).querySelector('tbody'), records, record => this.namedRow(record));
            this.mark();
        },

        namedRow(record) {
            const row = this.rowOf(record);
            const name = this.nameOf(record);
            if (name !== null) {
                row.setAttribute('data-name', name);
                const tick = document.createElement('input');
                tick.type = 'checkbox';
                tick.tabIndex = -1;
                row.insertBefore(document.createElement('td'), row.firstChild).appendChild(tick);
                row.firstChild.className = 'tick';
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

        isTicked(record) {
            return this.otherTicks.has(this.nameOf(record)) !== this.isTickedAtFirst;
        },

        ticked() {
            return this.choices().filter(record => this.isTicked(record));
        },

        // Ticks, and the row that is looked at.
        mark() {
            const choices = this.choices();
            const chosen = this.chosen();
            this.rows().forEach((row, index) => {
                row.classList.toggle('chosen', choices[index] === chosen);
                row.querySelector('input').checked = this.isTicked(choices[index]);
            });
            byId('all').checked = choices.length > 0 && this.ticked().length === choices.length;
        },

        tick(box) {
            const row = box.closest('tbody tr');
            const names = row ? [row.getAttribute('data-name')] : this.choices().map(record => this.nameOf(record));
            names.forEach(name =>
                box.checked === this.isTickedAtFirst ? this.otherTicks.delete(name) : this.otherTicks.add(name));
            this.mark();
            this.tickedAnew();
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
            this.showPreviewSoon();
        },

        // Arrows choose, Space ticks.
        key(event) {
            const rows = this.rows();
            const at = rows.findIndex(row => row.getAttribute('data-name') === this.chosenName);
            const next = dialogList.step(event, rows.length, at);
            if (next >= 0) {
                this.pick(rows[next]);
                rows[next].scrollIntoViewIfNeeded(false);
            } else if (event.keyCode === 32 && at >= 0 && event.target.tagName !== 'INPUT') {
                event.preventDefault();
                const box = rows[at].querySelector('input');
                box.checked = !box.checked;
                this.tick(box);
            }
        },

        // A recording is read only once it stays chosen.
        showPreviewSoon() {
            clearTimeout(this.previewTimer);
            this.previewTimer = setTimeout(() => this.page.logged(() => this.showPreview()), 150);
        },

        showPreview() {
            const record = this.chosen();
            const picture = record ? this.pictureOf(record) : '';
            byId('preview').src = picture === '' ? '' : `data:image/png;base64,${picture}`;
            byId('preview').hidden = picture === '';
            const list = byId('facts');
            list.textContent = '';
            (record ? this.factsOf(record) : []).filter(text => text).forEach(text => {
                const line = document.createElement('dd');
                line.textContent = text;
                list.appendChild(line);
            });
        }
    }, own);
}
