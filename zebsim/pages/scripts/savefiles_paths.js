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
        const list = byId('path_devices');
        list.textContent = '';
        this.devices.forEach(entry => {
            const line = document.createElement('div');
            line.className = 'line';
            const label = document.createElement('label');
            label.textContent = entry.device;
            const choice = document.createElement('select');
            choice.disabled = isOff || entry.paths.length === 0;
            choice.className = 'wide';
            entry.paths.forEach(path => {
                const option = document.createElement('option');
                option.value = path.key;
                option.textContent = `${path.key}: ${path.val}`;
                choice.appendChild(option);
            });
            choice.value = entry.pathselector;
            line.appendChild(label);
            line.appendChild(choice);
            list.appendChild(line);
        });
    },

    add() {
        const names = this.paths.map(entry => entry.name);
        let number = 1;
        while (names.indexOf(String(number)) >= 0) {
            ++number;
        }
        this.paths.push({ name: String(number), path: saveOptions.stored('dir', 'string') });
        this.store();
        this.draw();
    },

    press(button) {
        if (button.hasAttribute('data-remove')) {
            this.paths.splice(Number(button.getAttribute('data-remove')), 1);
        } else if (button.hasAttribute('data-browse')) {
            const entry = this.paths[Number(button.getAttribute('data-browse'))];
            entry.path = savefile.selectFolder(entry.path) || entry.path;
        } else {
            return;
        }
        this.store();
        this.draw();
    },

    takePaths() {
        this.paths = Array.from(byId('path_list').children).map(line => {
            const [name, path] = Array.from(line.querySelectorAll('input')).map(field =>
                field.value.replace(FORBIDDEN_IN_LISTS, ''));
            return { name, path };
        });
        this.store();
        this.drawDevices(false);
    },

    takeDevices() {
        const choices = Array.from(byId('path_devices').querySelectorAll('select'));
        const entries = this.devices.map((entry, index) => `${entry.device}|${choices[index].value}`);
        saveOptions.store('multipathdevicelist', 'string', entries.join('?'));
        savePage.changed('multipathdevicelist');
    },

    store() {
        saveOptions.store('multipathlist', 'string', this.paths.map(entry => `${entry.name}|${entry.path}`).join('?'));
        savePage.changed('multipathlist');
    }
};
