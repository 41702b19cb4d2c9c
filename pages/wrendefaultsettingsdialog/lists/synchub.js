// The Sync Hubs, by their addresses.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializeSyncHubs() {
        const list = new GridList({
            name: 'synchub',
            columns: [{ field: 'ipaddress' }],
            hasHeader: false,
            hasFiller: true
        });
        const add = () => this.addSyncHub(list);
        onFinalPress('md_add_synchub', add);
        octetsOf('md_synchub').forEach(octet => octet.addEventListener('keydown', event => {
            if (event.keyCode === KEY.ENTER) {
                guarded(() => workUnlessCorrected(document.getElementById('md_add_synchub'), add));
            }
        }));
        this.initializeListButtons(list);
    },

    addSyncHub(list) {
        const ipaddress = this.concatIp('md_synchub', false);
        if (ipaddress === '') {
            bridge.alert(textKey('Input IPAddress'));
        } else if (list.rows.some(row => row.ipaddress === ipaddress)) {
            bridge.alert(textKey('Duplicate IPAddress.'));
        } else {
            list.add([ipaddress], zeb4func.ipSort);
            this.setIp('md_synchub', '');
        }
    }
});

// Of those that were stored by hand each is shown once, without the blanks around it.
function distinctHubs(text) {
    return Array.from(new Set(text.split(',').map(hub => hub.trim()))).filter(hub => hub !== '').join(',');
}
