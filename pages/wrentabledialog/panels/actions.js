const LATE_PRESS = 200; // ms

// The panels around the table: what is done with all cameras at once.
Object.assign(wrentabledialog_obj, {
    initializeCommonParts() {
        textTip('#wrenGroupBox', '.groupButton', button => button.getAttribute('group-name'));
        onClick('#wrentabledialog_defaultsettings', () => this.editDefaultSettings());
        onClick('#wren_io_setting', () => wrentabledialog.openPrefsDialog('s_io'));
        onClick('#wren_ethernet_setting', () => wrentabledialog.openPrefsEthernetSettings());
        onClick('#wrenBatchLowlightBlock_ON', () => wrentabledialog.setLowLight([], true));
        onClick('#wrenBatchLowlightBlock_OFF', () => wrentabledialog.setLowLight([], false));
        onClick('#livecontrol_save_button', () => wrentabledialog.saveRigx());
        onClick('#livecontrol_load_button', () => this.loadSettings());
        this.initializeCustomInfoContainer();
        this.initializeCameraManagementContainer();
        this.initializeExternalSyncArea();
        this.initializeMenus();
        statusLine.initialize();
        keyHelp.initialize();
        keyboardHome.initialize();
    },

    // What the dialog has changed shows at once.
    editDefaultSettings() {
        this.preventSelect = false;
        wrentabledialog.openDefaultSettingsDialog();
        this.initializeGroupBox();
        this.updateExternalSyncArea();
        this.refreshDisplayElement();
        this.refreshRecords(this.activeTab(), false);
        this.resizeTableElements();
    },

    loadSettings() {
        this.preventSelect = false;
        wrentabledialog.loadRigx();
    },

    initializeSaveContainer() {
        onClick('button.save-files', () => {
            if (wrentabledialog.getPrefInt(PREF_KEY_SAVE_STATUS_ONLIVEMEMORYMODE) === PREF_VAL_SAVE_STATUS_LAYOUT) {
                wrentabledialog.saveLayout();
            } else {
                wrentabledialog.save();
            }
        });
        onClick('li a.save-files', () => wrentabledialog.save());
        onClick('li a.save-layout', () => wrentabledialog.saveLayout());
    },

    initializeRecordingContainer() {
        // At the press already, not at the click: recording can't wait.
        onPress('#timeline_rec_exec', button => this.pressRecord(button));
        onPress('#timeline_rec_cancel', button => this.pressCancel(button));
        document.querySelector('.exec-recording').addEventListener('mousedown', event => this.pressBeside(event));
        onSwitch('#timeline_trigger_test', on => wrentabledialog.setTriggerTesting(on));
        onSwitch('#timeline_stopLiveCheckbox', on => wrentabledialog.stopLive(on));
        onClick('#timeline_updateLiveButton', () => wrentabledialog.updateLive());
        onClick('.snapshot-file', () => wrentabledialog.snapShot(1));
        onClick('.snapshot-clip', () => wrentabledialog.snapShot(2));
        onClick('.snapshot-both', () => wrentabledialog.snapShot(3));
        onClick('.snapshot-setting', () => wrentabledialog.snapShot(4));
    },

    // A press means what the button shows. Where the recording has moved on since, the press goes for nothing: who
    // stops one that has just ended must not arm the cameras. Without a status it is left to the back end.
    pressRecord(button) {
        const shown = $(button).data('status');
        const text = button.textContent;
        const waits = this.isPressed || wrentabledialog.inCall;
        const status = waits ? null : this.showRecStatus();
        if (waits || (status !== null && status !== shown)) {
            refusePress(button, text);
            return;
        }
        const began = Date.now();
        this.isPressed = true;
        this.isStarting = status === this.RECORD_STATUS_LIVE;
        this.keepStartDisabled();
        reasons.own.set('#timeline_rec_exec', translated(textKey('The cameras are being armed.')));
        reasons.show();
        try {
            wrentabledialog.record();
        } finally {
            this.isStarting = false;
            reasons.own.delete('#timeline_rec_exec');
            this.endPress(Date.now() - began);
        }
    },

    pressCancel(button) {
        if (wrentabledialog.inCall) {
            refusePress(button, button.textContent);
        } else {
            wrentabledialog.cancelRecord();
        }
    },

    // While the record button is disabled, a press on it falls on what it stands in.
    pressBeside(event) {
        const button = document.getElementById('timeline_rec_exec');
        const { left, right, top, bottom } = button.getBoundingClientRect();
        const { clientX: x, clientY: y } = event;
        const beside = !event.button && !button.contains(event.target);
        if (button.disabled && beside && x >= left && x < right && y >= top && y < bottom) {
            refusePress(button, button.textContent);
        }
    },

    // After a call that lasted, presses come that waited for its end. They mean what was shown before it.
    endPress(lasted) {
        if (lasted < LATE_PRESS) {
            this.isPressed = false;
        } else {
            window.setTimeout(() => this.endPress(0), LATE_PRESS);
        }
    },

    // Against a double start; the first cycle after the call enables the button again.
    keepStartDisabled() {
        if (this.isStarting) {
            document.getElementById('timeline_rec_exec').disabled = true;
        }
    },

    // Asks for the record status and shows it. Null, and the buttons as they were, when there is none.
    showRecStatus() {
        const status = parseReply(wrentabledialog.getRecStatus());
        if (status === null || typeof status.recStatus !== 'number') {
            return null;
        }
        this.recStatusChanged(status.recStatus, status.recStatusLabel);
        return status.recStatus;
    },

    // Shows the record status on the two buttons.
    recStatusChanged(status, label) {
        this.isCtsReady = status === this.RECORD_STATUS_CTS_READY;
        const look = this.recordLook(status, label);
        showButton('timeline_rec_exec', look.record);
        showButton('timeline_rec_cancel', look.cancel);
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
            cancel: { classes: 'rec-cancel huge stat-pause', mark: true, text: cancel }
        });
        const base = 'rec-exec huge strong';
        switch (status) {
        case this.RECORD_STATUS_LIVE:
            return idle(label);
        case this.RECORD_STATUS_CTS_READY:
            return armed('rec-exec stat-ctsready huge strong', translate('Cancel'));
        case this.RECORD_STATUS_READY:
            return armed(base + coloured(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECREADY), translate('Cancel'));
        case this.RECORD_STATUS_RECORDING:
            return armed(base + coloured(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECORDING), translate('Stop'));
        default:
            return idle(translate('Record'));
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
        const text = status === PREF_VAL_SAVE_STATUS_LAYOUT ? translate('Save layout') : translate('Save');
        setText(document.querySelector('button.save-files').lastChild, text);
    },

    refreshLiveControls() {
        const testing = wrentabledialog.getTriggerTesting();
        document.getElementById('timeline_trigger_test').checked = testing;
        setText(document.getElementById('caption_trigger_test'), translate('Trigger Test'));
        setText(document.getElementById('caption_on_off'), testing ? translate('ON') : translate('OFF'));

        const stopped = wrentabledialog.isStopLive();
        document.getElementById('timeline_stopLiveCheckbox').checked = stopped;
        reasons.grey('#timeline_updateLiveButton', !stopped, translated(textKey('Only while live is stopped.')));

        const partition = document.getElementById('recording_partition');
        setStyle(partition, 'display', 'inline');
        this.removeIdleDummy();
        setText(partition, wrentabledialog.getCurrentPartitionName());
    }
});

// A button's contents: a mark, which the style sheet draws, and a text.
function showButton(id, look) {
    const button = document.getElementById(id);
    setClass(button, look.classes);
    if (button.textContent === look.text && (button.firstElementChild !== null) === look.mark) {
        return;
    }
    button.textContent = look.text;
    if (look.mark) {
        button.insertBefore(document.createElement('span'), button.firstChild);
    }
}
