const LIST_ROW = 24;
const gridLists = {}; // short name -> GridList

// A list of entries in a grid. A row holds the parts of its entry as they were stored, be there too many or too few.
class GridList {
    // `columns`: { field, caption }, the caption only with `hasHeader`; `hasFiller`: empty rows fill the grid up.
    constructor({ name, columns, hasHeader, hasFiller }) {
        this.name = name;
        this.cursor = new ListCursor();
        this.hearers = [];
        const gridName = `md_${name}_list`;
        this.box = document.getElementById(gridName);
        this.fields = columns.map(column => column.field);
        this.grid = $().w2grid({
            name: gridName,
            columns: [{ field: 'recid', size: '0px', hidden: true }].concat(columns.map(this.columnOf)),
            keyboard: false,
            multiSelect: false,
            recordHeight: LIST_ROW,
            show: { emptyRecords: hasFiller, columnHeaders: hasHeader },
            // w2ui counts the arguments in the handler's text: the first brackets must hold the event alone.
            onSelect: (event) => this.onSelection(event),
            onUnselect: (event) => this.onSelection(event),
            onDblClick: (event) => event.preventDefault()
        });
        this.grid.render(this.box);
        this.box.addEventListener('keydown', event => guarded(() => this.onKey(event)));
        this.box.addEventListener('mousedown', () => this.box.focus());
        gridLists[name] = this;
    }

    columnOf({ field, caption }, index, columns) {
        return {
            field,
            caption: caption ? escapeMarkup(caption) : '',
            size: `${100 / columns.length}%`,
            render: row => escapeMarkup(row[field])
        };
    }

    // `hear` gets the rows that have gone, and whether the user has cleared the list.
    onEdit(hear) {
        this.hearers.push(hear);
    }

    get rows() {
        return this.grid.records;
    }

    rowOf(parts) {
        const row = { recid: wrendefaultsettingsdialog_obj.sequence++, parts };
        this.fields.forEach((field, index) => { row[field] = parts[index] === undefined ? '' : parts[index]; });
        return row;
    }

    // The row that is selected; undefined when none is.
    selected() {
        return this.rows[this.grid.getSelection(true)[0]];
    }

    // The same row stays selected, as long as it is there.
    setRows(rows) {
        const selected = rows.indexOf(this.selected());
        this.grid.records = rows;
        this.grid.total = rows.length;
        this.grid.last.selection = { indexes: selected < 0 ? [] : [selected], columns: {} };
        this.cursor.place = selected < 0 ? Math.min(this.cursor.place, rows.length - 0.5) : selected;
        this.draw();
        wrendefaultsettingsdialog_obj.gridListChange(this.name);
    }

    // To be called too when the grid has come to the front, for in the dark it can't lay itself out.
    draw() {
        const top = this.grid.last.scrollTop || 0;
        this.grid.refresh();
        this.scrollTo(top);
    }

    scrollTo(top) {
        const records = this.recordsBox();
        if (records) {
            records.scrollTop = top;
            this.grid.last.scrollTop = records.scrollTop;
            this.grid.scroll();
        }
    }

    recordsBox() {
        return document.getElementById(`grid_${this.grid.name}_records`);
    }

    reveal(index) {
        const { scrollTop, clientHeight } = this.recordsBox();
        const top = index * LIST_ROW;
        if (top < scrollTop || top + LIST_ROW > scrollTop + clientHeight) {
            this.scrollTo(top < scrollTop ? top : top + LIST_ROW - clientHeight);
        }
    }

    edit(rows, isCleared = false) {
        const kept = new Set(rows);
        const gone = this.rows.filter(row => !kept.has(row));
        this.setRows(rows);
        this.hearers.forEach(hear => hear(gone, isCleared));
    }

    clear() {
        this.edit([], true);
    }

    // `compare` puts the rows in order.
    add(parts, compare) {
        const row = this.rowOf(parts);
        const rows = this.rows.concat(row);
        this.edit(rows.sort(compare));
        this.reveal(rows.indexOf(row));
    }

    removeSelected() {
        const row = this.selected();
        if (row) {
            const place = this.rows.indexOf(row);
            this.edit(this.rows.filter(other => other !== row));
            this.cursor.leave(place);
        }
    }

    onSelection(event) {
        event.onComplete = () => {
            const row = this.selected();
            this.cursor.place = row ? this.rows.indexOf(row) : this.cursor.place;
            wrendefaultsettingsdialog_obj.gridListChange(this.name);
        };
    }

    onKey(event) {
        const page = Math.max(1, Math.floor(this.recordsBox().clientHeight / LIST_ROW));
        const place = this.cursor.target(event.keyCode, this.rows.length, page);
        if (isDisabled(this.box)) {
            return;
        }
        if (place !== undefined) {
            this.select(place);
        } else if (event.keyCode === KEY.DELETE) {
            this.removeSelected();
        } else if (event.keyCode === KEY.SPACE) {
            this.toggle();
        } else {
            return;
        }
        event.preventDefault();
    }

    select(index) {
        this.grid.select(this.rows[index].recid);
        this.reveal(index);
    }

    toggle() {
        if (this.selected()) {
            this.grid.selectNone();
        } else if (this.cursor.row < this.rows.length) {
            this.select(this.cursor.row);
        }
    }
}

Object.assign(wrendefaultsettingsdialog_obj, {
    // Adds a row for each entry of the text.
    gridListParse(grid, columns, text, delimiter) {
        const list = gridLists[grid];
        const entries = text === '' ? [] : text.split(delimiter).map(entry => entry.split('|'));
        list.setRows(list.rows.concat(entries.map(parts => list.rowOf(parts))));
    },

    gridListConcat(grid, columns, delimiter) {
        return gridLists[grid].rows.map(row => row.parts.join('|')).join(delimiter);
    },

    // Which buttons of a list there is something for.
    gridListChange(grid) {
        const list = gridLists[grid];
        zeb4func.disable(`#md_clear_${grid}`, list.rows.length === 0);
        zeb4func.disable(`#md_delete_${grid}, #md_default_${grid}`, !list.selected());
    }
});
