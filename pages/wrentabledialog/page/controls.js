// What the states of the application disable, hide and do. See `zeb4func.setDisable`.
const MANAGEMENT = ['#livecontrol_ip1', '#livecontrol_ip2', '#livecontrol_ip3', '#livecontrol_search',
    '#livecontrol_discovery', '#livecontrol_deleteall', '#livecontrol_update'];
const SYNC = ['#connect_signal_generator', '#connect_signal_distributor', '#sync_execute', '#externalSyncSelector'];
const DEVICE_SETTINGS = ['#livecontrol_save_button', '#livecontrol_load_button'];
const APPLY = ['.edit-buttons .apply'];
const CUSTOM = ['.edit-buttons .loadCamera', '.edit-buttons .read', '.edit-buttons .write'].concat(APPLY);
const FUNCTIONS = ['.option-recording .funcs-button button'];
const PARTITION = ['.partition button'];
const OPTIONS = FUNCTIONS.concat('.option-recording .timeline-livecontrol *', PARTITION);
const RECORD = ['#timeline_rec_exec', '#timeline_rec_cancel', '#timeline_trigger_test'];
const SAVE = ['.exec-saving button'];
const LINKS = ['#wren_io_setting', '#wren_ethernet_setting'];
const LOW_LIGHT = ['#wrenBatchLowlightBlock_ON', '#wrenBatchLowlightBlock_OFF'];
const DEFAULTS = ['#wrentabledialog_defaultsettings'];
const DISPLAY_SETTINGS = ['#wrentabledialog_displaySettings'];
const FILTER = ['#recordFilter'];
const ARMED = DEVICE_SETTINGS.concat(SYNC, MANAGEMENT, DEFAULTS, DISPLAY_SETTINGS, OPTIONS, APPLY, LINKS, LOW_LIGHT,
    '#timeline_trigger_test');
const LIVE_PARTS = ['.exec-recording', '.option-recording', '#wren_related_settings', '#wrenBatchLowlightBlock'];

const whenOn = work => on => on && wrentabledialog_obj[work]();

// Later functions override earlier ones, so the order counts.
const controls = {
    'LIVE-MODE': {
        hidden: ['.exec-saving'],
        func: whenOn('enterLiveLook')
    },
    'MEMORY-MODE': {
        disabled: DEVICE_SETTINGS.concat(SYNC, MANAGEMENT, DEFAULTS),
        hidden: LIVE_PARTS,
        func: whenOn('enterMemoryLook')
    },
    'FILE-MODE': {
        disabled: DEVICE_SETTINGS.concat(SYNC, CUSTOM, MANAGEMENT, FILTER, DEFAULTS, DISPLAY_SETTINGS),
        hidden: LIVE_PARTS.concat('.exec-saving', '#wrenGroupBlock'),
        func: whenOn('enterFileLook')
    },
    CTSREADY: {
        disabled: ARMED.concat('#timeline_rec_exec'),
        func: whenOn('enterReadyLook')
    },
    READY: {
        disabled: ARMED,
        func: on => {
            if (on) {
                wrentabledialog_obj.enterReadyLook();
                wrentabledialog.showReadyProgress();
            } else {
                wrentabledialog.deleteReadyProgress();
            }
        }
    },
    RECORDING: {
        disabled: ARMED,
        func: whenOn('enterRecordingLook')
    },
    'NOT-RECORDING': { disabled: ['#timeline_rec_cancel'] },
    'RECORDING-ERROR': { disabled: RECORD },
    'BACKGROUND-SAVING': {
        disabled: DEVICE_SETTINGS.concat(SYNC, CUSTOM, MANAGEMENT, FILTER, DEFAULTS, DISPLAY_SETTINGS, LINKS, OPTIONS,
            SAVE, LOW_LIGHT),
        func: whenOn('enterSavingLook')
    },
    'NONE-DOCUMENT': { disabled: ['#livecontrol_deleteall', '#livecontrol_update', '#sync_execute'] },
    'NONE-WINDOW': {
        disabled: APPLY.concat('.edit-buttons .loadCamera', RECORD, OPTIONS, SAVE, '#sync_execute'),
        hidden: ['.partition']
    },
    'EXIST-LOWLIGHT': {
        disabled: FUNCTIONS.concat(PARTITION, RECORD, SAVE, DEFAULTS, '#sync_execute', LINKS),
        func: on => {
            if (on) {
                if (wrentabledialog.countMdiWindow() !== 0) {
                    zeb4func.disable('#btn-snapshot button', false);
                }
                wrentabledialog_obj.turnMemoryTabsOff();
            }
        }
    },
    'ALL-LOWLIGHT-ON': { disabled: ['#wrenBatchLowlightBlock_ON'] },
    'ALL-LOWLIGHT-OFF': { disabled: ['#wrenBatchLowlightBlock_OFF'] },
    'LENS-CALIBRATION': {
        disabled: OPTIONS.concat(RECORD, SAVE, LINKS, SYNC, LOW_LIGHT),
        func: whenOn('turnMemoryTabsOff')
    },
    'CONFLICT-PARTITION': { disabled: OPTIONS.concat('#timeline_rec_exec', '#timeline_trigger_test') },
    'DIRECT-SAVING': {
        func: on => {
            if (on) {
                wrentabledialog_obj.turnMemoryTabsOff();
                wrentabledialog_obj.turnPartitionOff();
            }
        }
    },
    'AUTO-EXPOSURE-SETTING': { disabled: LOW_LIGHT, func: whenOn('turnMemoryTabsOff') },
    'HW-TRIGGER-SETTING': { disabled: LOW_LIGHT, func: whenOn('turnMemoryTabsOff') },
    'VARIABLE-SETTING': { disabled: LOW_LIGHT, func: whenOn('turnMemoryTabsOff') },
    TRACKING: { disabled: LOW_LIGHT, func: whenOn('turnMemoryTabsOff') },
    'NODECOMMAND-SENDING': { disabled: OPTIONS.concat(RECORD, SAVE) },
    'IMAGE-ADJUSTING': { disabled: OPTIONS.concat(RECORD, SAVE) },
    'PIXEL-DEFECT-DETECTING': { disabled: OPTIONS.concat(RECORD, SAVE) },
    'IMAGETRIGGER-DETECTING': { func: whenOn('turnPartitionOff') },
    'IMAGETRIGGER-CAPTURING': { func: whenOn('turnPartitionOff') },
    'OTHER-PLUGIN-OPEN': {
        disabled: DEVICE_SETTINGS.concat(MANAGEMENT, FILTER, DEFAULTS, '.groupButton', APPLY, LOW_LIGHT)
    },
    'WREN-ALL-LOCK-DEVICE': { disabled: LOW_LIGHT },
    'HIDE-TRIGGER-TEST': { hidden: ['#trigger_test'] }
};

