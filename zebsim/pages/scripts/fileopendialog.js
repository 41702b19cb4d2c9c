// The storage media, and the recordings on those that are open.

const SD_CARD = 0;
const QUIK_DRIVE = 1;
const CFAST = 2;

function translate(key) {
    return fileopendialog.translate(key);
}

const mediaPage = Object.assign(dialogFrame(fileopendialog), {
    media: [],
    chosenName: '',
    uses: {}, // room by name, looked at now and then
    lookedAt: 0,

    initialize() {
        this.begin(() => this.update());
        zeb4func.enableUserOperationLog(fileopendialog, 'body');
        mediaRecordings.begin();
        const list = byId('media');
        list.addEventListener('mousedown', event => this.guarded(() => this.pick(event.target.closest('tr'))));
        list.addEventListener('dblclick', () => this.guarded(() => this.open()));
        list.addEventListener('keydown', event => this.guarded(() => this.key(event)));
        this.onClick('open', () => this.open());
        this.onClick('format', () => this.format());
        this.onClick('password', () => this.setPassword());
        this.onClick('put_in', () => fileopendialog.putIn());
        this.onClick('open_folder', () => fileopendialog.openFolder());
        this.onClick('close', () => fileopendialog.reject());
        document.addEventListener('keydown', event => event.keyCode === 27 &&
            this.guarded(() => fileopendialog.reject()));
        this.update();
        list.focus();
    },

    // The host has changed: media come and go, with their recordings.
    update() {
        this.applyStyle();
        const before = this.media.filter(medium => medium.open);
        this.media = JSON.parse(fileopendialog.getMedia() || '[]');
        before.filter(medium => !this.media.some(other => this.nameOf(other) === this.nameOf(medium)))
            .forEach(medium => this.tell(translate('%1 was pulled out.').replace('%1', () => medium.name)));
        if (!this.chosen()) {
            const first = this.media.filter(medium => medium.open)[0] || this.media[0];
            this.chosenName = first ? this.nameOf(first) : '';
        }
        this.lookAtRoom(false);
        mediaRecordings.update();
        this.show();
    },

    // Whoever counts the files of a medium looks at each of them.
    lookAtRoom(isNow) {
        const OFTEN = 2000;
        if (!isNow && Date.now() - this.lookedAt < OFTEN &&
            this.media.every(medium => this.uses[this.nameOf(medium)])) {
            return;
        }
        this.uses = {};
        this.media.forEach(medium => {
            this.uses[this.nameOf(medium)] = JSON.parse(
                fileopendialog.getUse(medium.kind, medium.type, medium.drive, medium.slot) || '{}');
        });
        this.lookedAt = Date.now();
    },

    tell(text) {
        byId('note').textContent = text;
    },

    nameOf(medium) {
        return `${medium.kind}/${medium.name}`;
    },

    chosen() {
        return this.media.filter(medium => this.nameOf(medium) === this.chosenName)[0];
    },

    show() {
        const body = byId('media').querySelector('tbody');
        const records = this.media.map(medium =>
            Object.assign({ use: this.uses[this.nameOf(medium)] || {} }, medium));
        dialogList.draw(body, records, record => this.rowOf(record));
        Array.from(body.children).forEach(row =>
            row.classList.toggle('chosen', row.getAttribute('data-name') === this.chosenName));
        this.showButtons();
    },

    rowOf(medium) {
        const row = document.createElement('tr');
        row.setAttribute('data-name', this.nameOf(medium));
        const kind = [textKey('SD card'), textKey('QUIK Drive'), textKey('CFast')][medium.kind];
        const states = [[medium.open, textKey('is open')], [medium.locked, textKey('is locked')],
            [medium.protected, textKey('write protected')]];
        const cell = dialogList.addCell(row, '');
        cell.innerHTML = '<div class="head"><b class="cut"></b><span></span></div>' +
            '<div class="bar"><div></div></div><div class="head"><span class="cut"></span><span></span></div>';
        const name = medium.kind === SD_CARD ? `${medium.drivename} ${medium.name}` : medium.name;
        cell.title = medium.folder;
        cell.querySelector('b').textContent = name;
        cell.querySelector('b + span').textContent = translate(kind);
        const use = medium.use;
        cell.querySelector('.bar div').style.width =
            `${use.capacity > 0 ? Math.min(100, 100 * use.used / use.capacity) : 0}%`;
        const room = translate('%1 of %2').replace('%1', use.usedLabel || '').replace('%2', use.capacityLabel || '');
        cell.querySelector('.bar + .head .cut').textContent = room;
        cell.querySelector('.bar + .head .cut + span').textContent =
            states.filter(([holds]) => holds).map(([, key]) => translate(key)).join(', ');
        return row;
    },

    pick(row) {
        if (row) {
            this.chosenName = row.getAttribute('data-name');
            this.show();
        }
    },

    // Arrows choose, Enter opens.
    key(event) {
        const rows = Array.from(byId('media').querySelectorAll('tr'));
        const at = rows.findIndex(row => row.getAttribute('data-name') === this.chosenName);
        const next = dialogList.step(event, rows.length, at);
        if (next >= 0) {
            this.pick(rows[next]);
            rows[next].scrollIntoViewIfNeeded(false);
        } else if (event.keyCode === 13) {
            event.preventDefault();
            this.open();
        }
    },

    // A button that can't be pressed says why.
    grey(id, fault) {
        byId(id).disabled = fault !== '';
        byId(id).title = fault === '' ? '' : translate(fault);
    },

    showButtons() {
        const medium = this.chosen();
        const none = medium ? '' : textKey('No medium is chosen.');
        const isProtected = medium && medium.protected ? textKey('It is write protected.') : '';
        const act = medium && medium.open ? textKey('Close medium') : textKey('Open');
        byId('open').textContent = translate(act);
        this.grey('open', none);
        const inCamera = medium && medium.kind === SD_CARD ? textKey('An SD card is formatted in its camera.') : '';
        const locked = medium && medium.locked ? textKey('It is locked by a password.') : '';
        this.grey('format', none || inCamera || isProtected || locked);
        const other = medium && medium.kind !== QUIK_DRIVE ? textKey('Only a QUIK Drive has a password.') : '';
        this.grey('password', none || other || isProtected);
        mediaRecordings.showButtons();
    },

    open() {
        const medium = this.chosen();
        if (!medium) {
            return;
        }
        this.tell('');
        if (medium.open) {
            fileopendialog.closeMedium(medium.kind);
        } else if (medium.kind === SD_CARD) {
            fileopendialog.getSDDrives();
            fileopendialog.selectSDDrive(medium.recid);
        } else if (medium.kind === QUIK_DRIVE) {
            fileopendialog.selectFDDrive(medium.type, medium.drive, medium.slot, medium.name);
        } else {
            fileopendialog.selectCFDrive(medium.type, medium.drive, medium.slot, medium.name);
        }
        this.update();
    },

    format() {
        const medium = this.chosen();
        const question = translate('Erase all data of %1?').replace('%1', () => medium.name);
        if (!fileopendialog.confirm([question, medium.folder].join('\n'))) {
            return;
        }
        if (medium.kind === CFAST) {
            fileopendialog.formatCFast(medium.type, medium.drive, medium.slot);
        } else {
            fileopendialog.formatQuikDrive(medium.type, medium.drive, medium.slot);
        }
        this.lookAtRoom(true);
        this.update();
    },

    setPassword() {
        const medium = this.chosen();
        fileopendialog.setQuikDrivePassword(medium.type, medium.drive);
        this.update();
    }
});

document.addEventListener('DOMContentLoaded', () => mediaPage.initialize());
