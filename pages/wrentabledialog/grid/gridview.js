// What a grid has on the screen. w2ui gives the frame, the header and the selection; the rows are drawn here, and
// only those that can be seen, so that a table of a thousand cameras costs what one of thirty does.

class GridView {
    constructor(grid, tab, onScroll) {
        this.grid = grid;
        this.tab = tab;
        this.onScroll = onScroll;
        this.rows = []; // drawn, in the order of their lines
        this.spare = []; // drawn once, to be used again
        this.batch = null; // the drawn batch row
        this.newest = new Map(); // key -> record of the last refresh of any kind
        this.newestRecords = []; // in the order of the list
        this.newestBatch = null;
        this.markedRecords = null; // those by which the batch row, `markedBatch`, was marked
        this.markedBatch = null;
        this.status = null; // the list's status at that refresh
        this.size = ''; // of the grid's box, as last laid out
        this.spot = ''; // where it was last scrolled to
        this.height = 0; // of the visible part, in pixels
        this.owesHandles = false; // at the edges of the heads
        this.held = 0; // while above 0, w2ui's refresh waits
        this.owed = false;
        this.pointed = null; // key of the row that was led to
        this.focusedKey = null; // of the row that had the keyboard, while its frame is exchanged
        this.cursor = new GridCursor(this);
        this.override();
    }

    override() {
        const grid = this.grid;
        grid.scroll = () => this.scrolled();
        grid.refresh = () => this.refresh();
        grid.resize = () => this.resized();
        grid.reload = () => undefined; // it would search and sort, at the first rendering too
    }

    // Makes a new frame, to which the drawn rows move over. The first records bring the first one.
    refresh() {
        if (this.held > 0) {
            this.owed = true;
            return;
        }
        if (!this.status || !this.grid.box) {
            return;
        }
        this.onScroll(); // what is held is let go before
        const { scrollTop, scrollLeft } = this.grid.last;
        const focus = document.activeElement || document.body;
        const { id } = focus;
        const key = focus.getAttribute('dockey');
        const caret = caretOf(focus);
        this.focusedKey = this.keyWithFocus();
        numberBox.drop();
        drawFrame(this);
        this.grid.last.scrollTop = scrollTop;
        this.grid.last.scrollLeft = scrollLeft;
        this.mount();
        this.focusedKey = null;
        // Other columns bring other elements.
        this.focus(this.grid.box.contains(focus) ? focus : document.getElementById(id), key, caret);
    }

    // The keyboard follows its camera's row into the new frame.
    focus(element, key, caret) {
        if (this.box && key && element && element !== document.activeElement && this.grid.box.contains(element) &&
            element.getAttribute('dockey') === key) {
            element.focus();
            placeCaret(element, caret);
            this.box.scrollTop = this.grid.last.scrollTop;
        }
    }

    // The key of the camera whose row has the keyboard; null when none has.
    keyWithFocus() {
        if (this.cursor.isFocused) {
            return this.cursor.key;
        }
        const row = this.rows.find(other => other.element.contains(document.activeElement));
        return row ? row.key : null;
    }

    // Runs changes of columns, each of which w2ui would answer with a refresh, and refreshes once.
    together(changes) {
        this.held++;
        try {
            changes();
        } finally {
            this.held--;
        }
        if (this.held === 0 && this.owed) {
            this.owed = false;
            this.grid.refresh();
        }
    }

    mount() {
        this.box = document.getElementById(`grid_${this.grid.name}_records`);
        if (!this.box) {
            return;
        }
        const columns = this.grid.columns.map(column => `${column.field}${column.hidden}`).join();
        if (this.columns !== columns) {
            this.columns = columns;
            this.frame = rowFrame(this.grid, this.tab);
            this.rows = [];
            this.spare = [];
            this.batch = null;
        }
        this.body = this.box.querySelector('tbody');
        this.top = this.body.querySelector('tr[line="top"]');
        this.gap = this.body.querySelector('tr[line="gap"]');
        this.bottom = this.body.querySelector('tr[line="bottom"]');
        this.measure();
        this.box.scrollTop = this.grid.last.scrollTop;
        this.box.scrollLeft = this.grid.last.scrollLeft;
        alignFrame(this);
        this.spot = `${this.grid.last.scrollTop} ${this.grid.last.scrollLeft}`;
        this.drawBatch();
        this.draw(true);
    }

    // Takes the records of a full refresh.
    setRecords(records, batch) {
        const grid = this.grid;
        const frame = grid.records.length !== records.length || grid.summary.length !== batch.length;
        const selected = new Set(grid.last.selection.indexes.map(index => (grid.records[index] || {}).key));
        grid.records = records;
        grid.summary = batch;
        grid.total = records.length;
        grid.last.selection.indexes = indexesOf(records, selected);
        if (frame || !this.box) {
            grid.refresh();
            return;
        }
        this.drawBatch();
        this.draw(true);
    }

