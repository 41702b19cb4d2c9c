'use strict';

// The lists of custom information of several cameras. What is done reaches all cameras that are chosen on the left; on
// the right stands the list of one of them.

const custominfo = Object.assign(dialogFrame(CustomInfoDialog), {
    records: [], // of the cameras
    shown: -1, // key of the camera whose list stands there
    items: [],
    selected: [], // names of items
    current: 0, // the row that the keyboard stands on
    anchor: 0, // the row from which Shift selects

    initialize() {
        this.begin(() => this.update());
        byId('cameras').addEventListener('change', () => this.guarded(() => this.chooseCameras()));
        byId('cameras').addEventListener('keydown', event => this.cameraKey(event));
        byId('items').addEventListener('mousedown', event => this.press(event));
        byId('items').addEventListener('change', event => this.guarded(() => this.switchItem(event.target)));
        byId('items').addEventListener('keydown', event => this.key(event));
        byId('fields').addEventListener('keydown', event => this.fieldKey(event));
        this.onClick('add', () => this.add());
        this.onClick('edit', () => this.edit());
        this.onClick('delete', () => this.remove());
        this.onClick('load', () => this.load());
        this.onClick('save', () => CustomInfoDialog.save(this.items));
        this.onClick('ok', () => this.accept());
        this.onClick('cancel', () => CustomInfoDialog.reject());
        document.addEventListener('keydown', event => event.keyCode === 27 && CustomInfoDialog.reject());
        this.applyStyle();
        this.showCameras();
        byId('name').focus();
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

    // Whether another camera than the one that is shown has an item of that name.
    isElsewhere(name) {
        return this.targets().filter(key => key !== this.shown).some(key =>
            JSON.parse(CustomInfoDialog.getCustomInfo(key) || '[]').some(item => item.name === name));
    },

    add() {
        const item = this.checked();
        const question = textKey('Overwrite custom information for the selected camera. Is it OK?');
        if (!this.isElsewhere(item.name) || CustomInfoDialog.confirm(question)) {
            CustomInfoDialog.addCustomData(this.targets(), item);
            this.ready(item.name);
        }
    },

    // What is typed and stands in no list would go with the dialog.
    accept() {
        const item = this.typed();
        const isListed = this.items.some(other => ['name', 'value', 'unit'].every(key => other[key] === item[key]));
        const isEmpty = item.name + item.value + item.unit === '';
        const question = textKey('What is typed is in no list. Close all the same?');
        if (isEmpty || isListed || CustomInfoDialog.confirm(question)) {
            CustomInfoDialog.accept();
        }
    },

    edit(name) {
        const old = name || this.chosenItems()[0].name;
        const item = this.checked(old);
        if (item.name !== old && this.isElsewhere(item.name)) {
            throw new Error(DOUBLED_NAME);
        }
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
            ['name', 'value', 'unit'].forEach(field => { byId(field).value = ''; });
            this.selected = [];
            this.showItems();
        }
    },

    load() {
        CustomInfoDialog.load(this.targets());
        this.selected = [];
        this.showItems();
    }
});

document.addEventListener('DOMContentLoaded', () => custominfo.initialize());
