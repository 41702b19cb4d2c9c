// What the display keys show and hide.

// key -> the column it shows on the tabs named, the tab whose header it shows, or the block.
const DISPLAY = {
    [PREF_KEY_WREN_DISPLAY_CAMERA_SETTINGS]: { block: 'camera_setting_container' },
    [PREF_KEY_WREN_DISPLAY_CUSTOM_SETTINGS]: { block: 'custom_info_container' },
    [PREF_KEY_WREN_DISPLAY_EXTERNAL_SYNC]: {}, // that area has its own test
    [PREF_KEY_WREN_DISPLAY_ALERT]: { field: 'alert', tabs: LIVE.concat(MEMORY) },
    [PREF_KEY_WREN_DISPLAY_LOCK]: { field: 'lock', tabs: LIVE },
    [PREF_KEY_WREN_DISPLAY_SYNC_STATUS]: { field: 'sync', tabs: LIVE },
    [PREF_KEY_WREN_DISPLAY_FRAMERATE]: { field: 'frameRate', tabs: [1] },
    [PREF_KEY_WREN_DISPLAY_SHUTTER]: { field: 'shutterSpeed', tabs: [1] },
    [PREF_KEY_WREN_DISPLAY_RESOLUTION]: { field: 'resolution', tabs: [1] },
    [PREF_KEY_WREN_DISPLAY_TRIGGER_MODE]: { field: 'trigger', tabs: [1] },
    [PREF_KEY_WREN_DISPLAY_REDUCE_MODE]: { field: 'reduce', tabs: [1] },
    [PREF_KEY_WREN_DISPLAY_SYNC_TAB]: { header: 2 },
    [PREF_KEY_WREN_DISPLAY_IRIG_TAB]: { header: 3 },
    [PREF_KEY_WREN_DISPLAY_PLUGIN_TAB]: { header: 4 },
    [PREF_KEY_WREN_DISPLAY_MEMORYPLUGIN_TAB]: { header: 6 },
    [PREF_KEY_WREN_DISPLAY_RECORD_CHECK]: { field: 'recordCheck', tabs: MEMORY },
    [PREF_KEY_WREN_DISPLAY_RECORDED_FRAMERATE]: { field: 'frameRate', tabs: [5] },
    [PREF_KEY_WREN_DISPLAY_RECORDED_STARTFRAME]: { field: 'originalStartFrameNo', tabs: [5] },
    [PREF_KEY_WREN_DISPLAY_RECORDED_ENDFRAME]: { field: 'originalEndFrameNo', tabs: [5] },
    [PREF_KEY_WREN_DISPLAY_TRIGGER_OFFSET]: { field: 'triggerOffset', tabs: [5] }
};

Object.assign(wrentabledialog_obj, {
    // Whether the display keys let a tab show a column.
    isDisplayed(tab, field) {
        return Object.keys(DISPLAY).every(key => {
            const shows = DISPLAY[key];
            return shows.field !== field || !shows.tabs.includes(tab.number) || wrentabledialog.getPrefBool(key);
        });
    },

    displayFlags() {
        return wrentabledialog_const_obj.displaySettingsArray.map(key => wrentabledialog.getPrefBool(key)).join();
    },

    // Whether the display keys are others than those that the page shows.
    isChangedDisplay() {
        return this.shownFlags !== undefined && this.shownFlags !== this.displayFlags();
    },

    refreshDisplayElement() {
        this.shownFlags = this.displayFlags();
        const active = this.activeTab();
        const view = viewAt(active);
        view.together(() => {
            wrentabledialog_const_obj.displaySettingsArray.forEach(key => {
                const flag = wrentabledialog.getPrefBool(key);
                const shows = DISPLAY[key];
                if (shows.block) {
                    showElement(document.getElementById(shows.block), flag);
                } else if (shows.header !== undefined) {
                    showElement(tabHeader(shows.header), flag);
                } else if (shows.field && shows.tabs.includes(active)) {
                    this.refreshDisplayColumn(flag, view.grid, shows.field);
                }
            });
            this.refreshColumnNumber(active);
            view.grid.refresh();
        });
    },

    refreshDisplayColumn(flag, grid, field) {
        if (flag) {
            grid.showColumn(field);
        } else {
            grid.hideColumn(field);
        }
    },

    refreshAllControls() {
        this.refreshDisplayElement();
        this.leaveHiddenTab();
        this.update();
    },

    // Leaves a tab whose header a display key hides.
    leaveHiddenTab() {
        const active = this.activeTab();
        if (tabHeader(active).hidden) {
            const home = TABS[active].memory ? MEMORY[0] : LIVE[0];
            this.bringToFront(home);
        }
    }
});

function tabHeader(number) {
    return document.querySelectorAll('#tabs > ul > li')[number];
}
