// What the display keys show and hide.

// What a display key shows: a column on the tabs named, the header of a tab, or a block. In the order of their boxes,
// which stand in groups with a legend, or in none. The key is that of its text with slashes.
const DISPLAY = [
    { id: textKey('wren_display_cameraSettings'), block: 'camera_setting_container' },
    { id: textKey('wren_display_customSettings'), block: 'custom_info_container' },
    { id: textKey('wren_display_externalSync') }, // that area has its own test
    { id: textKey('wren_display_alert'), group: 'common', field: 'alert', tabs: LIVE.concat(MEMORY) },
    { id: textKey('wren_display_lock'), group: 'common', field: 'lock', tabs: LIVE },
    { id: textKey('wren_display_syncStatus'), group: 'common', field: 'sync', tabs: LIVE },
    { id: textKey('wren_display_frameRate'), group: 'livecontrol', field: 'frameRate', tabs: [1] },
    { id: textKey('wren_display_shutterSpeed'), group: 'livecontrol', field: 'shutterSpeed', tabs: [1] },
    { id: textKey('wren_display_resolution'), group: 'livecontrol', field: 'resolution', tabs: [1] },
    { id: textKey('wren_display_triggerMode'), group: 'livecontrol', field: 'trigger', tabs: [1] },
    { id: textKey('wren_display_reduceMode'), group: 'livecontrol', field: 'reduce', tabs: [1] },
    { id: textKey('wren_display_syncTab'), header: 2 },
    { id: textKey('wren_display_irigTab'), header: 3 },
    { id: textKey('wren_display_pluginTab'), header: 4 },
    { id: textKey('wren_display_memoryPluginTab'), header: 6 },
    { id: textKey('wren_display_recordCheck'), group: 'memoryInfo', field: 'recordCheck', tabs: MEMORY },
    { id: textKey('wren_display_recordedFrameRate'), group: 'memoryInfo', field: 'frameRate', tabs: [5] },
    { id: textKey('wren_display_recordedStartFrame'), group: 'memoryInfo', field: 'originalStartFrameNo', tabs: [5] },
    { id: textKey('wren_display_recordedEndFrame'), group: 'memoryInfo', field: 'originalEndFrameNo', tabs: [5] },
    { id: textKey('wren_display_triggerOffset'), group: 'memoryInfo', field: 'triggerOffset', tabs: [5] }
];
DISPLAY.forEach(shows => {
    shows.key = displayKey(shows.id);
});

// No key holds an underscore.
function displayKey(id) {
    return id.replace(/_/g, '/');
}

wrentabledialog_const_obj.displaySettingsArray = DISPLAY.map(shows => shows.key);

Object.assign(wrentabledialog_obj, {
    // Whether the display keys let a tab show a column.
    isDisplayed(tab, field) {
        return DISPLAY.every(shows =>
            shows.field !== field || !shows.tabs.includes(tab.number) || wrentabledialog.getPrefBool(shows.key));
    },

    displayFlags() {
        return DISPLAY.map(shows => wrentabledialog.getPrefBool(shows.key)).join();
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
            DISPLAY.forEach(shows => {
                const flag = wrentabledialog.getPrefBool(shows.key);
                if (shows.block) {
                    this.showBlock(document.getElementById(shows.block), flag);
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

    // The engine leaves the keyboard to an element that is hidden, and tells nobody.
    showBlock(block, flag) {
        const appears = flag && block.hidden;
        if (!flag && !block.hidden) {
            contextMenu.close();
            customEditor.end();
            if (block.contains(document.activeElement)) {
                document.activeElement.blur();
            }
        }
        showElement(block, flag);
        if (appears && this.accordionOpen) {
            customList.show();
        }
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
        customList.grid.refresh();
        this.update();
    },

    // Leaves a tab whose header a display key hides; in file mode no tab can be left.
    leaveHiddenTab() {
        const active = this.activeTab();
        if (tabHeader(active).hidden && !this.gridLock) {
            const home = TABS[active].memory ? MEMORY[0] : LIVE[0];
            this.bringToFront(home);
        }
    }
});

function tabHeader(number) {
    return document.querySelectorAll('#tabs > ul > li')[number];
}
