// The list of custom information on its way from and to files and cameras.

// The items of a reply; null after a failure, which has been told.
function itemsOf(reply) {
    const items = parseReply(reply);
    return Array.isArray(items) ? items : null;
}

Object.assign(wrentabledialog_obj, {
    initializeCustomInfoContainer() {
        customList.create(document.querySelector('.custom-data-list'));
        // What is being typed comes first.
        const onCustomClick = (name, work) => onClick('.edit-buttons .' + name, () => customEditor.commit() && work());
        onCustomClick('read', () => this.readCustomInfo());
        onCustomClick('write', () => this.writeCustomInfo());
        onCustomClick('apply', () => this.applyCustomInfo());
        onCustomClick('loadCamera', () => this.loadCurrentCamera());
    },

    refreshCustomInfoContainer() {
        const empty = customList.items().length === 0;
        reasons.grey('.edit-buttons .write', this.gridLock || empty,
            translated(empty ? textKey('The list is empty.') : controls['FILE-MODE'].why));
    },

    appendRecordEnd() {
        customList.appendRecordEnd();
    },

    // The items as the bridge takes them.
    getCustomDatas() {
        return customList.items().map(({ name, value, unit, display }) => ({ name, value, unit, display }));
    },

    // Throws with the first fault.
    validateCustomInfo() {
        const records = customList.records();
        customList.items().forEach(item => {
            const fault = faultOfItem(item, records);
            if (fault) {
                throw new Error(fault);
            }
        });
    },

    deleteCustomInfoRecord() {
        const meant = customList.meant();
        const isWanted = !this.gridLock && meant.length > 0 && wrentabledialog.confirm(textKey('Delete. Is it OK?'));
        if (!isWanted || this.gridLock) {
            return;
        }
        const line = Math.min(...meant.map(item => customList.indexOf(item.recid)));
        customList.setItems(customList.records().filter(item => !meant.includes(item)));
        customList.keepBlankRow();
        const records = customList.records();
        customList.choose([], { recid: records[Math.min(line, records.length - 1)].recid, column: 0 });
        customList.bringIntoView(customList.current.recid);
    },

    // A file that holds nothing has been told of, and leaves the list as it is.
    readCustomInfo() {
        const items = itemsOf(wrentabledialog.loadCustomSettingsXml());
        if (items && items.length > 0) {
            this.showCustomInfo(items);
            this.appendRecordEnd();
        }
    },

    writeCustomInfo() {
        this.validateCustomInfo();
        const items = this.getCustomDatas();
        if (items.length > 0) {
            wrentabledialog.saveCustomSettingsXml(JSON.stringify(items));
        }
    },

    applyCustomInfo() {
        this.validateCustomInfo();
        const list = JSON.stringify(this.getCustomDatas());
        const sorted = JSON.stringify(zeb4func.hashSort(JSON.parse(list)));
        const { records, last } = this.activeGrid();
        const keys = last.selection.indexes.map(index => records[index].key);
        let overwrites = false;
        for (const key of keys) {
            const present = itemsOf(wrentabledialog.getCustomSettings(key, true));
            if (present === null) {
                return;
            }
            overwrites = overwrites || present.length > 0 && JSON.stringify(zeb4func.hashSort(present)) !== sorted;
        }
        const question = textKey('Overwrite custom information for the selected camera. Is it OK?');
        if (!overwrites || wrentabledialog.confirm(question)) {
            wrentabledialog.setCustomSettings(keys, list);
        }
        if (keys.length === 0) {
            wrentabledialog.alert(textKey('No camera is selected.'));
        }
    },

    loadCurrentCamera() {
        const { newest } = viewAt(this.activeTab()); // all of the list, whether they stand or not
        const current = Array.from(newest.values()).find(record => record.current);
        if (current) {
            this.selectDevice(current.key);
        }
        customList.keepBlankRow();
    },

    // Takes over the list of a camera, an empty one too.
    selectDevice(key) {
        this.customInfoLoading = true;
        try {
            const items = key >= 0 ? itemsOf(wrentabledialog.getCustomSettings(key)) : null;
            if (items) {
                this.showCustomInfo(items);
            }
            if (customList.records().length === 0) {
                this.appendRecordEnd();
            }
        } catch (error) {
            wrentabledialog.alert(textOfError(error));
        } finally {
            this.customInfoLoading = false;
        }
    },

    showCustomInfo(items) {
        customList.setItems(items.map(({ name = '', value = '', unit = '', display }, index) =>
            ({ recid: index + 1, name, value, unit, display: display === true })));
    }
});