Object.assign(wrentabledialog_obj, {
    // Functions of several states set tabs and colours one after the other. What comes out is written once.
    applyControls() {
        zeb4func.setDisable(wrentabledialog, controls);
        this.keepStartDisabled();
        this.disableTabs(this.look.tabsOff);
        this.colourPage(this.look.colour);
        if (this.look.armed) {
            this.setTableTextColor(this.look.colour);
        } else {
            this.setModeTextColor();
        }
    },

    enterLiveLook() {
        this.enterTableLook(null, false, this.activeLiveTabNumber);
    },

    enterMemoryLook() {
        const colour = wrentabledialog.getPrefString(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_MEMORY);
        this.enterTableLook(colour, true, this.activeMemoryTabNumber);
    },

    enterTableLook(colour, memory, tab) {
        this.look = { tabsOff: false, colour, armed: false };
        this.showGroupBlock();
        this.disableDisplayCheckBox();
        if (this.gridLock) {
            this.showFilter(); // in file mode there is none
        }
        this.moveTo(memory, tab);
        this.unlockGrids();
    },

    enterFileLook() {
        this.look = { tabsOff: true, colour: null, armed: false };
        this.disableDisplayCheckBox();
        if (!this.gridLock && views.length > 0) {
            this.lockGrids();
        }
    },

    enterReadyLook() {
        this.enterColouredLook(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECREADY);
    },

    enterRecordingLook() {
        this.enterColouredLook(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECORDING);
    },

    enterColouredLook(key) {
        this.look = { tabsOff: true, colour: wrentabledialog.getPrefString(key), armed: true };
    },

    enterSavingLook() {
        this.look.tabsOff = true;
        this.disableDisplayCheckBox();
    },

    // Tabs that are off already stay off.
    turnMemoryTabsOff() {
        this.look.tabsOff = this.look.tabsOff || MEMORY;
    },

    turnPartitionOff() {
        zeb4func.disable('#recording_partition, #recording_partition_span_button', true);
    },

    // A mode that came from outside moves the page to the last tab of that mode. Where its header is hidden, to the
    // first one whose header shows.
    moveTo(memory, number) {
        if (this.tabsExist && TABS[this.activeTab()].memory !== memory) {
            const shown = (memory ? MEMORY : LIVE).filter(tab => !tabHeader(tab).hidden);
            this.bringToFront(shown.length === 0 || shown.includes(number) ? number : shown[0]);
        }
    },

    // jQuery UI brings no tab to the front that is disabled.
    bringToFront(number) {
        this.disableTabs(false);
        $('#tabs').tabs('option', 'active', number);
    },

    // `off`: all of them, none, or the numbers of those.
    disableTabs(off) {
        if (this.tabsExist && String($('#tabs').tabs('option', 'disabled')) !== String(off)) {
            $('#tabs').tabs('option', 'disabled', off);
        }
    }
});
