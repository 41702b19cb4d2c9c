// What the states of the application disable and hide. See `zeb4func.setDisable`.
const controls = {
    'NONE-DOCUMENT': { disabled: ['.Synchub-list'] },
    'MEMORY-MODE': { hidden: ['.mastercamera'] }
};

// Lists by the number of their tab.
const LISTS_OF_TAB = {
    2: ['synchub'],
    3: ['framerate', 'shutterspeed', 'resolution'],
    4: ['externalsyncsigfreq', 'disp_range']
};

// The page's life from load on. Topics only define; this is the one place where something starts.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializePage() {
        this.applyStyle();
        ['open', 'update', 'close'].forEach(name => {
            this.slots[name] = () => logged(() => this[name]());
            bridge[name].connect(this.slots[name]);
        });
        this.initializeTabs();
        this.initializeAddresses();
        this.initializeGroupDialogs();
        this.initializeGroupList();
        this.initializeLists();
        this.initializeSyncHubs();
        this.initializeTrigger();
        this.initializeSync();
        this.initializeOthers();
        this.initializeSettings();
        onFinalPress('md_ok', () => this.accept());
        onClick('#md_cancel', () => bridge.cancel());
        guarded(() => this.load());
        zeb4func.disableDefaultShortcut();
        zeb4func.localize(bridge);
        zeb4func.enableUserOperationLog(bridge, '#panels');
        zeb4func.updateUserOperationLogHandler('.ui-dialog');
        this.update();
    },

    initializeTabs() {
        $('#tabs').addClass('ui-tabs-vertical').tabs({
            activate: (event, ui) => (LISTS_OF_TAB[ui.newTab.index()] || []).forEach(name => gridLists[name].draw())
        });
    },

    open() {
        this.load();
    },

    update() {
        this.applyStyle();
        zeb4func.setDisable(bridge, controls);
        this.save();
    },

    close() {
        Object.keys(this.slots).forEach(name => bridge[name].disconnect(this.slots[name]));
        this.slots = {};
    },

    applyStyle() {
        zeb4func.applyStyle(bridge);
        document.body.classList.toggle('md-dark', bridge.getStyle() === 'dark');
    },

    accept() {
        if (!this.isConsistent()) {
            return;
        }
        this.settings.forEach(each => each.accept());
        this.save();
        bridge.ok();
    }
});

// Not jQuery's ready, which comes after the window's load.
document.addEventListener('DOMContentLoaded', () => wrendefaultsettingsdialog_obj.initializePage());
