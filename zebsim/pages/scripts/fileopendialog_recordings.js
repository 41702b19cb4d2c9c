// The recordings on the open media, a row each; the chosen one is looked at, and what has a tick is worked on.

const PREVIEW_WIDTH = 300;
const PREVIEW_HEIGHT = 160;

const mediaRecordings = recordingList('recordings', {
    isTickedAtFirst: false,
    namedName: null, // the recording whose data name stands in the field

    begin() {
        this.beginList(mediaPage);
        byId('data_name').addEventListener('input', () => mediaPage.guarded(() => this.showButtons()));
        byId('data_name').addEventListener('keydown', event => event.keyCode === 13 && byId('name').click());
        mediaPage.onClick('import', () => fileopendialog.importTarget(this.worked().map(record => record.dockey)));
        mediaPage.onClick('check', () => fileopendialog.savedCheck(this.worked()
            .filter(record => fileopendialog.canSavedCheck(record.dockey))
            .map(record => ({ datano: record.datano, serialno: record.serialno }))));
        mediaPage.onClick('delete', () => this.deleteFiles());
        mediaPage.onClick('name', () => this.name());
    },

    update() {
        const reply = fileopendialog.list(true);
        if (reply === '') {
            return; // it has been told why
        }
        this.take(JSON.parse(reply).filter(record => record.drivename !== ''));
        this.chosenAnew();
    },

    nameOf(record) {
        return String(record.dockey);
    },

    rowOf(record) {
        const row = document.createElement('tr');
        dialogList.addCell(row, record.datano, 'number');
        dialogList.addCell(row, record.drivename, 'medium');
        dialogList.addCell(row, record.name);
        dialogList.addCell(row, record.dataname);
        dialogList.addCell(row, record.filename);
        dialogList.addCell(row, `${record.date} ${record.time}`, 'date');
        dialogList.addCell(row, record.totalframes, 'number');
        dialogList.addCell(row, record.capacitylabel, 'number');
        if (record.style !== '') {
            row.setAttribute('style', record.style);
            row.title = translate('Files of this recording are missing.');
        }
        return row;
    },

    pictureOf(record) {
        return fileopendialog.select(record.dockey, record.partitionno, PREVIEW_WIDTH, PREVIEW_HEIGHT);
    },

    factsOf(record) {
        return [record.name, record.resolution, translate('%1 fps').replace('%1', record.recordrate),
            record.shutterspeed, record.devicename, record.serialno];
    },

    chosenAnew() {
        if (this.namedName !== this.chosenName) {
            this.namedName = this.chosenName;
            byId('data_name').value = (this.chosen() || { dataname: '' }).dataname;
        }
        this.showButtons();
    },

    tickedAnew() {
        this.showButtons();
    },

    // What has a tick; without ticks the one that is looked at.
    worked() {
        const ticked = this.ticked();
        return ticked.length > 0 ? ticked : [this.chosen()].filter(record => record);
    },

    showButtons() {
        const worked = this.worked();
        const none = worked.length > 0 ? '' : textKey('No recording is chosen.');
        const isFixed = worked.some(record => this.mediumOf(record).protected);
        const fixed = isFixed ? textKey('It is write protected.') : '';
        const empty = byId('data_name').value.trim() === '' ? textKey('There is no name.') : '';
        mediaPage.grey('import', none);
        mediaPage.grey('check', none);
        mediaPage.grey('delete', none || fixed);
        mediaPage.grey('name', none || fixed || empty);
    },

    mediumOf(record) {
        return mediaPage.media.filter(medium => medium.open && medium.drivename === record.drivename)[0] || {};
    },

    deleteFiles() {
        const worked = this.worked();
        const question = translate('Delete %1 recordings from their media?').replace('%1', worked.length);
        const names = worked.slice(0, 10).map(record =>
            `${record.drivename} ${record.name}: ${record.filename}, ${record.date} ${record.time}`);
        if (!fileopendialog.confirm([question].concat(names).join('\n'))) {
            return;
        }
        const left = worked.filter(record =>
            !fileopendialog.checkDeleteFile(record.dockey) || !fileopendialog.deleteFile(record.dockey));
        if (left.length > 0) {
            mediaPage.tell(translate('%1 could not be deleted.')
                .replace(/%1/, () => left.map(record => record.filename).join(', ')));
        }
        mediaPage.lookAtRoom(true);
        mediaPage.update();
    },

    name() {
        const name = byId('data_name').value.trim();
        this.worked().filter(record => fileopendialog.canConvertDataName(record.dockey)).forEach((record, index) =>
            fileopendialog.convertDataName(record.dockey, name, index + 1,
                this.mediumOf(record).kind === QUIK_DRIVE));
        mediaPage.update();
    }
});
