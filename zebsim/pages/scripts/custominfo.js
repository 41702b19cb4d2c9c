'use strict';

// The lists of custom information of several cameras. What is done reaches all cameras that are chosen on the left; on
// the right stands the list of one of them.

// It marks the text for `lupdate`.
function textKey(key) {
    return key;
}

function byId(id) {
    return document.getElementById(id);
}

const custominfo = {
    records: [], // of the cameras
    shown: -1, // key of the camera whose list stands there
    items: [],
    selected: [], // names of items
    current: 0, // the row that the keyboard stands on
    anchor: 0, // the row from which Shift selects

    initialize() {
        CustomInfoDialog.update.connect(() => this.logged(() => this.update()));
        zeb4func.disableDefaultShortcut();
        zeb4func.localize(CustomInfoDialog);
        byId('cameras').addEventListener('change', () => this.guarded(() => this.chooseCameras()));
        byId('cameras').addEventListener('keydown', event => this.cameraKey(event));
        byId('items').addEventListener('mousedown', event => this.press(event));
        byId('items').addEventListener('change', event => this.guarded(() => this.switchItem(event.target)));
        byId('items').addEventListener('keydown', event => this.key(event));
        byId('fields').addEventListener('keydown', event => this.fieldKey(event));
        const onClick = (id, work) => byId(id).addEventListener('click', () => this.guarded(work));
        onClick('add', () => this.add());
        onClick('edit', () => this.edit());
        onClick('delete', () => this.remove());
        onClick('load', () => this.load());
        onClick('save', () => CustomInfoDialog.save(this.items));
        onClick('ok', () => CustomInfoDialog.accept());
        onClick('cancel', () => CustomInfoDialog.reject());
        this.applyStyle();
        this.showCameras();
        byId('name').focus();
    },

    // An exception that left a function connected to a signal of the bridge would end the program.
    logged(work) {
        try {
            work();
        } catch (error) {
            CustomInfoDialog.userOperationErrorLog(this.textOf(error));
        }
    },

    guarded(work) {
        try {
            work();
        } catch (error) {
            CustomInfoDialog.alert(this.textOf(error));
        }
    },

    textOf(error) {
        return error && error.message ? error.message : String(error);
    },

    applyStyle() {
        zeb4func.applyStyle(CustomInfoDialog);
        document.body.classList.toggle('dark', CustomInfoDialog.getStyle() === 'dark');
    },

    // Cameras come and go, and others change their lists.
    update() {
        this.applyStyle();
        this.showCameras();
    },

    showCameras() {
        const reply = CustomInfoDialog.getDeviceInfo();
        if (reply === '') {
            return; // a camera did not tell its name, which has been told
        }
        const info = JSON.parse(reply);
        const records = info.Records;
        const list = byId('cameras');
        if (JSON.stringify(records) !== JSON.stringify(this.records)) {
            const chosen = this.records.length > 0 ? this.targets() : [(info.InitSelect || {}).dockey];
            this.records = records;
            list.innerHTML = '';
            records.forEach(record => {
                const option = document.createElement('option');
                option.textContent = record.name;
                option.selected = chosen.indexOf(record.dockey) >= 0;
                list.appendChild(option);
            });
            if (list.selectedIndex < 0 && records.length > 0) {
                list.options[0].selected = true;
            }
            this.chooseCameras();
        } else {
            this.showItems();
        }
    },

    chosenRecords() {
        return this.records.filter((record, index) => byId('cameras').options[index].selected);
    },

    // The engine's own list does not know it.
    cameraKey(event) {
        if (event.ctrlKey && event.keyCode === 65) {
            event.preventDefault();
            Array.from(byId('cameras').options).forEach(option => { option.selected = true; });
            this.guarded(() => this.chooseCameras());
        }
    },

    targets() {
        return this.chosenRecords().map(record => record.dockey);
    },

    chooseCameras() {
        const chosen = this.chosenRecords();
        CustomInfoDialog.setSelectedDeviceItems(chosen.map(record => record.recid));
        const stays = chosen.some(record => record.dockey === this.shown);
        this.shown = stays ? this.shown : chosen.length > 0 ? chosen[0].dockey : -1;
        const whose = this.records.filter(record => record.dockey === this.shown)[0];
        byId('whose').textContent = whose ? whose.name : '';
        this.showItems();
    },

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
    },

    // Enter in a field changes the item of that name, or adds one.
    fieldKey(event) {
        if (event.keyCode === 13) {
            event.preventDefault();
            const { name } = this.typed();
            this.guarded(() => this.items.some(item => item.name === name) ? this.edit(name) : this.add());
        }
    },

    typed() {
        return { name: byId('name').value, value: byId('value').value, unit: byId('unit').value };
    },

    // Throws with the fault of what is typed; `own` is the name that the item has now.
    checked(own) {
        const item = this.typed();
        const fault = faultOfItem(item, this.items.filter(other => other.name !== own));
        if (fault) {
            throw new Error(fault);
        }
        return item;
    },

    add() {
        const item = this.checked();
        CustomInfoDialog.addCustomData(this.targets(), item);
        this.ready(item.name);
    },

    edit(name) {
        const old = name || this.chosenItems()[0].name;
        const item = this.checked(old);
        const before = this.items.filter(other => other.name === old)[0];
        const flag = on => on ? 'on' : '';
        CustomInfoDialog.editCustomData(this.targets(), Object.assign(item, {
            oldname: old, display: flag(before.selected), usefilename: flag(before.usefilename)
        }));
        this.ready(item.name);
    },

    ready(name) {
        this.selected = [name];
        this.showItems();
        byId('name').focus();
        byId('name').select();
    },

    remove() {
        const items = this.chosenItems();
        if (items.length > 0 && CustomInfoDialog.confirm(textKey('Delete. Is it OK?'))) {
            CustomInfoDialog.deleteCustomData(this.targets(), items);
            this.selected = [];
            this.showItems();
        }
    },

    load() {
        CustomInfoDialog.load(this.targets());
        this.selected = [];
        this.showItems();
    }
};

document.addEventListener('DOMContentLoaded', () => custominfo.initialize());
