// The page's geometry, in pixels. It reads sizes, so a cycle runs it last, when everything is written.
Object.assign(wrentabledialog_obj, {
    resizeTableElements() {
        const live = wrentabledialog.isLiveMode();
        const lowlight = document.getElementById('wrenBatchLowlightBlock');
        const sync = document.getElementById('external_sync_area');
        const upper = document.getElementById('tabAreaUpperParts').offsetHeight;
        // While a style sheet is being exchanged the heights differ for a moment, and would spoil the table's.
        if (live && lowlight.offsetHeight !== upper) {
            return;
        }
        const common = this.accordionOpen ? 220 : 30;
        const height = window.innerHeight - common - upper - 70 - (live ? 90 : 60);
        const groupWidth = window.innerWidth - sync.offsetWidth - lowlight.offsetWidth - 50;

        Array.from(document.getElementsByClassName('grid-div')).forEach(grid => {
            setStyle(grid, 'height', `${Math.max(height, 0)}px`);
        });
        setFixed('wren-recording-container', height > 50);
        setFixed('wren-save-container', height > 80);
        setFixed('wren_status', height > (live ? 50 : 80));
        setStyle(document.getElementById('wrenGroupBox'), 'maxWidth', `${Math.max(groupWidth, 0)}px`);
        if (views.length > 0) {
            viewAt(this.activeTab()).resized();
        }
    }
});

// Fixed at the bottom of the window, or, in a very low window, below the table, where it can be scrolled to.
function setFixed(id, fixed) {
    const element = document.getElementById(id);
    if (element.getAttribute('fixed') !== String(fixed)) {
        element.setAttribute('fixed', String(fixed));
    }
}
