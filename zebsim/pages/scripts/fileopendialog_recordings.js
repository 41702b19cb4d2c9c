// The recordings on the open media, a row each; the chosen one is looked at, and what has a tick is worked on.

const PREVIEW_WIDTH = 300;
const PREVIEW_HEIGHT = 160;

const mediaRecordings = {
    records: [],
    ticked: new Set(), // document keys
    chosenKey: 0,
    previewTimer: 0,

    begin() {
        const list = byId('recordings');
        list.addEventListener('change', event => mediaPage.guarded(() => this.tick(event.target)));
        list.addEventListener('mousedown', event =>
            mediaPage.guarded(() => this.pick(event.target.closest('tbody tr'))));
        list.addEventListener('keydown', event => mediaPage.guarded(() => this.key(event)));
        byId('data_name').addEventListener('input', () => mediaPage.guarded(() => this.showButtons()));
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
        this.records = JSON.parse(reply).filter(record => record.drivename !== '');
        const keys = new Set(this.records.map(record => record.dockey));
        this.ticked = new Set(Array.from(this.ticked).filter(key => keys.has(key)));
        if (!keys.has(this.chosenKey)) {
            this.choose(this.records.length > 0 ? this.records[0].dockey : 0);
        }
        const body = byId('recordings').querySelector('tbody');
        dialogList.draw(body, this.records, record => this.rowOf(record));
        this.mark();
    },

    rowOf(record) {
        const row = document.createElement('tr');
        row.setAttribute('data-key', record.dockey);
        const tick = document.createElement('input');
        tick.type = 'checkbox';
        tick.tabIndex = -1;
        dialogList.addCell(row, '', 'tick').appendChild(tick);
        dialogList.addCell(row, record.datano, 'number');
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

    rows() {
        return Array.from(byId('recordings').querySelectorAll('tbody tr'));
    },

    keyOf(row) {
        return Number(row.getAttribute('data-key'));
    },

    mark() {
        this.rows().forEach(row => {
            row.classList.toggle('chosen', this.keyOf(row) === this.chosenKey);
            row.querySelector('input').checked = this.ticked.has(this.keyOf(row));
        });
        byId('all').checked = this.records.length > 0 && this.ticked.size === this.records.length;
        this.showButtons();
    },

    chosen() {
        return this.records.filter(record => record.dockey === this.chosenKey)[0];
    },

    // What has a tick; without ticks the one that is looked at.
    worked() {
        const ticked = this.records.filter(record => this.ticked.has(record.dockey));
        return ticked.length > 0 ? ticked : this.records.filter(record => record.dockey === this.chosenKey);
    },

    tick(box) {
        const row = box.closest('tbody tr');
        const keys = row ? [this.keyOf(row)] : this.records.map(record => record.dockey);
        keys.forEach(key => box.checked ? this.ticked.add(key) : this.ticked.delete(key));
        this.mark();
    },

    pick(row) {
        if (row) {
            this.choose(this.keyOf(row));
            this.mark();
        }
    },

    choose(key) {
        this.chosenKey = key;
        // A recording is read only once it stays chosen.
        clearTimeout(this.previewTimer);
        this.previewTimer = setTimeout(() => mediaPage.logged(() => this.showPreview()), 150);
    },

    // Arrows choose, Space ticks.
    key(event) {
        const rows = this.rows();
        const at = rows.findIndex(row => this.keyOf(row) === this.chosenKey);
        const next = dialogList.step(event, rows.length, at);
        if (next >= 0) {
            this.pick(rows[next]);
            rows[next].scrollIntoViewIfNeeded(false);
        } else if (event.keyCode === 32 && at >= 0 && event.target.tagName !== 'INPUT') {
            event.preventDefault();
            const box = rows[at].querySelector('input');
            box.checked = !box.checked;
            this.tick(box);
        }
    },

    showPreview() {
        const record = this.chosen();
        const picture = record ?
            fileopendialog.select(record.dockey, record.partitionno, PREVIEW_WIDTH, PREVIEW_HEIGHT) : '';
        byId('preview').src = picture === '' ? '' : `data:image/png;base64,${picture}`;
        byId('preview').hidden = picture === '';
        const list = byId('facts');
        list.textContent = '';
        [record && record.name, record && record.resolution,
            record && translate('%1 fps').replace('%1', record.recordrate),
            record && record.shutterspeed, record && record.devicename, record && record.serialno
        ].filter(text => text).forEach(text => {
            const line = document.createElement('dd');
            line.textContent = text;
            list.appendChild(line);
        });
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
        const names = worked.map(record => `${record.name}: ${record.filename}`).slice(0, 10);
        if (!fileopendialog.confirm([question].concat(names).join('\n'))) {
            return;
        }
        const left = worked.filter(record =>
            !fileopendialog.checkDeleteFile(record.dockey) || !fileopendialog.deleteFile(record.dockey));
        if (left.length > 0) {
            mediaPage.tell(translate('%1 could not be deleted.')
                .replace('%1', () => left.map(record => record.filename).join(', ')));
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
};
