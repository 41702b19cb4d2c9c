'use strict';

// The list of items of the camera that is shown: how it looks, and what is selected in it.
Object.assign(custominfo, {
    showItems() {
        // A list that is not told must not be another camera's.
        const text = this.shown < 0 ? '[]' : CustomInfoDialog.getCustomInfo(this.shown) || '[]';
        if (text !== this.itemText) {
            this.itemText = text;
            this.items = JSON.parse(text);
            this.current = Math.max(0, Math.min(this.current, this.items.length - 1));
            this.drawItems();
        }
        this.showSelection();
    },

    drawItems() {
        const body = document.querySelector('#items tbody');
        body.innerHTML = '';
        this.items.forEach(item => {
            const row = body.insertRow();
            const box = document.createElement('input');
            box.type = 'checkbox';
            box.tabIndex = -1;
            box.checked = item.selected;
            row.insertCell().appendChild(box);
            [item.name, item.value, item.unit].forEach(text => {
                const cell = row.insertCell();
                cell.textContent = text;
                cell.title = text;
            });
        });
    },

    showSelection() {
        const rows = Array.from(document.querySelectorAll('#items tbody tr'));
        rows.forEach((row, index) => {
            row.classList.toggle('selected', this.selected.indexOf(this.items[index].name) >= 0);
            row.classList.toggle('current', index === this.current);
        });
        const one = this.chosenItems().length > 0;
        const any = this.targets().length > 0;
        ['add', 'load'].forEach(id => zeb4func.disable('#' + id, !any));
        ['edit', 'delete'].forEach(id => zeb4func.disable('#' + id, !any || !one));
        zeb4func.disable('#save', this.items.length === 0);
    },

    chosenItems() {
        return this.items.filter(item => this.selected.indexOf(item.name) >= 0);
    },

    press(event) {
        const row = event.target.closest('tbody tr');
        if (row) {
            event.preventDefault(); // a box is drawn anew, and would take the keyboard along
            byId('items').focus();
            this.choose(row.sectionRowIndex, event.ctrlKey, event.shiftKey);
        }
    },

    // The item comes into the fields too, to be changed there.
    choose(index, joins, extends_) {
        const { name } = this.items[index];
        if (extends_) {
            const [first, last] = [Math.min(index, this.anchor), Math.max(index, this.anchor)];
            this.selected = this.items.slice(first, last + 1).map(item => item.name);
        } else if (joins) {
            const at = this.selected.indexOf(name);
            this.selected = at < 0 ? this.selected.concat(name) : this.selected.filter(other => other !== name);
        } else {
            this.selected = [name];
        }
        this.current = index;
        this.anchor = extends_ ? this.anchor : index;
        ['name', 'value', 'unit'].forEach(field => { byId(field).value = this.items[index][field]; });
        this.showSelection();
        document.querySelectorAll('#items tbody tr')[index].scrollIntoViewIfNeeded(false);
    },

    switchItem(box) {
        const item = this.items[box.closest('tr').sectionRowIndex];
        this.show(item, box.checked);
    },

    show(item, on) {
        CustomInfoDialog.enableCustomData(this.targets(), [Object.assign({}, item, { selected: on })]);
        this.showItems();
    },

    key(event) {
        const all = this.items.length;
        const step = { 38: -1, 40: 1, 33: -8, 34: 8, 36: -all, 35: all }[event.keyCode];
        const item = this.items[this.current];
        if (!item) {
            return;
        }
        if (step) {
            const index = Math.max(0, Math.min(this.current + step, this.items.length - 1));
            this.choose(index, false, event.shiftKey);
        } else if (event.keyCode === 32) {
            this.guarded(() => this.show(item, !item.selected));
        } else if (event.keyCode === 46) {
            this.guarded(() => this.remove());
        } else {
            return;
        }
        event.preventDefault();
    }
});
