// Folders by camera: names for folders, and for each device the name of its own.

const FORBIDDEN_IN_LISTS = /[?|]/g;

const savePaths = {
    paths: [], // { name, path }
    devices: [], // { device, pathselector }

    begin() {
        savePage.onClick('add_path', () => this.add());
        byId('path_list').addEventListener('input', () => savePage.guarded(() => this.takePaths()));
        byId('path_list').addEventListener('click', event => savePage.guarded(() => this.press(event.target)));
        byId('path_devices').addEventListener('change', () => savePage.guarded(() => this.takeDevices()));
    },

    isHere() {
        return saveFamily === 'E';
    },

    update() {
        if (this.isHere() && !byId('paths').contains(document.activeElement)) {
            this.paths = JSON.parse(savefile.getMultiPaths() || '[]');
            this.draw();
        }
    },

    draw() {
        const isOff = saveOptions.value('singlepath') === true;
        const list = byId('path_list');
        list.textContent = '';
        this.paths.forEach((entry, index) => {
            const line = document.createElement('div');
            line.className = 'line';
            line.innerHTML = '<input type="text" class="short"><input type="text" class="wide"><button></button>' +
                '<button></button>';
            const [name, path] = Array.from(line.querySelectorAll('input'));
            const [browse, remove] = Array.from(line.querySelectorAll('button'));
            name.value = entry.name;
            path.value = entry.path;
            browse.textContent = translate('Browse...');
            remove.textContent = translate('Delete');
            browse.setAttribute('data-browse', index);
            remove.setAttribute('data-remove', index);
            [name, path, browse, remove].forEach(control => { control.disabled = isOff; });
            list.appendChild(line);
        });
        this.drawDevices(isOff);
    },

    drawDevices(isOff) {
        this.devices = JSON.parse(savefile.getMultiPathDevices() || '[]');
        const own = this.ownFolders();
        const list = byId('path_devices');
        list.textContent = '';
        this.devices.forEach(entry => {
            const line = document.createElement('div');
            line.className = 'line';
            line.innerHTML = '<label></label><select class="wide"></select>';
            line.querySelector('label').textContent = entry.device;
            const choice = line.querySelector('select');
            choice.disabled = isOff || entry.paths.length === 0;
            // A camera without a folder of its own goes where all go.
            [{ key: '', val: translate('The folder of all') }].concat(entry.paths).forEach(path => {
                const option = document.createElement('option');
                option.value = path.key;
                option.textContent = path.key === '' ? path.val : `${path.key}: ${path.val}`;
                choice.appendChild(option);
            });
            choice.value = own.get(entry.device) || '';
            list.appendChild(line);
        });
    },

    // Name of the folder by device, also of those that are not listed.
    ownFolders() {
        return new Map(saveOptions.stored('multipathdevicelist', 'string').split('?')
            .map(entry => entry.split('|')).filter(entry => entry.length === 2));
    },

    storeFolders(own) {
        const entries = Array.from(own).filter(entry => entry[1] !== '').map(entry => entry.join('|'));
        saveOptions.store('multipathdevicelist', 'string', entries.join('?'));
    },

    add() {
        const names = this.paths.map(entry => entry.name);
        let number = 1;
        while (names.indexOf(String(number)) >= 0) {
            ++number;
        }
        const path = saveOptions.stored('dir', 'string').replace(FORBIDDEN_IN_LISTS, '');
        this.paths.push({ name: String(number), path });
        this.store();
        this.draw();
    },

    press(button) {
        if (button.hasAttribute('data-remove')) {
            this.paths.splice(Number(button.getAttribute('data-remove')), 1);
        } else if (button.hasAttribute('data-browse')) {
            const entry = this.paths[Number(button.getAttribute('data-browse'))];
            const path = savefile.selectFolder(entry.path) || entry.path;
            if (/[?|]/.test(path)) {
                throw new Error(translate('The path of such a folder has no ? and no |.'));
            }
            entry.path = path;
        } else {
            return;
        }
        this.store();
        this.draw();
    },

    takePaths() {
        const own = this.ownFolders();
        Array.from(byId('path_list').children).forEach((line, index) => {
            const [name, path] = Array.from(line.querySelectorAll('input')).map(field =>
                field.value.replace(FORBIDDEN_IN_LISTS, ''));
            const old = this.paths[index].name;
            own.forEach((folder, device) => folder === old && own.set(device, name));
            this.paths[index] = { name, path };
        });
        this.storeFolders(own);
        this.store();
        this.drawDevices(false);
    },

    takeDevices() {
        const own = this.ownFolders();
        const choices = Array.from(byId('path_devices').querySelectorAll('select'));
        this.devices.forEach((entry, index) => own.set(entry.device, choices[index].value));
        this.storeFolders(own);
        savePage.changed('multipathdevicelist');
    },

    store() {
        saveOptions.store('multipathlist', 'string', this.paths.map(entry => `${entry.name}|${entry.path}`).join('?'));
        savePage.changed('multipathlist');
    }
};
