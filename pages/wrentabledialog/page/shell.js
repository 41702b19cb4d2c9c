// The page's life from load on. Topics only define; this is the one place where something starts.
Object.assign(wrentabledialog_obj, {
    // Nothing is laid out as long as the page is being made. What only makes it usable comes after the first rows.
    initializePage() {
        ['open', 'update', 'autoUpdate', 'close'].forEach(name => {
            wrentabledialog[name].connect(() => logged(() => this[name]()));
        });
        document.body.style.display = 'none';
        this.showStartTab();
        this.whenPainted(() => this.initializeAccordion());
        zeb4func.disableDefaultShortcut();
        zeb4func.localize(wrentabledialog);
        reasons.initialize();
        this.initializeRecordFilter();
        guarded(() => this.initializeList());
        this.initializeGroupBox();
        ['DisplaySettings', 'CommonParts', 'SaveContainer', 'RecordingContainer', 'Tabs'].forEach(part =>
            this.whenPainted(() => this['initialize' + part]()));
        this.refreshDisplayElement();
        this.update();
        this.whenPainted(() => $('label[for="timeline_trigger_test"]').tooltip({
            content() {
                const { title } = document.getElementById('timeline_trigger_test');
                return escapeMarkup([this.title, title].filter(Boolean).join(' '));
            },
            show: { delay: 900 },
            position: { my: 'center top', at: 'center bottom' }
        }));
        zeb4func.enableUserOperationLog(wrentabledialog, '#wren-root-block');
        document.addEventListener('mousemove', event => this.movePress(event), true);
        document.addEventListener('mouseup', event => {
            this.releasePress(event);
            holdNumber(viewAt(this.activeTab()), document.activeElement);
        }, true);
        // A message box keeps the release for itself.
        window.addEventListener('blur', () => this.endDrag());
    },

    // Runs `work` when the first rows have been painted, or now if they have.
    whenPainted(work) {
        if (this.initialize) {
            this.afterPaint.push(work);
        } else {
            work();
        }
    },

    // A step that fails keeps no other from being made.
    endInitializing() {
        this.initialize = false;
        this.afterPaint.splice(0).forEach(work => guarded(work));
        viewAt(this.activeTab()).draw(false);
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

    // As the tab widget does it.
    showStartTab() {
        this.startTab = wrentabledialog.isMemoryMode() ? MEMORY[0] : LIVE[0];
        ['ui-tabs-active', 'ui-state-active'].forEach(name => tabHeader(this.startTab).classList.add(name));
        document.getElementById(TABS[this.startTab].panel).style.display = '';
    },

    // The update of the page has brought the rows of the start tab.
    initializeTabs() {
        // A click takes the keyboard to no tab, whose arrows would change tab and mode, but away from where it was.
        $('#tabs > ul').on('mousedown', event => {
            event.preventDefault();
            document.activeElement.blur();
        });
        // The filter stands before the headers, as it is seen, and its list must not be taken for them.
        // Nor may keys in a panel change tab and mode.
        $.widget('ui.tabs', $.ui.tabs, {
            _getList() { return this.element.children('ul'); },
            _panelKeydown: () => undefined
        });
        $('#tabs').tabs({
            active: this.startTab,
            beforeActivate: (event, ui) => this.leaveTab(ui.newTab.index()),
            activate: (event, ui) => this.enterTab(ui.newTab)
        });
        this.tabsExist = true;
        this.applyControls(); // the mode may be another one by now
        this.refreshColumnNumber(this.activeTab());
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
        viewAt(number).cursor.focus();
    }
});

// Not jQuery's ready, which comes after the window's load.
document.addEventListener('DOMContentLoaded', () => {
    try {
        wrentabledialog_obj.initializePage();
    } finally {
        document.body.style.display = '';
    }
    wrentabledialog_obj.resizeTableElements();
});

$(window).on('resize', () => {
    wrentabledialog_obj.closeFloating(); // what floats over a row does not move with it
    wrentabledialog_obj.resizeTableElements();
});

// Half of what a press does is not there before the page stands; so it does nothing, and the log does not tell of it.
['mousedown', 'mouseup', 'click', 'dblclick', 'contextmenu'].forEach(type => window.addEventListener(type, event => {
    if (wrentabledialog_obj.initialize) {
        event.preventDefault();
        event.stopImmediatePropagation();
    }
}, true));

window.addEventListener('load', () => {
    wrentabledialog_obj.resizeTableElements();
    window.setTimeout(() => wrentabledialog_obj.endInitializing(), PAINT_MS);
});
