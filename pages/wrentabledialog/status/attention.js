// The rows that need a look, and no others. It is the page's own view, beside group and filter. A row that comes right
// stays until the view is left, so that no press lands on the one below it.
const attention = {
    on: false,
    keys: new Set(), // of the rows that stand

    initialize() {
        onClick('#wren_attention', () => {
            this.on = !this.on;
            this.keys.clear();
            wrentabledialog_obj.update();
        });
    },

    // Those of the records that are listed.
    list(records) {
        if (!this.on) {
            return records;
        }
        const needsLock = wrentabledialog.isLiveMode() && wrentabledialog.getPrefBool(PREF_KEY_WREN_DISPLAY_LOCK);
        const odd = resultList.oddKeys();
        records.forEach(record => {
            if (this.needsLook(record, needsLock) || odd.has(record.key)) {
                this.keys.add(record.key);
            }
        });
        return records.filter(record => this.keys.has(record.key));
    },

    needsLook(record, needsLock) {
        return !record.connected || Boolean(record.alert) || needsLock && !record.lock ||
            record.syncStatus === 'Over Sync';
    },

    // The batch row says that it stands for these alone.
    batch(batch, records) {
        return !this.on ? batch : batch.map(record =>
            Object.assign({}, record, { cameraName: withValues(textKey('These %1 cameras'), records.length) }));
    },

    refreshButton() {
        const button = document.getElementById('wren_attention');
        if (button.hasAttribute('chosen') !== this.on) {
            button[this.on ? 'setAttribute' : 'removeAttribute']('chosen', '');
        }
    }
};
