// The recordings that can be saved, a row each; the chosen one is looked at.

const PREVIEW_WIDTH = 300;
const PREVIEW_HEIGHT = 200;

const saveTargets = recordingList('targets', {
    // There are some: the page saves, and does not only say how.
    isThere: typeof saveBridge.save === 'function',
    isTickedAtFirst: true,

    begin() {
        Array.from(document.querySelectorAll('.of_targets')).forEach(part => { part.hidden = !this.isThere; });
        if (!this.isThere) {
            document.body.classList.add('alone');
            // Names are shown as those of the first camera that is selected, with the numbers of all.
            saveBridge.countSelectedDocs();
            const key = saveBridge.getSelectDocKey() || Number(saveBridge.getSelectedDockey()[0] || 0);
            saveBridge.select(key, saveBridge.getSelectPartitionNo() || 1, 1, 1);
        }
        this.beginList(savePage);
    },

    update() {
        const reply = this.isThere ? saveBridge.list(false) : '[]';
        if (reply === '') {
            return; // it has been told why
        }
        this.take(JSON.parse(reply));
        this.tellTicked();
    },

    nameOf(record) {
        return record.dockey === undefined ? null : `${record.dockey}/${record.partitionno}`;
    },

    rowOf(record) {
        const row = document.createElement('tr');
        if (record.absent !== undefined) {
            row.className = 'absent';
            dialogList.addCell(row, '');
            dialogList.addCell(row, record.absent).colSpan = 4;
            return row;
        }
        this.fillName(dialogList.addCell(row, ''), record);
        dialogList.addCell(row, `${record.first} \u2026 ${record.last}`, 'range');
        dialogList.addCell(row, record.exportframes === record.saveframes ? record.saveframes :
            `${record.exportframes} / ${record.saveframes}`, 'number');
        dialogList.addCell(row, record.capacitylabel, 'number');
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

    pictureOf(record) {
        return record.gone ? '' :
            saveBridge.select(record.dockey, record.partitionno, PREVIEW_WIDTH, PREVIEW_HEIGHT);
    },

    factsOf(record) {
        return record.gone ? [record.label, record.gone] :
            [record.label, record.resolution, translate('%1 fps').replace('%1', record.recordrate), record.ipaddress];
    },

    chosenAnew() {
        savePage.show();
    },

    // Keys of the cameras of which something is saved.
    keys() {
        return Array.from(new Set(this.ticked().map(record => record.dockey)));
    },

    tickedAnew() {
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
        const there = this.ticked().filter(record => !record.gone);
        const sum = member => there.reduce((total, record) => total + (record[member] || 0), 0);
        return { frames: sum('exportframes'), bytes: sum('capacity') };
    },

    tellSum() {
        if (!this.isThere) {
            return;
        }
        const { frames, bytes } = saveFamily === 'L' ? JSON.parse(saveBridge.getTotals() || '{}') : this.totals();
        const text = translate('%1 of %2 recordings, %3 frames, %4 of image data');
        byId('sum').textContent = text.replace('%1', this.ticked().length).replace('%2', this.choices().length)
            .replace('%3', frames).replace('%4', saveBridge.capcityToString([bytes || 0]));
    },

    // The recording by which the files are called that are shown; a layout goes by its first one.
    named() {
        return saveFamily === 'L' ? this.ticked()[0] : this.chosen();
    },

    fault() {
        const ticked = this.ticked();
        const fault = ticked.length === 0 ? textKey('No recording is chosen.') :
            ticked.every(record => record.gone) ? textKey('None of the chosen recordings is there any more.') : '';
        return this.isThere && fault !== '' ? translate(fault) : '';
    }
});
