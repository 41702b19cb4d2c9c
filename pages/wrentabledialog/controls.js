// What the states of the application disable, hide and do. See `zeb4func.setDisable`.
const MANAGEMENT = ['#livecontrol_ip1', '#livecontrol_ip2', '#livecontrol_ip3', '#livecontrol_search',
    '#livecontrol_discovery', '#livecontrol_deleteall', '#livecontrol_update'];
const SYNC = ['#connect_signal_generator', '#connect_signal_distributor', '#sync_execute', '#externalSyncSelector'];
const DEVICE_SETTINGS = ['#livecontrol_save_button', '#livecontrol_load_button'];
const CUSTOM = ['.edit-buttons .loadCamera', '.edit-buttons .read', '.edit-buttons .write', '.edit-buttons .apply'];
const LIVE_PARTS = ['.exec-recording', '.option-recording', '#wren_related_settings', '#wrenBatchLowlightBlock'];

const controls = {
    'LIVE-MODE': {
        hidden: ['.exec-saving'],
        func: on => on && wrentabledialog_obj.enterLiveLook()
    },
    'MEMORY-MODE': {
        disabled: DEVICE_SETTINGS.concat(SYNC, MANAGEMENT, '#wrentabledialog_defaultsettings'),
        hidden: LIVE_PARTS,
        func: on => on && wrentabledialog_obj.enterMemoryLook()
    },
    'FILE-MODE': {
        disabled: DEVICE_SETTINGS.concat(SYNC, CUSTOM, MANAGEMENT, '#recordFilter', '#wrentabledialog_defaultsettings',
            '#wrentabledialog_displaySettings'),
        hidden: LIVE_PARTS.concat('.exec-saving', '#wrenGroupBlock'),
        func: on => on && wrentabledialog_obj.enterFileLook()
    }
};

Object.assign(wrentabledialog_obj, {
    enterLiveLook() {
        this.disableTabs(false);
        this.colourPage(null);
        this.setModeTextColor();
        this.showGroupBlock();
        this.moveTo(false, this.activeLiveTabNumber);
        this.unlockGrids();
    },

    enterMemoryLook() {
        this.disableTabs(false);
        this.colourPage(wrentabledialog.getPrefString(PREF_KEY_WREN_SETTINGS_TABLE_COLOR_MEMORY));
        this.setModeTextColor();
        this.showGroupBlock();
        this.moveTo(true, this.activeMemoryTabNumber);
        this.unlockGrids();
    },

    enterFileLook() {
        this.disableTabs(true);
        this.colourPage(null);
        this.setModeTextColor();
        if (!this.gridLock && views.length > 0) {
            this.lockGrids();
        }
    },

    // A mode that came from outside moves the page to the last tab of that mode.
    moveTo(memory, number) {
        if (this.tabsExist() && TABS[this.activeTab()].memory !== memory) {
            $('#tabs').tabs('option', 'active', number);
        }
    },

    disableTabs(flag) {
        if (this.tabsExist() && $('#tabs').tabs('option', 'disabled') !== flag) {
            $('#tabs').tabs(flag ? 'disable' : 'enable');
        }
    }
});
