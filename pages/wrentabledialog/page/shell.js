// The page's life from load on. Topics only define; this is the one place where something starts.
Object.assign(wrentabledialog_obj, {
    initializePage() {
        this.initialize = true;
        ['open', 'update', 'autoUpdate', 'close'].forEach(name => {
            wrentabledialog[name].connect(() => logged(() => this[name]()));
        });
        this.applyControls();
        this.initializeAccordion();
        zeb4func.disableDefaultShortcut();
        zeb4func.localize(wrentabledialog);
        this.initializeRecordFilter();
        guarded(() => this.initializeList());
        this.initializeGroupBox();
        this.initializeDisplaySettings();
        this.initializeCommonParts();
        this.initializeSaveContainer();
        this.initializeRecordingContainer();
        viewAt(this.activeTab()).together(() => {
            this.initializeTabs();
            this.refreshDisplayElement();
        });
        this.update();
        $('label[for="timeline_trigger_test"]').tooltip({
            show: { delay: 900 },
            position: { my: 'center top', at: 'center bottom' }
        });
        zeb4func.enableUserOperationLog(wrentabledialog, '#wren-root-block');
        document.addEventListener('mousemove', event => this.movePress(event), true);
        document.addEventListener('mouseup', event => {
            this.releasePress(event);
            holdNumber(viewAt(this.activeTab()), document.activeElement);
        }, true);
        // A message box keeps the release for itself.
        window.addEventListener('blur', () => this.endDrag());
    },

    initializeAccordion() {
        const label = document.getElementById('accordion_label');
        $('#accordion').accordion({
            collapsible: true,
            active: false,
            animate: false,
            heightStyle: 'content',
            beforeActivate: () => customEditor.end(),
            activate: (event, ui) => {
                this.accordionOpen = ui.newPanel.length > 0;
                label.textContent = this.accordionOpen ? translate('Close') : translate('Open');
                if (this.accordionOpen) {
                    customList.show();
                }
                this.update();
            }
        });
    },

    initializeTabs() {
        // A click takes the keyboard to no tab, whose arrows would change tab and mode, but away from where it was.
        $('#tabs > ul').on('mousedown', event => {
            event.preventDefault();
            document.activeElement.blur();
        });
        $('#tabs').tabs({
            beforeActivate: (event, ui) => this.leaveTab(ui.newTab.index()),
            activate: (event, ui) => this.enterTab(ui.newTab)
        });
        if (wrentabledialog.isLiveMode()) {
            this.startTab(wrentabledialog_const_obj.cameraInfoTabNo);
        } else if (wrentabledialog.isMemoryMode()) {
            this.startTab(wrentabledialog_const_obj.memoryInfoTabNo);
        }
        this.refreshColumnNumber(this.activeTab());
    },

    // Activating the active tab fires no event.
    startTab(number) {
        if (this.activeTab() === number) {
            this.refreshRecords(number, false);
        } else {
            $('#tabs').tabs('option', 'active', number);
        }
    },

    // The mode must change before the new tab is drawn.
    leaveTab(number) {
        this.disableTabs(true);
        this.preventSelect = false;
        this.closeFloating();
        numberBox.giveUpAll();
        if (TABS[number].memory) {
            this.activeMemoryTabNumber = number;
            if (wrentabledialog.isLiveMode()) {
                wrentabledialog.enterMemoryMode();
            }
        } else {
            this.activeLiveTabNumber = number;
            if (wrentabledialog.isMemoryMode()) {
                wrentabledialog.enterLiveMode();
            }
        }
    },

    enterTab(header) {
        const number = header.index();
        this.resetAllColumns(number);
        this.refreshDisplayElement();
        this.refreshRecords(number, false);
        this.resizeTableElements();
        this.refreshCommonParts();
        this.applyControls();
        // Else the tab widget's own arrow keys would change the tab.
        header.find('a').get(0).blur();
        header.get(0).blur();
    }
});

// Not jQuery's ready, which comes after the window's load.
document.addEventListener('DOMContentLoaded', () => {
    wrentabledialog_obj.initializePage();
    wrentabledialog_obj.resizeTableElements();
});

$(window).on('resize', () => {
    wrentabledialog_obj.closeFloating(); // what floats over a row does not move with it
    wrentabledialog_obj.resizeTableElements();
});

$(window).on('load', () => {
    wrentabledialog_obj.resizeTableElements();
    wrentabledialog_obj.initialize = false;
});
