// The panels around the table.
Object.assign(wrentabledialog_obj, {
    // Shows the record status on the two buttons.
    recStatusChanged(status, label) {
        this.isCtsReady = status === this.RECORD_STATUS_CTS_READY;
        const look = this.recordLook(status, label);
        const signature = JSON.stringify(look);
        if (this.recordSignature !== signature) {
            this.recordSignature = signature;
            showButton('timeline_rec_exec', look.record);
            showButton('timeline_rec_cancel', look.cancel);
        }
        $('#timeline_rec_exec').data('status', status);
    },

    recordLook(status, label) {
        const coloured = key => ' ' + this.getRecButtonColorClass(wrentabledialog.getPrefString(key));
        const idle = text => ({
            record: { classes: 'rec-exec huge strong', mark: true, text },
            cancel: { classes: 'rec-cancel huge', mark: false, text: translate('Cancel') }
        });
        const armed = (classes, cancel) => ({
            record: { classes, mark: false, text: label },
            cancel: { classes: 'rec-cancel huge stat-pause', mark: true, text: translate(cancel) }
        });
        const base = 'rec-exec huge strong';
        switch (status) {
        case this.RECORD_STATUS_LIVE:
            return idle(label);
        case this.RECORD_STATUS_CTS_READY:
            return armed('rec-exec stat-ctsready huge strong', 'Cancel');
        case this.RECORD_STATUS_READY:
            return armed(base + coloured(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECREADY), 'Cancel');
        case this.RECORD_STATUS_RECORDING:
            return armed(base + coloured(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECORDING), 'Stop');
        default:
            return idle(translate('Record'));
        }
    },

    initializeRecordFilter() {
        const filter = document.getElementById('recordFilter');
        filter.value = String(wrentabledialog.getFilter());
        zeb4func.initSumoSelect('#recordFilter', 120, false, false, false, wrentabledialog);
        zeb4func.selectItemSumoSelect('#recordFilter', wrentabledialog.getFilter());
        filter.addEventListener('change', () => {
            this.preventSelect = false;
            this.update();
            this.selectAll();
        });
    },

    initializeGroupBox() {
        const box = document.getElementById('wrenGroupBox');
        box.textContent = '';
        const groups = parseReply(wrentabledialog.getGroups()) || [];
        groups.forEach((group, index) => box.appendChild(this.groupButton(group, index)));
        const buttons = Array.from(box.children);
        const stored = wrentabledialog.getGroup();
        const chosen = buttons.find(button => button.getAttribute('groupkey') === stored) || buttons[0];
        buttons.forEach(button => button.setAttribute('buttonselected', String(button === chosen)));
        this.showGroupBlock();
    },

    groupButton(group, index) {
        const button = document.createElement('input');
        const attributes = { type: 'button', class: 'groupButton', id: 'group_button_' + index, groupkey: group.key,
            value: group.name, 'group-name': group.name, title: group.name, buttonselected: 'false' };
        Object.keys(attributes).forEach(name => button.setAttribute(name, attributes[name]));
        button.addEventListener('click', () => this.chooseGroup(button));
        return button;
    },

    // The buttons stay disabled while the page shows the other group.
    chooseGroup(button) {
        this.preventSelectGroup = true;
        this.preventSelect = false;
        Array.from(button.parentNode.children).forEach(other => {
            other.setAttribute('buttonselected', String(other === button));
        });
        try {
            this.update();
        } finally {
            this.preventSelectGroup = false;
            zeb4func.disable('.groupButton', false);
        }
    },

    selectedGroup() {
        const button = document.querySelector('.groupButton[buttonselected="true"]');
        return button ? button.getAttribute('groupkey') : '';
    },

    showGroupBlock() {
        const filled = document.getElementById('wrenGroupBox').children.length > 0;
        showElement(document.getElementById('wrenGroupBlock'), filled);
    },

    // The custom information grid is empty, so there is nothing to write.
    refreshCustomInfoContainer() {
        zeb4func.disable('.edit-buttons .write', true);
    },

    updateExternalSyncArea() {
        const displayed = wrentabledialog.getPrefBool(PREF_KEY_WREN_DISPLAY_EXTERNAL_SYNC);
        const settings = parseReply(wrentabledialog.getSyncSettings());
        if (settings) {
            showElement(document.getElementById('external_sync_area'), Boolean(settings.syncEnable) && displayed);
        }
    },

    refreshActionArea() {
        if (wrentabledialog.isFileMode()) {
            return;
        }
        if (TABS[this.activeTab()].memory) {
            this.saveButtonChange(wrentabledialog.getPrefInt(PREF_KEY_SAVE_STATUS_ONLIVEMEMORYMODE));
        } else {
            this.refreshLiveControls();
        }
    },

    saveButtonChange(status) {
        const text = translate(status === PREF_VAL_SAVE_STATUS_LAYOUT ? 'Save layout' : 'Save');
        setText(document.querySelector('button.save-files').lastChild, text);
    },

    refreshLiveControls() {
        const testing = wrentabledialog.getTriggerTesting();
        document.getElementById('timeline_trigger_test').checked = testing;
        setText(document.getElementById('caption_trigger_test'), translate('Trigger Test'));
        setText(document.getElementById('caption_on_off'), translate(testing ? 'ON' : 'OFF'));

        const stopped = wrentabledialog.isStopLive();
        document.getElementById('timeline_stopLiveCheckbox').checked = stopped;
        zeb4func.disable('#timeline_updateLiveButton', !stopped);

        if (!this.isShownSelectBox()) {
            zeb4func.removeDummy();
        }
        setText(document.getElementById('recording_partition'), wrentabledialog.getCurrentPartitionName());
    },

    isShownSelectBox() {
        return this.isSnapshotListShown || wrentabledialog.isShownSelectBox();
    }
});

// A button's contents: a mark, which the style sheet draws, and a text.
function showButton(id, look) {
    const button = document.getElementById(id);
    button.className = look.classes;
    button.textContent = '';
    if (look.mark) {
        button.appendChild(document.createElement('span'));
    }
    button.appendChild(document.createTextNode(look.text));
}
