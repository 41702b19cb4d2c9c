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
