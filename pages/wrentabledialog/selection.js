// Which cameras are selected is the back end's to know; the grid shows it, and hands on what the user selects.
Object.assign(wrentabledialog_obj, {
    // Written silently: the grid's own `select` would call the bridge, once a row.
    refreshSelectedRecords(records, grid) {
        const view = viewOf(grid);
        const disabled = view.status.disabled;
        if (!disabled && (this.RecordSelection || this.RecordUnSelection)) {
            return;
        }
        const selected = new Set();
        if (!disabled) {
            records.filter(record => record.selected).forEach(record => selected.add(record.key));
        }
        grid.last.selection.indexes = indexesOf(grid.records, selected);
        view.showSelection();
    },

    onSelect(tab, event) {
        if (this.preventSelect) {
            event.preventDefault();
        } else if (event.recid !== undefined) {
            this.handSelection([keyOf(tab, event.recid)], true);
            event.onComplete = () => this.selectionChanged();
        }
    },

    onUnselect(tab, event) {
        if (this.preventSelect) {
            event.preventDefault();
        } else if (event.recid !== undefined) {
            this.handSelection([keyOf(tab, event.recid)], false);
            event.onComplete = () => this.selectionChanged();
        } else {
            event.onComplete = () => this.handSelection(this.droppedKeys(tab), false);
        }
    },

    // Hands a change by the user to the back end; meanwhile its answer does not undo the change in the grid.
    handSelection(keys, on) {
        if (keys.length === 0) {
            return;
        }
        const flag = on ? 'RecordSelection' : 'RecordUnSelection';
        this[flag] = true;
        try {
            if (!this.getListDisableStatus()) {
                wrentabledialog.select(keys, on);
            }
        } finally {
            this[flag] = false;
        }
    },

    // Rows that the back end has selected and the grid has not.
    droppedKeys(tab) {
        const view = viewAt(tab.number);
        const kept = new Set(view.grid.last.selection.indexes);
        return view.grid.records
            .filter((record, index) => !kept.has(index) && (view.newest.get(record.key) || record).selected)
            .map(record => record.key);
    },

    // One gesture of the user may select and unselect many rows; the rows are fetched once, at its end.
    gesture(action) {
        this.gestureOpen = true;
        this.gestureChanged = false;
        try {
            action();
        } finally {
            this.gestureOpen = false;
        }
        if (this.gestureChanged) {
            this.selectionChanged();
        }
    },

    selectionChanged() {
        if (this.gestureOpen) {
            this.gestureChanged = true;
        } else {
            this.refreshRecords(this.activeTab(), false);
        }
    },

    // Selects each connected row.
    selectAll() {
        if (this.preventSelect) {
            return;
        }
        const view = viewAt(this.activeTab());
        const connected = view.grid.records.filter(record => record.connected);
        if (connected.length === 0) {
            return;
        }
        this.handSelection(connected.map(record => record.key), true);
        this.selectionChanged();
    },

    // A click on a control, or on the one selected row itself, leaves the selection as it is.
    clickRecordFunc(tab, event) {
        this.preventSelect = false;
        const grid = viewAt(tab.number).grid;
        const column = grid.columns[event.column];
        const alone = grid.getSelection().length === 1 && String(grid.getSelection()[0]) === String(event.recid);
        if (column && tab.still.includes(column.field) || alone && !event.originalEvent.ctrlKey) {
            event.preventDefault();
            return;
        }
        event.onComplete = () => {
            this.preventSelect = false;
            this.recordiconClick = false;
        };
    }
});

function keyOf(tab, recid) {
    return viewAt(tab.number).grid.get(recid).key;
}
