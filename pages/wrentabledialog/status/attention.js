// What a batch record has of no camera.
const BATCH_MEMBERS = ['recid', 'key', 'recordCount', 'alert', 'cameraStatus', 'syncStatus', 'ipAddress', 'comment',
    'comments', 'externalSync', 'triggerIn', 'triggerSwIn', 'irigTimeStamp', 'irigSync', 'irigSupported', 'plugins'];

// The rows that need a look, and no others. It is the page's own view, beside group and filter. A row that comes right
// stays until the view is left, and one that joins stands last, so that no press lands on another than was meant.
const attention = {
    on: false,
    keys: new Set(), // of the rows that stand
    shown: null, // key of the camera behind the batch row, where the back end has one that does not stand
    hidden: '', // key of that one

    initialize() {
        onClick('#wren_attention', () => {
            this.on = !this.on;
            this.keys.clear();
            wrentabledialog_obj.update();
        });
    },

    // Those of the records that are listed, in the order in which they have joined.
    list(records) {
        if (!this.on) {
            return records;
        }
        const byKey = new Map();
        records.forEach(record => byKey.set(record.key, record));
        return Array.from(this.keys).filter(key => byKey.has(key)).map(key => byKey.get(key));
    },

    // Takes in what needs a look by now. Answers whether that are other rows than before, which only a full refresh
    // makes; not while the user is at something that this would take away.
    collect(records, isFull) {
        if (!this.on || (!isFull && (dropDown.cell || numberBox.held || lowLightSlider.held))) {
            return false;
        }
        const needsLock = wrentabledialog.isLiveMode() && wrentabledialog.getPrefBool(PREF_KEY_WREN_DISPLAY_LOCK);
        const odd = resultList.oddKeys();
        const { size } = this.keys;
        records.filter(record => this.needsLook(record, needsLock) || odd.has(record.key))
            .forEach(record => this.keys.add(record.key));
        return this.keys.size > size;
    },

    needsLook(record, needsLock) {
        return !record.connected || Boolean(record.alert) || needsLock && !record.lock ||
            record.syncStatus === 'Over Sync';
    },

    // The batch row says that it stands for these alone, and shows the values of one of them.
    batch(batch, records) {
        const present = String(wrentabledialog.getBatchDocKey());
        // A row that joins must not turn the batch row over while a hand is on its way to it.
        const kept = this.on && present === this.hidden && records.find(record => record.key === this.shown);
        this.shown = null;
        this.hidden = present;
        if (!this.on || batch.length === 0) {
            return batch;
        }
        const last = records.filter(record => record.connected).pop() || records[records.length - 1];
        const other = kept || (last && !this.keys.has(present) ? last : null);
        const own = wrentabledialog.isLiveMode() ? BATCH_MEMBERS : BATCH_MEMBERS.concat('frameRate');
        const record = Object.assign({}, other || batch[0]);
        own.filter(() => other).forEach(name => { record[name] = batch[0][name]; });
        this.shown = other && other.key;
        record.cameraName = withValues(textKey('These %1 cameras'), records.length);
        record.recordCount = records.length;
        record.connected = record.connected && records.length > 0;
        return [record];
    },

    // Of the camera whose values the batch row shows.
    batchKey() {
        return this.shown || String(wrentabledialog.getBatchDocKey());
    },

    refreshButton() {
        const button = document.getElementById('wren_attention');
        setMark(button, 'chosen', this.on ? '' : null);
        setMark(button, 'aria-pressed', String(this.on));
    }
};
