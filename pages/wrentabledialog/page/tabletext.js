// The table as text, its columns as they are shown: for the clipboard, and as a file for spreadsheets. Rows that are
// not drawn are in it too; one whose camera has gone is not.
const tableText = {
    kinds({ grid, tab }) {
        return grid.columns.filter(column => !column.hidden).map(({ field }) => columnKind(tab, field));
    },

    // The newest records of all rows, or of those that are selected.
    records({ grid, newest }, selected) {
        const { indexes } = grid.last.selection;
        const rows = selected && indexes.length > 0 ? indexes.map(index => grid.records[index]) : grid.records;
        return rows.filter(({ key }) => newest.has(key)).map(({ key }) => newest.get(key));
    },

    // The selected rows, all where none is, a line each.
    copy(view) {
        const kinds = this.kinds(view);
        const lines = this.records(view, true).map(record => kinds.map(kind => {
            const text = oneLine(withoutControls(textOfCell(kind, record)));
            return kind.plain ? text : plainText(text); // a number may begin with its sign
        }).join('\t'));
        wrentabledialog.copyTable(lines.join('\n'));
    },

    save(view) {
        const kinds = this.kinds(view);
        const heads = kinds.map(kind => headOf(kind) + (kind.unit ? ` (${kind.unit})` : ''));
        const lines = [heads].concat(this.records(view, false).map(record =>
            kinds.map(kind => kind.plain && textOfCell(kind, record) ? kind.plain(record) : textOfCell(kind, record))));
        wrentabledialog.saveTable(lines.map(cells => cells.map(quoted).join(',') + '\r\n').join(''));
    },

    openMenu(view, x, y) {
        contextMenu.open('wren_table_menu', [
            { id: 'copy', text: translate('Copy rows'), work: () => this.copy(view) },
            { id: 'save', text: translate('Save the list as CSV...'), work: () => this.save(view),
                why: view.status.why }
        ], x, y, view.grid.box);
    }
};

// The name of a column where nothing but text tells of it.
function headOf(kind) {
    return kind.heading ? kind.heading() : kind.caption();
}

// A spreadsheet takes what begins so for a formula, unless it is a number.
function plainText(text) {
    return /^\s*[=+\-@\uff1d\uff0b\uff0d\uff20]/.test(text) && !/^-?\d+$/.test(text) ? "'" + text : text;
}

function quoted(text) {
    return `"${plainText(withoutControls(String(text))).replace(/"/g, '""')}"`;
}

// Some programs take the first of them for the end; others turn the order of letters around.
function withoutControls(text) {
    const isControl = letter => letter < ' ' && !'\t\n\r'.includes(letter) ||
        /[\u007f\u202a-\u202e\u2066-\u2069]/.test(letter);
    return Array.from(text).filter(letter => !isControl(letter)).join('');
}
