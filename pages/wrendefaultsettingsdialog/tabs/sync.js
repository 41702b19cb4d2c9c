const NO_DISTRIBUTOR = 0;
const L_PORT = 1;
const SYNC_HUB = 2;
const TRIG_NEG = '9';
const CHAIN = '1'; // of the two radio buttons
const hubTrigger = ['triggerInEnable', 'triggerIn'].map(setting);

// How the cameras are synchronised.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializeSync() {
        document.getElementById('md_signal_distributor').addEventListener('change', () => guarded(() => {
            this.showDistributor(true);
            this.syncWarning(this.distributor(), this.syncInput());
        }));
        $('[name="sync_in_radio"]').on('change', () => guarded(() => {
            this.enableSyncInput();
            this.syncWarning(this.distributor(), this.syncInput());
        }));
    },

    distributor: () => Number(document.getElementById('md_signal_distributor').value) || NO_DISTRIBUTOR,
    syncInput: () => document.querySelector('[name="sync_in_radio"]:checked').value,

    showDistributor(byUser) {
        const distributor = this.distributor();
        const isHub = distributor === SYNC_HUB;
        showAll('.synchub', isHub);
        showAll('.lport', distributor === L_PORT);
        gridLists.synchub.draw();
        zeb4func.disable('#md_enable_trig_ttl_in_enable, #md_enable_trig_ttl_in', isHub);
        if (isHub) {
            this.forceHubTrigger(byUser);
        } else if (byUser) {
            hubTrigger.forEach(each => each.accept());
        }
    },

    // A Sync Hub needs one certain signal at the trigger terminal.
    forceHubTrigger(byUser) {
        document.getElementById('md_enable_trig_ttl_in_enable').checked = true;
        chooseOption(document.getElementById('md_enable_trig_ttl_in'), TRIG_NEG);
        hubTrigger.forEach(each => each.force(byUser));
    },

    enableSyncInput() {
        const isChain = this.syncInput() === CHAIN;
        zeb4func.disable('#md_sync_in', isChain);
        zeb4func.disable(octetsOf('md_signal_generator'), isChain);
        zeb4func.disable('#md_master_camera', !isChain);
    },

    syncWarning(signal, radioValue) {
        const name = { [L_PORT]: textKey('L-PORT'), [SYNC_HUB]: textKey('Sync Hub') }[signal];
        if (this.isLoaded && name && radioValue === CHAIN) {
            bridge.warn(translate(CONNECTOR, name));
        }
    },

    // The cameras that can lead a chain. In memory mode they stay unknown.
    loadMasterCameras() {
        const select = document.getElementById('md_master_camera');
        select.textContent = '';
        this.masterCameras().forEach(device => {
            const option = document.createElement('option');
            option.value = device.address;
            option.textContent = `${device.name} (${device.address})`;
            select.appendChild(option);
        });
    },

    masterCameras() {
        const reply = bridge.isMemoryMode() ? null : parseReply(bridge.getMasterCameraList());
        return reply && Array.isArray(reply.devices) ? reply.devices : [];
    },

    // Whether the generator's address is whole, or none.
    isConsistent() {
        const isEmpty = octetsOf('md_signal_generator').every(octet => octet.value === '');
        if (isEmpty || this.concatIp('md_signal_generator', false) !== '') {
            return true;
        }
        zeb4func.log('Default settings: the address of the signal generator is not whole.');
        window.setTimeout(() => guarded(() => {
            $('#tabs').tabs('option', 'active', 2);
            document.getElementById('md_signal_generator_ip1').focus();
            bridge.alert(textKey('Input IPAddress'));
        }), 100);
        return false;
    }
});

const CONNECTOR = textKey('When connecting to %1, use the camera connected to the CAM 1 connector as the master');

function showAll(selector, shown) {
    Array.from(document.querySelectorAll(selector)).forEach(element => showElement(element, shown));
}
