// The context menu of the list of custom information.
const customMenu = {
    // Below the current cell.
    openAt(recid) {
        const cell = customList.cell(recid, customList.current.column);
        if (cell) {
            const { left, bottom } = cell.getBoundingClientRect();
            this.open(recid, left, bottom);
        }
    },

    open(recid, x, y) {
        const item = customList.item(recid);
        contextMenu.close();
        if (wrentabledialog_obj.gridLock || !item || isBlankItem(item)) {
            return;
        }
        // What it deletes is the row it stands at, or what is selected together with that.
        if (!customList.meant().includes(item)) {
            customList.choose([recid], { recid, column: customList.current.column });
        }
        const work = () => wrentabledialog_obj.deleteCustomInfoRecord();
        const entries = customList.grid.menu.map(({ id, text }) => ({ id, text, work }));
        contextMenu.open('wren_custom_menu', entries, x, y, customList.box);
    }
};
