// A drawn row: an element of the table that shows one record, and another one when it is needed elsewhere.
class DrawnRow {
    // `frame`: see `rowFrame`.
    constructor(grid, tab, frame) {
        this.grid = grid;
        this.key = null;
        this.line = null;
        this.element = frame.cloneNode(true);
        this.cells = grid.columns.filter(column => !column.hidden).map(({ field }, place) =>
            new Cell(this.element.children[place].firstChild, columnKind(tab, field), tab.name, field));
    }

    // Draws the record as a full refresh does. `line` counts from 1.
    rebuild(record, line, status) {
        this.setListed(true);
        this.bind(record, line);
        this.redraw(record, sourceOf(record), status);
    }

    redraw(record, source, status) {
        this.source = source;
        this.style(status.style);
        this.cells.forEach(cell => cell.rebuild(record, status));
    }

    // A row whose camera has ceased to tell something, or tells it again, is built anew, and so is the batch row when
    // it shows another camera. It stays bound to the grid's record: only a full refresh brings new ones.
    tick(record, status) {
        const source = sourceOf(record);
        if (source !== this.source || this.cells.some(cell => cell.reads(record) !== cell.isRead)) {
            this.redraw(record, source, status);
            return;
        }
        this.style(status.style);
        this.cells.forEach(cell => cell.tick(record, status));
    }

    bind(record, line) {
        if (this.key === record.key && this.recid === record.recid && this.line === line) {
            return;
        }
        if (this.key !== record.key) {
            this.blur();
        }
        this.key = record.key;
        this.recid = record.recid;
        this.line = line;
        this.element.id = `grid_${this.grid.name}_rec_${record.recid}`;
        this.element.setAttribute('recid', record.recid);
        this.element.setAttribute('line', line);
        this.element.className = line % 2 === 0 ? 'w2ui-even' : 'w2ui-odd';
    }

    // The keyboard stays with a camera, not with a place on the screen.
    blur() {
        const active = document.activeElement;
        if (active && active !== document.body && this.element.contains(active)) {
            active.blur();
        }
    }

    // w2ui writes the row's style by itself when it takes the row out of the selection, from `custom_style`.
    style(text) {
        const whole = `height: ${this.grid.recordHeight}px; ${text}`;
        if (this.element.getAttribute('custom_style') !== text) {
            this.element.setAttribute('custom_style', text);
        }
        if (this.element.getAttribute('style') !== whole) {
            this.element.setAttribute('style', whole);
        }
    }

    // A camera that is not in the list any more stands until the next full refresh, greyed, for what it shows is past.
    setListed(on) {
        if (this.element.hasAttribute('unlisted') === on) {
            setMark(this.element, 'unlisted', on ? null : '');
            setMark(this.element, 'why', on ? null : translated(textKey('The camera is not in the list any more.')));
        }
    }

    select(on) {
        if (this.element.classList.contains('w2ui-selected') !== on) {
            this.element.classList.toggle('w2ui-selected', on);
        }
    }

    point(on) {
        if (this.element.classList.contains('wren-pointed') !== on) {
            this.element.classList.toggle('wren-pointed', on);
        }
    }

    cellOf(element) {
        const td = element.closest('td');
        return this.cells.find(cell => cell.box.parentNode === td);
    }
}

// A row with the cells of all columns that are shown, empty, to be copied.
function rowFrame(grid, tab) {
    const row = document.createElement('tr');
    row.setAttribute('role', 'row');
    const cells = grid.columns.map(({ field, hidden }, index) => hidden ? '' :
        `<td class="w2ui-grid-data" role="gridcell" col="${index}" ` +
        `style="text-align: ${columnKind(tab, field).align}"><div></div></td>`);
    row.innerHTML = cells.join('') + '<td class="w2ui-grid-data-last"></td>';
    return row;
}

// What a drawn row is built from, beside what its cells need.
function sourceOf(record) {
    return isBatch(record)
        ? attention.batchKey()
        : `${isSteered(record)} ${isOff(record)} ${isOff(record) && record.alert !== ''}`;
}