    // Of all cameras of the list, and those of them that stand.
    setNewest(records, standing, batch) {
        this.newest = new Map();
        for (let index = 0; index < records.length; index++) {
            this.newest.set(records[index].key, records[index]);
        }
        this.newestRecords = standing;
        this.newestBatch = batch[0] || null;
    }

    // Brings the drawn rows up to the newest records.
    tick() {
        this.rows.forEach(row => this.tickRow(row));
        if (this.batch) {
            this.tickRow(this.batch);
            markDifferences(this);
        }
        this.cursor.mark();
        followTip();
    }

    tickRow(row) {
        const record = this.recordOf(row);
        row.setListed(record !== undefined);
        if (record) {
            row.tick(record, this.status);
        }
    }

    // w2ui calls this after its refresh too, when nothing has moved.
    scrolled() {
        const spot = `${this.grid.last.scrollTop} ${this.grid.last.scrollLeft}`;
        if (this.box && this.spot !== spot) {
            this.spot = spot;
            this.draw(false);
            this.onScroll();
        }
    }

    // To be called when sizes may have changed, once everything is written.
    resized() {
        if (this.box && this.grid.box.clientWidth > 0 && this.size !== this.boxSize()) {
            this.measure();
            this.draw(false);
        }
    }

    boxSize() {
        return `${this.grid.box.clientWidth} x ${this.grid.box.clientHeight}`;
    }

    // Gives the columns their widths. It costs least while there are no rows; without a place on the screen there is
    // nothing to measure.
    measure() {
        const isShown = this.grid.box.clientWidth > 0;
        if (isShown) {
            fitGrid(this.grid);
            this.owesHandles = true;
        }
        this.size = isShown ? this.boxSize() : '';
        this.height = this.box.clientHeight;
    }

    // The places to take the edge of a column by, not before the mouse comes to the heads.
    placeHandles() {
        if (this.owesHandles) {
            this.owesHandles = false;
            this.grid.initResize();
        }
    }

    // Puts a row on each line of the range. `full` draws all of them anew, else only those that come into view. A row
    // stays with its camera as long as that is in view, wherever it moves to.
    draw(full) {
        if (!this.status || !this.box) {
            return;
        }
        const lines = linesToDraw(this);
        const keys = new Set(lines.map(line => this.grid.records[line].key));
        const drawn = new Map();
        this.rows.forEach(row => {
            if (keys.has(row.key)) {
                drawn.set(row.key, row);
            } else {
                this.putAway(row);
            }
        });
        this.rows = lines.map(line => {
            const record = this.grid.records[line];
            const known = drawn.get(record.key);
            const row = known || this.spare.pop() || new DrawnRow(this.grid, this.tab, this.frame);
            row.index = line;
            if (full || !known) {
                this.rebuildRow(row, record);
            }
            return row;
        });
        placeRows(this);
        this.showSelection();
        this.cursor.mark();
    }

    putAway(row) {
        if (numberBox.isIn(row)) {
            numberBox.drop();
        }
        row.blur();
        row.element.parentNode.removeChild(row.element);
        this.spare.push(row);
    }

    // A row that comes into view shows what the last full refresh brought, and then what came since.
    rebuildRow(row, record) {
        row.rebuild(record, row.index + 1, this.status);
        if (this.newest.get(record.key) !== record) {
            this.tickRow(row);
        }
    }

    drawBatch() {
        const summary = document.getElementById(`grid_${this.grid.name}_summary`);
        if (this.grid.summary.length === 0 || !this.status) {
            return;
        }
        this.batch = this.batch || new DrawnRow(this.grid, this.tab, this.frame);
        this.batch.rebuild(this.grid.summary[0], 1, this.status);
        this.markedRecords = null;
        markDifferences(this);
        const place = summary.querySelector('.wren-batch-place');
        if (place) {
            place.parentNode.replaceChild(this.batch.element, place);
        }
        this.cursor.mark();
    }

    showSelection() {
        const selected = new Set(this.grid.last.selection.indexes);
        this.rows.forEach(row => {
            row.select(selected.has(row.index));
            row.point(row.key === this.pointed);
        });
    }

    // The newest record of a row; undefined when its camera is gone.
    recordOf(row) {
        return row === this.batch ? this.newestBatch : this.newest.get(row.key);
    }

    // Rows with drop-downs above a line.
    dropDownsBefore(index) {
        return this.grid.records.slice(0, index).filter(hasDropDowns).length;
    }

    rowOf(element) {
        const tr = element.closest('tr[recid]');
        return tr && (this.batch && this.batch.element === tr ? this.batch : this.rows.find(row => row.element === tr));
    }
}
