// Folders by camera: names for folders, and for each device the name of its own.

const FORBIDDEN_IN_LISTS = /[?|]/;

const savePaths = {
    paths: [], // { name, path }
    devices: [], // { device }
    rows: new Map(), // index of the folder in the list, by device

    begin() {
        savePage.onClick('add_path', () => this.add());
        byId('path_list').addEventListener('input', event =>
            savePage.guarded(() => this.takePaths(event.target)));
        byId('path_list').addEventListener('click', event => savePage.guarded(() => this.press(event.target)));
        byId('path_devices').addEventListener('change', () => savePage.guarded(() => this.takeDevices()));
    },

    isHere() {
        return saveFamily === 'E';
    },

    update() {
        if (this.isHere() && !byId('paths').contains(document.activeElement)) {
            this.paths = JSON.parse(savefile.getMultiPaths() || '[]');
            const names = this.paths.map(entry => entry.name);
            this.rows = new Map(Array.from(this.ownFolders()).map(entry => [entry[0], names.indexOf(entry[1])]));
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
        const list = byId('path_devices');
        list.textContent = '';
        this.devices.forEach(entry => {
            const line = document.createElement('div');
            line.className = 'line';
            line.innerHTML = '<label></label><select class="wide"></select>';
            line.querySelector('label').textContent = entry.device;
            const choice = line.querySelector('select');
            choice.disabled = isOff || this.paths.length === 0;
            // A camera without a folder of its own goes where all go.
            [translate('The folder of all')].concat(this.paths.map(path => `${path.name}: ${path.path}`))
                .forEach((text, index) => {
                    const option = document.createElement('option');
                    option.value = index - 1;
                    option.textContent = text;
                    choice.appendChild(option);
                });
            const row = this.rows.get(entry.device);
            choice.value = row === undefined ? -1 : row;
            list.appendChild(line);
        });
    },

    // Name of the folder by device, also of those that are not listed.
    ownFolders() {
        return new Map(saveOptions.stored('multipathdevicelist', 'string').split('?')
            .map(entry => entry.split('|')).filter(entry => entry.length === 2));
    },

    // Each device keeps its row, whatever that is called meanwhile. Half-typed names are not stored.
    store() {
        if (this.fault() === '') {
            const entries = Array.from(this.rows).filter(entry => this.paths[entry[1]])
                .map(entry => `${entry[0]}|${this.paths[entry[1]].name}`);
            saveOptions.store('multipathdevicelist', 'string', entries.join('?'));
            saveOptions.store('multipathlist', 'string',
                this.paths.map(entry => `${entry.name}|${entry.path}`).join('?'));
        }
        savePage.changed('multipathlist');
    },

    fault() {
        const names = this.paths.map(entry => entry.name);
        const isOff = !this.isHere() || saveOptions.value('singlepath') === true;
        const isGood = this.paths.every((entry, index) =>
            entry.name !== '' && entry.path.trim() !== '' && names.indexOf(entry.name) === index);
        return isOff || isGood ? '' : translate('Each folder by camera needs a path and a name of its own.');
    },

    add() {
        const names = this.paths.map(entry => entry.name);
        let number = 1;
        while (names.indexOf(String(number)) >= 0) {
            ++number;
        }
        const path = saveOptions.stored('dir', 'string');
        this.paths.push({ name: String(number), path: FORBIDDEN_IN_LISTS.test(path) ? '' : path });
        this.store();
        this.draw();
    },

    press(button) {
        if (button.hasAttribute('data-remove')) {
            const gone = Number(button.getAttribute('data-remove'));
            this.paths.splice(gone, 1);
            this.rows.forEach((row, device) =>
                this.rows.set(device, row === gone ? -1 : row > gone ? row - 1 : row));
        } else if (button.hasAttribute('data-browse')) {
            const entry = this.paths[Number(button.getAttribute('data-browse'))];
            const path = savefile.selectFolder(entry.path) || entry.path;
            if (FORBIDDEN_IN_LISTS.test(path)) {
                throw new Error(translate('The path of such a folder has no ? and no |.'));
            }
            entry.path = path;
        } else {
            return;
        }
        this.store();
        this.draw();
    },

    takePaths(field) {
        const kept = field.value.replace(/[?|]/g, '');
        const note = textKey('The path of such a folder has no ? and no |.');
        byId('note').textContent = kept === field.value ? '' : translate(note);
        if (kept !== field.value) {
            field.value = kept;
        }
        this.paths = Array.from(byId('path_list').children).map(line => {
            const [name, path] = Array.from(line.querySelectorAll('input')).map(input => input.value);
            return { name, path };
        });
        this.store();
        this.drawDevices(false);
    },

    takeDevices() {
        const choices = Array.from(byId('path_devices').querySelectorAll('select'));
        this.devices.forEach((entry, index) => this.rows.set(entry.device, Number(choices[index].value)));
        this.store();
    }
};
