// The recordings that can be saved, a row each; the chosen one is looked at.

const PREVIEW_WIDTH = 300;
const PREVIEW_HEIGHT = 200;

const saveTargets = {
    // There are some: the page saves, and does not only say how.
    isThere: typeof saveBridge.save === 'function',
    records: [],
    leftOut: new Set(), // names of rows without a tick
    chosenName: '',
    previewTimer: 0,

    begin() {
        Array.from(document.querySelectorAll('.of_targets')).forEach(part => { part.hidden = !this.isThere; });
        if (!this.isThere) {
            document.body.classList.add('alone');
            // Names are shown as those of the first camera that is selected, with the numbers of all.
            saveBridge.countSelectedDocs();
            const key = saveBridge.getSelectDocKey() || Number(saveBridge.getSelectedDockey()[0] || 0);
            saveBridge.select(key, saveBridge.getSelectPartitionNo() || 1, 1, 1);
        }
        byId('all').addEventListener('change', () => savePage.guarded(() => this.tickAll(byId('all').checked)));
        const list = byId('targets');
        list.addEventListener('change', event => savePage.guarded(() => this.tick(event.target)));
        list.addEventListener('mousedown', event =>
            savePage.guarded(() => this.pick(event.target.closest('tbody tr'))));
        list.addEventListener('keydown', event => savePage.guarded(() => this.key(event)));
    },

    nameOf(record) {
        return `${record.dockey}/${record.partitionno}`;
    },

    update() {
        const reply = this.isThere ? saveBridge.list(false) : '[]';
        if (reply === '') {
            return; // it has been told why
        }
        this.records = JSON.parse(reply);
        if (!this.chosen()) {
            const first = this.records.filter(record => record.dockey !== undefined)[0];
            this.choose(first ? this.nameOf(first) : '');
        }
        this.draw();
        this.tellTicked();
    },

    rows() {
        return Array.from(byId('targets').querySelectorAll('tbody tr'));
    },

    draw() {
        dialogList.draw(byId('targets').querySelector('tbody'), this.records, record => this.rowOf(record));
        this.mark();
    },

    rowOf(record) {
        const row = document.createElement('tr');
        const cell = (text, className) => {
            const td = document.createElement('td');
            td.textContent = text;
            td.className = className || '';
            row.appendChild(td);
            return td;
        };
        if (record.absent !== undefined) {
            row.className = 'absent';
            cell('');
            cell(record.absent).colSpan = 4;
            return row;
        }
        row.setAttribute('data-name', this.nameOf(record));
        const tick = document.createElement('input');
        tick.type = 'checkbox';
        tick.tabIndex = -1;
        cell('', 'tick').appendChild(tick);
        this.fillName(cell(''), record);
        cell(`${record.first} \u2026 ${record.last}`, 'range');
        cell(record.exportframes === record.saveframes ? record.saveframes :
            `${record.exportframes} / ${record.saveframes}`, 'number');
        cell(record.capacitylabel, 'number');
        row.classList.toggle('gone', record.gone !== undefined);
        return row;
    },

    // Partitions of a camera differ at the end of their labels, which is not to be cut off.
    fillName(cell, record) {
        const isLonger = record.label.indexOf(record.camera) === 0;
        const end = isLonger ? record.label.slice(record.camera.length) : '';
        cell.title = record.label;
        cell.innerHTML = '<div class="name"><span class="cut"></span><span></span></div>';
        cell.querySelector('.cut').textContent = isLonger ? record.camera : record.label;
        cell.querySelector('.cut + span').textContent = record.gone ? `${end}: ${record.gone}` : end;
    },

    // Ticks, and the row that is looked at.
    mark() {
        this.rows().forEach(row => {
            const name = row.getAttribute('data-name');
            row.classList.toggle('chosen', name === this.chosenName);
            if (name !== null) {
                row.querySelector('input').checked = !this.leftOut.has(name);
            }
        });
        const names = this.names();
        byId('all').checked = names.length > 0 && names.every(name => !this.leftOut.has(name));
    },

    names() {
        return this.records.filter(record => record.dockey !== undefined).map(record => this.nameOf(record));
    },

    ticked() {
        return this.records.filter(record => record.dockey !== undefined && !this.leftOut.has(this.nameOf(record)));
    },

    // Keys of the cameras of which something is saved.
    keys() {
        return Array.from(new Set(this.ticked().map(record => record.dockey)));
    },

    chosen() {
        return this.records.filter(record => record.dockey !== undefined && this.nameOf(record) === this.chosenName)[0];
    },

    tickAll(isOn) {
        this.leftOut = new Set(isOn ? [] : this.names());
        this.tickedAnew();
    },

    tick(box) {
        const row = box.closest('tbody tr');
        if (row) {
            const name = row.getAttribute('data-name');
            if (box.checked) {
                this.leftOut.delete(name);
            } else {
                this.leftOut.add(name);
            }
            this.tickedAnew();
        }
    },

    tickedAnew() {
        this.mark();
        this.tellTicked();
        saveSkip.update();
        savePage.show();
    },

    // What is to be saved, for the reckoning of the skip and for the save itself.
    tellTicked() {
        if (!this.isThere) {
            return;
        }
        const targets = {};
        this.ticked().forEach(record => {
            targets[record.dockey] = (targets[record.dockey] || []).concat(record.partitionno);
        });
        saveBridge.refreshSkipFrame(targets);
        this.tellSum();
    },

    totals() {
        const sum = member => this.ticked().reduce((total, record) => total + (record[member] || 0), 0);
        return { frames: sum('exportframes'), bytes: sum('capacity') };
    },

    tellSum() {
        if (!this.isThere) {
            return;
        }
        const { frames, bytes } = saveFamily === 'L' ? JSON.parse(saveBridge.getTotals() || '{}') : this.totals();
        const text = translate('%1 of %2 recordings, %3 frames, about %4');
        byId('sum').textContent = text.replace('%1', this.ticked().length).replace('%2', this.names().length)
            .replace('%3', frames).replace('%4', saveBridge.capcityToString([bytes || 0]));
    },

    pick(row) {
        const name = row && row.getAttribute('data-name');
        if (name && name !== this.chosenName) {
            this.choose(name);
            this.mark();
            savePage.show();
        }
    },

    choose(name) {
        this.chosenName = name;
        this.showPreviewSoon();
    },

    // The recording by which the files are called that are shown; a layout goes by its first one.
    named() {
        return saveFamily === 'L' ? this.ticked()[0] : this.chosen();
    },

    // Arrows choose, Space ticks.
    key(event) {
        const rows = this.rows().filter(row => row.hasAttribute('data-name'));
        const at = rows.findIndex(row => row.getAttribute('data-name') === this.chosenName);
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

    // A camera is asked only once it stays chosen.
    showPreviewSoon() {
        clearTimeout(this.previewTimer);
        this.previewTimer = setTimeout(() => savePage.logged(() => this.showPreview()), 150);
    },

    showPreview() {
        const record = this.chosen();
        const picture = record && !record.gone ?
            saveBridge.select(record.dockey, record.partitionno, PREVIEW_WIDTH, PREVIEW_HEIGHT) : '';
        byId('preview').src = picture === '' ? '' : `data:image/png;base64,${picture}`;
        byId('preview').hidden = picture === '';
        this.showFacts(record);
        savePage.show();
    },

    showFacts(record) {
        const list = byId('facts');
        list.textContent = '';
        [record && record.label, record && record.resolution,
            record && translate('%1 fps').replace('%1', record.recordrate),
            record && record.ipaddress].filter(text => text).forEach(text => {
            const line = document.createElement('dd');
            line.textContent = text;
            list.appendChild(line);
        });
    },

    fault() {
        return this.isThere && this.ticked().length === 0 ? translate('No recording is chosen.') : '';
    }
};
