// The storage media, and the recordings on those that are open.

// By these the bridge opens and formats; all else of a kind stands in the records.
const SD_CARD = 0;
const QUIK_DRIVE = 1;
const CFAST = 2;

function translate(key) {
    return fileopendialog.translate(key);
}

const mediaList = choiceList('media', {
    nameOf(medium) {
        return `${medium.kind}/${medium.name}`;
    },

    preferred() {
        return this.records.filter(medium => medium.open)[0] || this.records[0];
    },

    rowOf(medium) {
        const row = document.createElement('tr');
        const states = [[medium.open, textKey('is open')], [medium.locked, textKey('is locked')],
            [medium.protected, textKey('write protected')]];
        const cell = dialogList.addCell(row, '');
        cell.innerHTML = '<div class="head"><b class="cut"></b><span></span></div>' +
            '<div class="bar"><div></div></div><div class="head"><span class="cut"></span><span></span></div>';
        const name = medium.drivename === medium.name ? medium.name : `${medium.drivename} ${medium.name}`;
        cell.title = medium.folder;
        cell.querySelector('b').textContent = name;
        cell.querySelector('b + span').textContent = medium.kindLabel;
        const use = medium.use;
        cell.querySelector('.bar div').style.width =
            `${use.capacity > 0 ? Math.min(100, 100 * use.used / use.capacity) : 0}%`;
        const room = translate('%1 of %2').replace('%1', use.usedLabel || '').replace('%2', use.capacityLabel || '');
        cell.querySelector('.bar + .head .cut').textContent = room;
        cell.querySelector('.bar + .head .cut + span').textContent =
            states.filter(([holds]) => holds).map(([, key]) => translate(key)).join(', ');
        return row;
    },

    chosenAnew() {
        mediaPage.showButtons();
    },

    // Arrows choose, Enter opens.
    key(event) {
        if (!this.step(event).isTaken && event.keyCode === 13) {
            event.preventDefault();
            mediaPage.open();
        }
    }
});

const mediaPage = Object.assign(dialogFrame(fileopendialog), {
    media: [],
    uses: {}, // room by name, looked at now and then
    lookedAt: 0,

    initialize() {
        this.begin(() => this.update());
        zeb4func.enableUserOperationLog(fileopendialog, 'body');
        mediaRecordings.begin();
        mediaList.beginChoices(this);
        const list = byId('media');
        list.addEventListener('dblclick', () => this.guarded(() => this.open()));
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
        before.filter(medium => !this.isThere(medium)).forEach(medium => this.tellGone(medium));
        this.lookAtRoom(false);
        mediaRecordings.update();
        this.show();
    },

    // Whoever counts the files of a medium looks at each of them.
    lookAtRoom(isNow) {
        const OFTEN = 2000;
        if (!isNow && Date.now() - this.lookedAt < OFTEN &&
            this.media.every(medium => this.uses[mediaList.nameOf(medium)])) {
            return;
        }
        this.uses = {};
        this.media.forEach(medium => {
            this.uses[mediaList.nameOf(medium)] = JSON.parse(
                fileopendialog.getUse(medium.kind, medium.type, medium.drive, medium.slot) || '{}');
        });
        this.lookedAt = Date.now();
    },

    tell(text) {
        byId('note').textContent = text;
    },

    isThere(medium) {
        return this.media.some(other => mediaList.nameOf(other) === mediaList.nameOf(medium));
    },

    tellGone(medium) {
        this.tell(translate('%1 was pulled out.').replace(/%1/, () => medium.name));
    },

    show() {
        mediaList.take(this.media.map(medium =>
            Object.assign({ use: this.uses[mediaList.nameOf(medium)] || {} }, medium)));
        this.showButtons();
    },

    // A button that can't be pressed says why.
    grey(id, fault) {
        byId(id).disabled = fault !== '';
        byId(id).title = fault === '' ? '' : translate(fault);
    },

    showButtons() {
        const medium = mediaList.chosen();
        const none = medium ? '' : textKey('No medium is chosen.');
        const isProtected = medium && medium.protected ? textKey('It is write protected.') : '';
        const act = medium && medium.open ? textKey('Close medium') : textKey('Open');
        byId('open').textContent = translate(act);
        this.grey('open', none);
        const inCamera = medium && !medium.formattable ? textKey('An SD card is formatted in its camera.') : '';
        const locked = medium && medium.locked ? textKey('It is locked by a password.') : '';
        this.grey('format', none || inCamera || isProtected || locked);
        const other = medium && !medium.hasPassword ? textKey('Only a QUIK Drive has a password.') : '';
        this.grey('password', none || other || isProtected);
        mediaRecordings.showButtons();
    },

    open() {
        const medium = mediaList.chosen();
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
        const medium = mediaList.chosen();
        const question = translate('Erase all data of %1?').replace(/%1/, () => medium.name);
        if (!fileopendialog.confirm([question, medium.folder].join('\n'))) {
            return;
        }
        this.update();
        if (!this.isThere(medium)) {
            this.tellGone(medium);
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
        const medium = mediaList.chosen();
        fileopendialog.setQuikDrivePassword(medium.type, medium.drive);
        this.update();
    }
});

document.addEventListener('DOMContentLoaded', () => mediaPage.initialize());
