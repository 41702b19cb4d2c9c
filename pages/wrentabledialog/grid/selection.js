// Which cameras are selected is the back end's to know; the grid shows it, and hands on what the user selects.
Object.assign(wrentabledialog_obj, {
    // Written silently: the grid's own `select` would call the bridge, once a row.
    refreshSelectedRecords(records, grid) {
        const view = viewOf(grid);
        const disabled = view.status.disabled;
        if (!disabled && (this.RecordSelection || this.RecordUnSelection || this.bandOf)) {
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
        } else if (event.recid !== undefined && !this.bandOf) {
            this.handSelection([keyOf(tab, event.recid)], true);
            event.onComplete = () => this.selectionChanged();
        }
    },

    onUnselect(tab, event) {
        if (this.preventSelect) {
            event.preventDefault();
        } else if (this.bandOf) {
            return;
        } else if (event.recid !== undefined) {
            this.handSelection([keyOf(tab, event.recid)], false);
            event.onComplete = () => this.selectionChanged();
        } else {
            event.onComplete = () => this.handSelection(keysThatDiffer(viewAt(tab.number), false), false);
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

    // Hands what a gesture of the user has made of the grid's selection to the back end, as one call for the rows that
    // came and one for those that went, and fetches the rows once.
    handGesture(view) {
        const [came, went] = [keysThatDiffer(view, true), keysThatDiffer(view, false)];
        this.handSelection(went, false);
        this.handSelection(came, true);
        // While the list is disabled nothing is handed on, and the rows show what the cameras have.
        if (came.length + went.length > 0 || this.getListDisableStatus()) {
            this.selectionChanged();
        }
    },

    selectionChanged() {
        this.refreshRecords(this.activeTab(), false);
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

    // A click on a control leaves the selection as it is.
    clickRecordFunc(tab, event) {
        this.preventSelect = false;
        this.recordiconClick = false;
        event.preventDefault();
        const view = viewAt(tab.number);
        const column = view.grid.columns[event.column];
        if (!column || !columnKind(tab, column.field).still) {
            this.pickRow(view.grid, view.grid.get(event.recid, true), event.originalEvent);
            this.handGesture(view);
        }
    },

    // With Shift the rows from the first selected one to this one join the selection, with Ctrl this one joins or
    // leaves it; else it is this one alone.
    pickRow(grid, line, event) {
        const { selection } = grid.last;
        const picked = new Set(selection.indexes);
        if (event.shiftKey && picked.size > 0) {
            const first = selection.indexes[0];
            for (let index = Math.min(first, line); index <= Math.max(first, line); index++) {
                picked.add(index);
            }
        } else if (!event.shiftKey && !event.ctrlKey && !event.metaKey) {
            picked.clear();
            picked.add(line);
        } else if (!picked.delete(line)) {
            picked.add(line);
        }
        selection.indexes = Array.from(picked).sort((a, b) => a - b);
        viewOf(grid).showSelection();
    }
});

function keyOf(tab, recid) {
    return viewAt(tab.number).grid.get(recid).key;
}

// Rows that the grid has selected and the back end has not, or the other way round.
function keysThatDiffer(view, on) {
    const shown = new Set(view.grid.last.selection.indexes);
    return view.grid.records
        .filter((record, index) => shown.has(index) === on &&
            Boolean((view.newest.get(record.key) || record).selected) !== on)
        .map(record => record.key);
}
