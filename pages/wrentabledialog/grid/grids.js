// The seven grids: how they are made, and what happens to all of them.
const ROW_HEIGHT = 34;
// What w2ui asks of the tool bar that it else makes for each grid, shown or not.
const NO_TOOLBAR = { items: [] };
['render', 'enable', 'disable', 'uncheck', 'destroy'].forEach(name => { NO_TOOLBAR[name] = () => undefined; });
const views = []; // tab number -> GridView, of the tabs that have been in front

// A grid is made when its tab first comes to the front: all seven at once would be half of the page's start.
function viewAt(number) {
    if (!views[number]) {
        const tab = TABS[number];
        views[number] = guarded(() => wrentabledialog_obj.buildGrid(tab)) || wrentabledialog_obj.standIn(tab);
    }
    return views[number];
}

Object.assign(wrentabledialog_obj, {
    initializeList() {
        viewAt(this.activeTab());
    },

    buildGrid(tab) {
        // Made without a box, so that it draws once only, and our way.
        const grid = $().w2grid({
            name: tab.gridName,
            columns: this.createColumns(tab.name, tab.orderKey),
            reorderColumns: true,
            keyboard: false,
            multiSelect: true,
            recordHeight: ROW_HEIGHT,
            show: { emptyRecords: false },
            toolbar: NO_TOOLBAR,
            // w2ui counts the arguments in the handler's text: the first brackets must hold the event alone.
            onSelect: (event) => this.onSelect(tab, event),
            onUnselect: (event) => this.onUnselect(tab, event),
            onClick: (event) => this.clickRecordFunc(tab, event),
            onDblClick: (event) => event.preventDefault(),
            onColumnResize: (event) => { event.onComplete = () => viewAt(tab.number).measure(); },
            onColumnDragStart: (event) => this.beginColumnDrag(event),
            onColumnDragEnd: (event) => {
                this.isColumnDragged = false;
                event.onComplete = () => this.columnsMoved(tab.number);
            }
        });
        const view = new GridView(grid, tab, () => this.closeFloating());
        grid.render(document.getElementById(tab.gridName));
        listenToGrid(view);
        this.whenPainted(() => listenToTips(view));
        return view;
    },

    // In the place of a grid that could not be built stands one that nobody sees, so that the page goes on.
    standIn(tab) {
        const grid = $().w2grid({ name: tab.gridName + '-standin' });
        return new GridView(grid, tab, () => this.closeFloating());
    },

    activeTab() {
        return this.tabsExist ? $('#tabs').tabs('option', 'active') : this.startTab;
    },

    activeGrid() {
        return viewAt(this.activeTab()).grid;
    },

    // What floats over a row and does not move with it.
    closeFloating() {
        dropDown.close();
        lowLightSlider.letGo();
        closeTip();
    },

    lockGrids() {
        numberBox.giveUpAll();
        this.gridLock = true;
        customEditor.end();
        contextMenu.close();
        this.activeGrid().clear();
        [this.activeGrid(), customList.grid].filter(Boolean).forEach(grid => grid.lock(''));
    },

    unlockGrids() {
        if (this.gridLock) {
            views.map(view => view.grid).concat(customList.grid || []).forEach(grid => grid.unlock());
            this.gridLock = false;
        }
    },

    // The grid unlocks from a timer of its own, so clicks that came while the page stood still meet the lock yet.
    releaseGrid(grid) {
        if (!this.gridLock) {
            grid.unlock();
        }
    }
});

// The grid's own `lock` waits for a timer and fades in, and a call that blocks the page comes before both.
function lockAtOnce(grid, message) {
    const box = grid.box.firstElementChild;
    w2utils.lock(box, { msg: escapeMarkup(message), spinner: true });
    $(box).find('.w2ui-lock, .w2ui-lock-msg').finish();
}
