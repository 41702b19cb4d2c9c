// The panel by which cameras come into the table and go.
Object.assign(wrentabledialog_obj, {
    initializeCameraManagementContainer() {
        octets().forEach(listenToOctet);
        const name = translate('Search devices by IP address');
        octets().forEach(octet => octet.setAttribute('aria-label', name));
        this.refreshCommonParts();
        const manage = (button, work) => onClick(button, () => {
            this.preventSelect = false;
            work();
        });
        manage('#livecontrol_search', () => this.searchByAddress());
        manage('#livecontrol_discovery', () => wrentabledialog.discoverysearch());
        manage('#livecontrol_update', () => wrentabledialog.updateCamera());
        manage('#livecontrol_deleteall', () => wrentabledialog.deleteAllCamera());
    },

    // The three fields of the search address; the page shows the last one as ". xxx".
    refreshCommonParts() {
        const parts = wrentabledialog.getSearchAddress().split('.');
        octets().forEach((octet, index) => { octet.value = parts[index] || ''; });
    },

    searchByAddress() {
        const values = octets().map(octet => octet.value);
        if (values.every(value => zeb4func.ipCheck(value))) {
            wrentabledialog.searchCamera(values.concat('0').join('.'));
        } else {
            wrentabledialog.alert(textKey('Input IPAddress'));
        }
    }
});

function octets() {
    return Array.from(document.querySelectorAll('input.nNumOnly'));
}

function listenToOctet(octet) {
    takeDigits(octet);
    octet.addEventListener('change', () => {
        const [min, max] = ['min', 'max'].map(limit => Number(octet.getAttribute(limit)));
        limitOctet(octet, min, max);
    });
}
