// The context menu of the list of custom information. It has the keyboard while it is open.
const customMenu = {
    list: null,

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
        this.close();
        if (wrentabledialog_obj.gridLock || !item || isBlankItem(item)) {
            return;
        }
        // What it deletes is the row it stands at, or what is selected together with that.
        if (!customList.meant().includes(item)) {
            customList.choose([recid], { recid, column: customList.current.column });
        }
        const list = document.createElement('ul');
        list.id = 'wren_custom_menu';
        list.className = 'wren-menu';
        customList.grid.menu.forEach(entry => list.appendChild(this.entry(entry)));
        document.getElementById('wren-root-block').appendChild(list);
        list.style.left = Math.max(0, Math.min(x, window.innerWidth - list.offsetWidth)) + 'px';
        list.style.top = Math.max(0, Math.min(y, window.innerHeight - list.offsetHeight)) + 'px';
        list.addEventListener('mousedown', event => event.preventDefault());
        list.addEventListener('keydown', event => this.key(event));
        this.list = list;
        list.querySelector('a').focus();
    },

    entry({ id, text }) {
        const line = document.createElement('li');
        const link = document.createElement('a');
        link.id = 'wren_custom_menu_' + id;
        link.textContent = text;
        link.tabIndex = -1; // so that it can have the focus
        link.addEventListener('blur', () => this.close());
        link.addEventListener('click', () => this.choose());
        line.appendChild(link);
        return line;
    },

    choose() {
        this.close();
        customList.box.focus();
        guarded(() => wrentabledialog_obj.deleteCustomInfoRecord());
    },

    key(event) {
        if (event.keyCode === KEY.ENTER || event.keyCode === KEY.SPACE) {
            this.choose();
        } else if (event.keyCode === KEY.ESCAPE || event.keyCode === KEY.TAB) {
            this.close();
            customList.box.focus();
        }
        event.preventDefault();
        event.stopPropagation();
    },

    close() {
        const { list } = this;
        this.list = null;
        if (list) {
            list.remove();
        }
    }
};
