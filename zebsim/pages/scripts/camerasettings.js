'use strict';

// Where the settings of the cameras go: into a file, whose name this page puts together, or into presets that the
// devices keep themselves.

const TO_FILE = 0;
const TO_PRESETS = 1;
const SECOND = 1000; // ms

function translate(key) {
    return cameraSettings.translate(key);
}

function make(tag, text, parent) {
    const element = document.createElement(tag);
    element.textContent = text;
    parent.appendChild(element);
    return element;
}

const settingsPage = Object.assign(dialogFrame(cameraSettings), {
    devices: [], // as `getPresetList` tells them
    chosen: {}, // number of a preset by the device's key, 0 for none: nothing is overwritten unless somebody wants it

    initialize() {
        this.begin(() => this.update());
        this.onClick('choose_folder', () => this.chooseFolder());
        this.onClick('ok', () => this.accept());
        this.onClick('cancel', () => cameraSettings.cancel());
        ['name', 'format'].forEach(id => byId(id).addEventListener('input', () => this.guarded(() => this.typed(id))));
        ['name_of_camera', 'own_name', 'add_time'].forEach(id =>
            byId(id).addEventListener('change', () => this.guarded(() => this.store())));
        ['to_file', 'to_presets'].forEach(id => byId(id).addEventListener('change', () => this.showMode()));
        byId('presets').addEventListener('change', event => this.guarded(() => this.choose(event.target)));
        document.addEventListener('keydown', event => this.guarded(() => this.key(event)));
        window.setInterval(() => this.logged(() => this.showName()), SECOND);
        byId(cameraSettings.getDialogMode() === TO_FILE ? 'to_file' : 'to_presets').checked = true;
        this.showFile();
        this.update();
        byId('name').focus();
    },

    update() {
        this.applyStyle();
        this.listPresets();
        this.showMode();
        this.showName();
    },

    // Enter means OK but on a button, which it presses.
    key(event) {
        if (event.keyCode === 27) {
            cameraSettings.cancel();
        } else if (event.keyCode === 13 && event.target.tagName !== 'BUTTON') {
            event.preventDefault();
            this.accept();
        }
    },

    // The file

    showFile() {
        const data = JSON.parse(cameraSettings.recvFileNameDialogData());
        byId('name').value = data.userFileName;
        byId('format').value = data.addTimeFormat;
        byId('add_time').checked = data.addTime;
        byId(data.original ? 'own_name' : 'name_of_camera').checked = true;
        this.showFolder();
    },

    showFolder() {
        const reply = cameraSettings.getFilePathSettings();
        byId('folder').value = byId('folder').title = reply === '' ? '' : JSON.parse(reply).FolderPath;
    },

    chooseFolder() {
        if (cameraSettings.openFolder()) {
            this.showFolder();
        }
        byId('choose_folder').focus();
    },

    // What is typed is what is meant.
    typed(id) {
        if (id === 'name') {
            byId('own_name').checked = true;
        } else {
            byId('add_time').checked = byId('format').value !== '';
        }
        byId('to_file').checked = true;
        this.store();
        this.showMode();
    },

    store() {
        cameraSettings.sendFileNameDialogData(JSON.stringify({
            userFileName: byId('name').value.replace(/\.rigx$/i, ''),
            original: byId('own_name').checked,
            addTime: byId('add_time').checked,
            addTimeFormat: byId('format').value
        }));
        this.showName();
    },

    // With the second that is: the file gets that in which OK is pressed.
    showName() {
        byId('result').textContent = byId('result').title = cameraSettings.getFileName(true);
        byId('time').textContent = cameraSettings.addDateTime(byId('format').value);
    },

    // The presets

    listPresets() {
        const devices = cameraSettings.getPresetList();
        if (JSON.stringify(devices) === JSON.stringify(this.devices)) {
            return;
        }
        this.devices = devices;
        // What was chosen for one that is away for a moment stays.
        devices.forEach(({ key, presets }) => {
            const number = this.chosen[key];
            this.chosen[key] = number <= presets.length ? number : 0;
        });
        this.drawPresets();
    },

    mostPresets() {
        return Math.max(0, ...this.devices.map(device => device.presets.length));
    },

    drawPresets() {
        const most = this.mostPresets();
        const [head, body] = [byId('presets').querySelector('thead'), byId('presets').querySelector('tbody')];
        head.textContent = body.textContent = '';
        if (most > 0) {
            const row = make('tr', '', head);
            make('th', translate('All cameras'), row);
            this.drawChoices(row, 'th', 'all', most, most);
        }
        this.devices.forEach(device => {
            const row = make('tr', '', body);
            const cell = make('td', device.name, row);
            cell.appendChild(document.createElement('br'));
            make('small', device.ipaddress + ' ' + device.devicename, cell);
            cell.title = device.name;
            this.drawChoices(row, 'td', device.key, device.presets.length, most);
            this.markPresent(row, device.presets);
        });
        this.showChosen();
    },

    // As many cells as the widest row has; the last one means none.
    drawChoices(row, tag, key, count, most) {
        for (let number = 1; number <= most + 1; ++number) {
            const cell = make(tag, '', row);
            const last = number > most;
            if (number <= count || last) {
                const label = make('label', '', cell);
                const button = make('input', '', label);
                button.type = 'radio';
                button.name = 'preset ' + key;
                button.dataset.key = key;
                button.value = last ? 0 : number;
                label.appendChild(document.createTextNode(last ? translate('None') : number));
            }
        }
    },

    markPresent(row, presets) {
        presets.filter(preset => preset.selected).forEach(({ presetno }) => {
            row.cells[presetno].className = 'present';
            row.cells[presetno].title = translate('The preset that the camera works with');
        });
    },

    choose(button) {
        const number = Number(button.value);
        this.devices.forEach(({ key, presets }) => {
            if (button.dataset.key === 'all' ? number <= presets.length : button.dataset.key === String(key)) {
                this.chosen[key] = number;
            }
        });
        byId('to_presets').checked = true;
        this.showChosen();
        this.showMode();
    },

    showChosen() {
        const numbers = this.devices.map(({ key }) => this.chosen[key]);
        Array.from(byId('presets').querySelectorAll('input')).forEach(button => {
            const number = Number(button.value);
            const isAll = button.dataset.key === 'all';
            button.checked = isAll ? numbers.every(chosen => chosen === number)
                : this.chosen[button.dataset.key] === number;
        });
    },

    // Both parts

    mode() {
        return byId('to_presets').checked ? TO_PRESETS : TO_FILE;
    },

    showMode() {
        const stores = this.devices.some(({ key }) => this.chosen[key] > 0);
        byId('to_presets').disabled = this.mode() === TO_FILE && this.mostPresets() === 0;
        byId('ok').disabled = this.mode() === TO_PRESETS && !stores;
    },

    accept() {
        if (byId('ok').disabled) {
            return;
        }
        this.store();
        cameraSettings.ok(JSON.stringify({
            dialogMode: this.mode(),
            presetList: this.devices.map(({ key }) => ({ key, value: this.chosen[key] }))
        }));
    }
});

document.addEventListener('DOMContentLoaded', () => settingsPage.initialize());
