// What the states of the application disable, hide and do, see `zeb4func.setDisable`, and why, in the user's words.
// What a `func` disables stands in `greys`, where it has the same reason.
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
const ALL_TABS = ['#tabs > ul > li'];
const MEMORY_TABS = ['#tabs > ul > .memoryTab'];
const LIVE_PARTS = ['.exec-recording', '.option-recording', '#wren_related_settings', '#wrenBatchLowlightBlock'];

const whenOn = work => on => on && wrentabledialog_obj[work]();

// Later functions override earlier ones, so the order counts.
const controls = {
    'LIVE-MODE': {
        hidden: ['.exec-saving'],
        func: whenOn('enterLiveLook')
    },
    'MEMORY-MODE': {
        why: textKey('Only in live mode.'),
        disabled: DEVICE_SETTINGS.concat(SYNC, MANAGEMENT, DEFAULTS),
        hidden: LIVE_PARTS,
        func: whenOn('enterMemoryLook')
    },
    'FILE-MODE': {
        why: textKey('Not while files are shown.'),
        disabled: DEVICE_SETTINGS.concat(SYNC, CUSTOM, MANAGEMENT, FILTER, DEFAULTS, DISPLAY_SETTINGS),
        hidden: LIVE_PARTS.concat('.exec-saving', '#wrenGroupBlock'),
        greys: ALL_TABS,
        func: whenOn('enterFileLook')
    },
    CTSREADY: {
        why: textKey('Cameras wait for the CTS signal.'),
        disabled: ARMED.concat('#timeline_rec_exec'),
        greys: ALL_TABS,
        func: whenOn('enterReadyLook')
    },
    READY: {
        why: textKey('Cameras are ready to record.'),
        disabled: ARMED,
        greys: ALL_TABS,
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
        why: textKey('Cameras are recording.'),
        disabled: ARMED,
        greys: ALL_TABS,
        func: whenOn('enterRecordingLook')
    },
    'NOT-RECORDING': {
        why: textKey('Nothing is being recorded.'),
        disabled: ['#timeline_rec_cancel']
    },
    'RECORDING-ERROR': {
        why: textKey('The recording has failed.'),
        disabled: RECORD
    },
    'BACKGROUND-SAVING': {
        why: textKey('Images are being saved.'),
        disabled: DEVICE_SETTINGS.concat(SYNC, CUSTOM, MANAGEMENT, FILTER, DEFAULTS, DISPLAY_SETTINGS, LINKS, OPTIONS,
            SAVE, LOW_LIGHT),
        greys: ALL_TABS,
        func: whenOn('enterSavingLook')
    },
    'NONE-DOCUMENT': {
        why: textKey('There is no camera in the list.'),
        disabled: ['#livecontrol_deleteall', '#livecontrol_update', '#sync_execute']
    },
    'NONE-WINDOW': {
        why: textKey('No camera has its window open.'),
        disabled: APPLY.concat('.edit-buttons .loadCamera', RECORD, OPTIONS, SAVE, '#sync_execute'),
        hidden: ['.partition']
    },
    'EXIST-LOWLIGHT': {
        why: textKey('A camera is in low light mode.'),
        disabled: FUNCTIONS.concat(PARTITION, RECORD, SAVE, DEFAULTS, '#sync_execute', LINKS),
        greys: MEMORY_TABS,
        func: on => {
            if (on) {
                if (wrentabledialog.countMdiWindow() !== 0) {
                    zeb4func.disable('#btn-snapshot button', false);
                }
                wrentabledialog_obj.turnMemoryTabsOff();
            }
        }
    },
    'ALL-LOWLIGHT-ON': {
        why: textKey('All cameras are in low light mode.'),
        disabled: ['#wrenBatchLowlightBlock_ON']
    },
    'ALL-LOWLIGHT-OFF': {
        why: textKey('No camera is in low light mode.'),
        disabled: ['#wrenBatchLowlightBlock_OFF']
    },
    'LENS-CALIBRATION': {
        why: textKey('A lens is being calibrated.'),
        disabled: OPTIONS.concat(RECORD, SAVE, LINKS, SYNC, LOW_LIGHT),
        greys: MEMORY_TABS,
        func: whenOn('turnMemoryTabsOff')
    },
    'CONFLICT-PARTITION': {
        why: textKey('The partitions of the cameras differ.'),
        disabled: OPTIONS.concat('#timeline_rec_exec', '#timeline_trigger_test')
    },
    'DIRECT-SAVING': {
        why: textKey('Cameras save while they record.'),
        disabled: PARTITION,
        greys: MEMORY_TABS,
        func: whenOn('turnMemoryTabsOff')
    },
    'AUTO-EXPOSURE-SETTING': {
        why: textKey('Automatic exposure is being set.'),
        disabled: LOW_LIGHT,
        greys: MEMORY_TABS,
        func: whenOn('turnMemoryTabsOff')
    },
    'HW-TRIGGER-SETTING': {
        why: textKey('A trigger input is being set.'),
        disabled: LOW_LIGHT,
        greys: MEMORY_TABS,
        func: whenOn('turnMemoryTabsOff')
    },
    'VARIABLE-SETTING': {
        why: textKey('A variable setting is being made.'),
        disabled: LOW_LIGHT,
        greys: MEMORY_TABS,
        func: whenOn('turnMemoryTabsOff')
    },
    TRACKING: {
        why: textKey('A point is being tracked.'),
        disabled: LOW_LIGHT,
        greys: MEMORY_TABS,
        func: whenOn('turnMemoryTabsOff')
    },
    'NODECOMMAND-SENDING': {
        why: textKey('A command is on its way to a camera.'),
        disabled: OPTIONS.concat(RECORD, SAVE)
    },
    'IMAGE-ADJUSTING': {
        why: textKey('An image is being adjusted.'),
        disabled: OPTIONS.concat(RECORD, SAVE)
    },
    'PIXEL-DEFECT-DETECTING': {
        why: textKey('Defect pixels are being looked for.'),
        disabled: OPTIONS.concat(RECORD, SAVE)
    },
    'IMAGETRIGGER-DETECTING': {
        why: textKey('The image trigger is being looked for.'),
        disabled: PARTITION
    },
    'IMAGETRIGGER-CAPTURING': {
        why: textKey('The image trigger takes its pictures.'),
        disabled: PARTITION
    },
    'OTHER-PLUGIN-OPEN': {
        why: textKey('Another plug-in has the cameras.'),
        disabled: DEVICE_SETTINGS.concat(MANAGEMENT, FILTER, DEFAULTS, '.groupButton', APPLY, LOW_LIGHT)
    },
    'WREN-ALL-LOCK-DEVICE': {
        why: textKey('All cameras are locked.'),
        disabled: LOW_LIGHT
    },
    'HIDE-TRIGGER-TEST': { hidden: ['#trigger_test'] }
};

Object.assign(wrentabledialog_obj, {
    // Functions of several states set tabs and colours one after the other. What comes out is written once.
    applyControls() {
        reasons.on.clear();
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

    // A mode that came from outside moves the page to the last tab of that mode. Where its header is hidden, to the
    // first one whose header shows.
    moveTo(memory, number) {
        if (this.tabsExist && TABS[this.activeTab()].memory !== memory) {
            const shown = (memory ? MEMORY : LIVE).filter(tab => !tabHeader(tab).hidden);
            this.bringToFront(shown.length === 0 || shown.includes(number) ? number : shown[0]);
            viewAt(this.activeTab()).cursor.movedAt = Date.now();
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
