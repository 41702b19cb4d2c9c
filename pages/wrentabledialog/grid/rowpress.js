// What becomes of a press on a row: a click, however little the hand moves, or a rubber band.
const BAND_PX = 5;

Object.assign(wrentabledialog_obj, {
    // w2ui leaves a press alone while it thinks that a row is being expanded. With Alt it would unselect all.
    beginPress(view, event) {
        if (event.button !== 0) {
            return;
        }
        const row = view.rowOf(event.target);
        const cell = row && row.cellOf(event.target);
        const selects = cell && row !== view.batch && !cell.kind.still && !event.target.closest('a[dockey]');
        this.rowPress = selects ? { view, key: row.key, target: event.target } : null;
        if (event.altKey || event.ctrlKey || event.shiftKey || event.metaKey) {
            view.grid.last.move = { type: 'expand' };
        }
    },

    // Before w2ui hears of the move, which takes the first pixel for a rubber band.
    movePress(event) {
        const view = this.isCursorDown && viewAt(this.activeTab());
        const move = view && view.grid.last.move;
        if (!move || !['select', 'held'].includes(move.type) || this.bandOf) {
            return;
        }
        const far = Math.max(Math.abs(event.screenX - move.x), Math.abs(event.screenY - move.y)) >= BAND_PX;
        if (far && !this.preventSelect) {
            this.bandOf = view;
            move.type = 'select';
        } else {
            move.type = 'held';
        }
    },

    // The engine makes no click of a press and a release on two elements, though they lie in one row.
    releasePress(event) {
        const { view, key, target } = this.rowPress || {};
        const row = view && view.box.contains(event.target) && !this.bandOf && view.rowOf(event.target);
        if (row && row.key === key && target !== event.target) {
            view.grid.click(row.recid, event);
        }
        this.endDrag();
    },

    endDrag() {
        const band = this.bandOf;
        this.isCursorDown = false;
        this.preventSelect = false;
        this.rowPress = null;
        this.bandOf = null;
        // The library hears of a release over an element only.
        if (views.some(view => view.grid.resizing)) {
            $(document.body).trigger('mouseup');
        }
        views.filter(view => view.grid.last.move && view.grid.last.move.type).forEach(view => {
            delete view.grid.last.move;
        });
        if (band) {
            this.handGesture(band);
        }
    }
});
