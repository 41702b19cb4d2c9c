// How the page keeps itself current: it asks for everything, at each tick of the back end's timer and after each
// change.
Object.assign(wrentabledialog_obj, {
    // The default settings, and with them the groups, may be read in there.
    open() {
        wrentabledialog.onOpen();
        this.initializeGroupBox();
    },

    close() {
        [() => numberBox.giveUpAll(), () => customEditor.end(), () => this.cancelDisplayDialog()].forEach(logged);
        wrentabledialog.onClose();
    },

    update() {
        this.applyStyles();
        this.updateCommon(false);
    },

    autoUpdate() {
        this.updateCommon(true);
    },

    updateCommon(isAuto) {
        let automatic = isAuto;
        numberBox.sendDue();
        if (this.gridLock && !wrentabledialog.isFileMode()) {
            this.cancelDisplayDialog();
        }
        if (wrentabledialog.isLiveMode()) {
            this.showRecStatus();
        }
        this.applyControls();
        this.closeLostMenus();
        if (this.preventSelectGroup) {
            zeb4func.disable('.groupButton', true);
        }
        this.refreshActionArea();
        if (this.isChangedDisplay()) {
            this.refreshDisplayElement();
            this.followDisplayDialog();
            automatic = false;
        }
        this.leaveHiddenTab();
        const active = this.activeTab();
        if (!this.isColumnDragged && this.isChangedColumns(active)) {
            this.resetAllColumns(active);
            automatic = false;
        }
        this.refreshCustomInfoContainer();
        this.updateExternalSyncArea();
        this.whenPainted(() => statusLine.refresh());
        this.refreshRecords(active, automatic);
        this.resizeTableElements();
        this.whenPainted(() => reasons.show());
        this.whenPainted(() => keyboardHome.keep());
    },

    // Our sheet comes after the host's, which may have changed with the style or the mode.
    applyStyles() {
        zeb4func.applyStyle(wrentabledialog);
        const style = wrentabledialog.getStyle();
        const mode = wrentabledialog.isLiveMode() ? 'live' : wrentabledialog.isMemoryMode() ? 'memory' : 'file';
        const shown = this.shownStyle || { style: 'light', mode };
        this.shownStyle = { style, mode };
        if (shown.style !== style || shown.mode !== mode) {
            this.swapStyleSheet(style === 'light' ? 'qrc:/wrentabledialog.css' : 'qrc:/wrentabledialog-dark.css');
        }
    },

    // The old sheet goes when the new one is there, so that the page never stands unstyled.
    swapStyleSheet(address) {
        const old = document.getElementById('wren-css');
        const link = document.createElement('link');
        old.removeAttribute('id');
        old.className = 'replaced';
        link.id = 'wren-css';
        link.rel = 'stylesheet';
        link.href = address;
        link.addEventListener('load', () => {
            if (link.id) { // else a newer one has come meanwhile and takes all of them away
                $('link.replaced').remove();
            }
            this.resizeTableElements();
        });
        document.head.appendChild(link);
    }
});
