// From `getRecords` to the rows.
Object.assign(wrentabledialog_obj, {
    // A full refresh brings the list of cameras and draws every row; an automatic one only what rows show already.
    // One that got no list is owed, and made at the next refresh of any kind.
    refreshRecords(tabkey, isAuto) {
        const isFull = !isAuto || this.owesRebuild;
        const data = this.fetchRecords(tabkey);
        this.owesRebuild = isFull && !data;
        if (!data) {
            return;
        }
        const view = viewAt(tabkey);
        const autoUpdate = !attention.collect(data.records, isFull) && !isFull;
        const records = attention.list(data.records);
        const batch = attention.batch(data.batch, records);
        view.status = this.readListStatus(records);
        view.setNewest(data.records, records, batch);
        if (!autoUpdate) {
            this.closeFloating();
            numberBox.giveUp(draft => !isBatch(draft) && !view.newest.has(draft.key));
            this.refreshRecords_w2ui(records, batch, view.grid);
        }
        this.refreshSelectedRecords(records, view.grid);
        if (autoUpdate) {
            view.tick();
        } else {
            zeb4func.updateUserOperationLogHandler('#wren-root-block');
        }
        if (this.iconsDrawn) {
            this.iconsDrawn = false;
            zeb4func.updateUserOperationLogHandler('.wren_effect_icons');
        }
    },

    // Null when the bridge gave no list.
    fetchRecords(tabkey) {
        const filter = Number(document.getElementById('recordFilter').value);
        return recordReplies.ask({ group: this.selectedGroup(), filter, tab: tabkey });
    },

    refreshRecords_w2ui(records, batch, grid) {
        this.isRebuilding = true;
        try {
            viewOf(grid).setRecords(records, batch);
        } finally {
            this.isRebuilding = false;
        }
    },

    // What holds for all rows at once, asked once a refresh.
    readListStatus(records) {
        const ready = wrentabledialog.isRecReady();
        const recording = wrentabledialog.isRecording();
        const taken = wrentabledialog.isOtherPluginOpen();
        const exporting = wrentabledialog.isRecordDuringExporting();
        const whyBlocked = reasons.of([taken && 'OTHER-PLUGIN-OPEN'])
            .concat(exporting ? translated(textKey('A recording is being saved.')) : []);
        const why = reasons.of([this.isCtsReady && 'CTSREADY', ready && 'READY', recording && 'RECORDING'])
            .concat(whyBlocked);
        return {
            style: this.rowStyle(ready, recording, taken || exporting),
            disabled: why.length > 0,
            why: why.join(' '),
            whyBlocked: whyBlocked.join(' '),
            allLocked: records.length > 0 && records.every(record => record.lock)
        };
    },

    // True while another plug-in or an export has the cameras.
    isBlocked() {
        return wrentabledialog.isOtherPluginOpen() || wrentabledialog.isRecordDuringExporting();
    },

    // True while the page must accept no input in the rows.
    getListDisableStatus() {
        return this.readListStatus([]).disabled;
    },

    rowStyle(ready, recording, blocked) {
        if (blocked) {
            return 'color: black !important;background: lightgray !important;';
        }
        if (!ready && !recording) {
            return '';
        }
        const colour = wrentabledialog.getPrefString(recording
            ? PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECORDING
            : PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECREADY);
        return `color: white !important;background: ${colour} !important;`;
    }
});

function viewOf(grid) {
    return views.find(view => view && view.grid === grid);
}
