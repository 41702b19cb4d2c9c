// What the display keys show and hide.

// A display key -> the column it shows on the tabs named, the tab whose header it shows, or the block; in the order of
// their boxes.
const DISPLAY = {
    'wren/display/cameraSettings': { block: 'camera_setting_container' },
    'wren/display/customSettings': { block: 'custom_info_container' },
    'wren/display/externalSync': {}, // that area has its own test
    'wren/display/alert': { field: 'alert', tabs: LIVE.concat(MEMORY) },
    'wren/display/lock': { field: 'lock', tabs: LIVE },
    'wren/display/syncStatus': { field: 'sync', tabs: LIVE },
    'wren/display/frameRate': { field: 'frameRate', tabs: [1] },
    'wren/display/shutterSpeed': { field: 'shutterSpeed', tabs: [1] },
    'wren/display/resolution': { field: 'resolution', tabs: [1] },
    'wren/display/triggerMode': { field: 'trigger', tabs: [1] },
    'wren/display/reduceMode': { field: 'reduce', tabs: [1] },
    'wren/display/syncTab': { header: 2 },
    'wren/display/irigTab': { header: 3 },
    'wren/display/pluginTab': { header: 4 },
    'wren/display/memoryPluginTab': { header: 6 },
    'wren/display/recordCheck': { field: 'recordCheck', tabs: MEMORY },
    'wren/display/recordedFrameRate': { field: 'frameRate', tabs: [5] },
    'wren/display/recordedStartFrame': { field: 'originalStartFrameNo', tabs: [5] },
    'wren/display/recordedEndFrame': { field: 'originalEndFrameNo', tabs: [5] },
    'wren/display/triggerOffset': { field: 'triggerOffset', tabs: [5] }
};

wrentabledialog_const_obj.displaySettingsArray = Object.keys(DISPLAY);

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
