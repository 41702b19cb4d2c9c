const JUST_MOVED_MS = 1000;

// The cell that the keyboard is at, by its camera and its column. The grid's box has the focus and never a cell, for
// rows come and go under it. The batch row is the last one.
class GridCursor {
    constructor(view) {
        this.view = view;
        this.key = null; // of the row; null before there was one
        this.field = null;
        this.line = 0; // where it stood last
        this.column = 0;
        this.anchor = null; // key of the row from which Shift selects
        this.shown = null; // the element that is marked
        this.told = null; // the one that tells why it takes nothing
        this.movedAt = 0; // when it was last moved by no key, in ms
    }

    get isFocused() {
        return document.activeElement === this.view.grid.box;
    }

    // What was pressed by then was meant for what was there before.
    hasJustMoved() {
        return Date.now() - this.movedAt < JUST_MOVED_MS;
    }

    focus() {
        if (!this.isFocused && this.view.grid.box) {
            this.view.grid.box.focus();
        }
    }

    lineCount() {
        const { records, summary } = this.view.grid;
        return records.length + (summary.length > 0 ? 1 : 0);
    }

    // Those that are shown, in their order.
    columns() {
        return this.view.grid.columns.filter(column => !column.hidden);
    }

    // Where the keyboard is by now. A camera that has gone leaves it to the next row, a column to the next one.
    settle() {
        const { records } = this.view.grid;
        const count = this.lineCount();
        const columns = this.columns();
        if (count === 0 || columns.length === 0) {
            this.key = null;
            return;
        }
        const line = isBatch(this) ? records.length : records.findIndex(record => record.key === this.key);
        this.line = line >= 0 && line < count ? line : Math.min(this.line, count - 1);
        this.movedAt = line >= 0 || this.key === null ? this.movedAt : Date.now();
        this.key = this.line < records.length ? records[this.line].key : wrentabledialog_obj.batchDocKey;
        const column = columns.findIndex(({ field }) => field === this.field);
        this.column = column >= 0 ? column : Math.min(this.column, columns.length - 1);
        this.field = columns[this.column].field;
    }

    // The drawn row and cell; null while there is none.
    place() {
        const { batch, rows } = this.view;
        const row = isBatch(this) ? batch : rows.find(other => other.key === this.key);
        const cell = row && row.cells.find(({ field }) => field === this.field);
        return cell ? { view: this.view, row, cell } : null;
    }

    // Shows where it is. Nothing is written as long as it is the same element.
    mark() {
        if (this.key === null && !this.isFocused) {
            return;
        }
        this.settle();
        const place = this.place();
        const element = place ? place.cell.box.parentNode : null;
        if (element === this.shown) {
            return;
        }
        if (this.shown) {
            this.shown.removeAttribute('current');
        }
        if (element) {
            element.setAttribute('current', '');
        }
        this.shown = element;
    }

    // The cell tells the reason that holds for all rows, until the next key.
    tell() {
        this.told = this.shown;
        setMark(this.told, 'told', '');
        return this.told;
    }

    forgetTold() {
        if (this.told) {
            setMark(this.told, 'told', null);
            this.told = null;
        }
    }

    put(row, cell) {
        this.key = row.key;
        this.field = cell.field;
        this.anchor = null;
        this.mark();
    }

    // To a line and column, or the nearest there are, and into view.
    moveTo(line, column) {
        const { records } = this.view.grid;
        const columns = this.columns();
        this.line = Math.max(0, Math.min(line, this.lineCount() - 1));
        this.column = Math.max(0, Math.min(column, columns.length - 1));
        this.key = this.line < records.length ? records[this.line].key : wrentabledialog_obj.batchDocKey;
        this.field = columns[this.column].field;
        this.reveal();
    }

    reveal() {
        const { view } = this;
        const { box, grid, height } = view;
        if (!isBatch(this)) {
            const top = this.line * grid.recordHeight;
            box.scrollTop = Math.max(Math.min(box.scrollTop, top), top + grid.recordHeight - height);
        }
        alignFrame(view);
        view.draw(false);
        if (this.shown) {
            const { offsetLeft, offsetWidth } = this.shown;
            box.scrollLeft = Math.max(Math.min(box.scrollLeft, offsetLeft),
                offsetLeft + offsetWidth - box.clientWidth);
            alignFrame(view);
        }
    }

    // The lines that Shift selects: from where it went down to here. The batch row is no camera.
    selectTo() {
        const { grid } = this.view;
        const anchor = grid.records.findIndex(record => record.key === this.anchor);
        const from = this.anchor === wrentabledialog_obj.batchDocKey ? grid.records.length - 1 : anchor;
        const [first, last] = [from < 0 ? this.line : from, this.line].sort((a, b) => a - b);
        grid.last.selection.indexes = grid.records.map((record, index) => index)
            .filter(index => index >= first && index <= last);
        this.view.showSelection();
        wrentabledialog_obj.handGesture(this.view);
    }
}
