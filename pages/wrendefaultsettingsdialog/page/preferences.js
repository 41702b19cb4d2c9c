// The preferences that the dialog edits, in the order in which they are stored: name, kind, and what makes the control.
// A name is a key, or its end after `wren/settings/`.
const SETTINGS = [
    ['groups', 'groups', page => page.groupsControl()],
    ['triggerEnable', 'bool', () => checkBox('md_use_trigger')],
    ['triggerMode', 'int', () => choice('md_trigger', Number)],
    ['triggerManualBeforePer', 'float', page => page.beforeControl()],
    ['triggerManualAfterPer', 'float', page => page.afterControl()],
    ['triggerRandomFrame', 'int', page => numberIn(page.randomFrame)],
    ['triggerRandomTriggerTimesEnable', 'bool', () => checkBox('md_trigger_random_trigger_times_enable')],
    ['triggerRandomTriggerTimes', 'int', page => numberIn(page.randomTimes)],
    ['triggerSwInEnable', 'bool', () => checkBox('md_enable_trig_sw_in_enable')],
    ['triggerSwIn', 'int', () => choice('md_enable_trig_sw_in', Number)],
    ['triggerInEnable', 'bool', () => checkBox('md_enable_trig_ttl_in_enable')],
    ['triggerIn', 'int', () => choice('md_enable_trig_ttl_in', Number)],
    ['resolutionLock', 'bool', () => checkBox('md_locked_resolution')],
    ['shutterSpeedLock', 'bool', () => checkBox('md_locked_shutter_speed')],
    ['lowlightMaxResolution', 'bool', () => checkBox('md_lowlight_max_resolution')],
    ['syncInEnable', 'bool', () => checkBox('md_use_synccontrol')],
    ['sync/lport', 'int', () => choice('md_signal_distributor', Number)],
    ['sync/external', 'bit', page => page.syncInputControl()],
    ['sync/generator/input', 'int', () => choice('md_sync_in', Number)],
    ['sync/generator/address', 'text', () => addressIn('md_signal_generator')],
    ['sync/masterCamera', 'text', page => page.masterCameraControl()],
    ['sync/lport/ipaddress', 'text', () => listText('synchub', ',', distinctHubs)],
    ['frameRatesEnable', 'bool', () => checkBox('md_framerates_enable')],
    ['frameRates', 'text', () => listText('framerate', ':')],
    ['shutterSpeedsEnable', 'bool', () => checkBox('md_shutter_speeds_enable')],
    ['shutterSpeeds', 'text', () => listText('shutterspeed', ':')],
    ['resolutionsEnable', 'bool', () => checkBox('md_resolutions_enable')],
    ['resolutions', 'text', () => listText('resolution', ':')],
    ['externalSyncSignalsEnable', 'bool', () => checkBox('md_external_sync_signals_enable')],
    ['externalSyncSignal', 'int', page => page.defaultFrequencyControl()],
    ['externalSyncSignals', 'text', () => listText('externalsyncsigfreq', ':')],
    ['areasEnable', 'bool', () => checkBox('md_disp_range_enable')],
    ['areas', 'text', () => listText('disp_range', ':')],
    ['alert/wren/multiheadlockalert', 'bool', () => checkBox('md_confirm_multiheadlockalert')],
    ['recordingSync', 'bool', () => checkBox('md_recording_sync')],
    ['recreadyTableColor', 'text', () => radio('tablecolor_recready')],
    ['recordingTableColor', 'text', () => radio('tablecolor_recording')],
    ['memoryTableColor', 'text', () => radio('tablecolor_memory')]
];

SETTINGS.forEach(([name, kind, makeControl]) => {
    const key = wholeKey(name);
    wrendefaultsettingsdialog_obj.settings.set(key, new Setting(key, kind, makeControl));
});

function wholeKey(name) {
    return name.includes('/') ? name : 'wren/settings/' + name;
}

// The setting of that name. Topics that change one name it at their heads, so that a wrong name shows at load.
function setting(name) {
    const found = wrendefaultsettingsdialog_obj.settings.get(wholeKey(name));
    if (!found) {
        throw new Error(`There is no setting ${name}.`);
    }
    return found;
}

Object.assign(wrendefaultsettingsdialog_obj, {
    initializeSettings() {
        this.settings.forEach(each => each.bind(this));
    },

    groupsControl() {
        return {
            show: text => {
                this.cameraList = this.parseGroups(text);
                this.last_select_group = '';
                this.createGroupCameraList();
            },
            value: () => this.concatGroups(this.cameraList)
        };
    },

    // The two percentages move together; `putTriggerPoint` touches both.
    beforeControl() {
        return {
            show: percent => {
                this.before.show(percent);
                $('#md_trig_slider').slider('value', percent);
            },
            value: () => this.before.number
        };
    },

    afterControl() {
        return {
            show: percent => this.after.show(percent),
            value: () => this.after.number
        };
    },

    syncInputControl() {
        const control = radio('sync_in_radio');
        return {
            show: isExternal => control.show(isExternal ? '0' : CHAIN),
            value: () => control.value() === CHAIN ? 0 : 1,
            listen: control.listen
        };
    },

    // Shows the first candidate for one that is not among them.
    masterCameraControl() {
        const select = document.getElementById('md_master_camera');
        const control = choice('md_master_camera', String);
        return Object.assign({}, control, {
            show: address => {
                control.show(address);
                select.selectedIndex = Math.max(0, select.selectedIndex);
            },
            isUnknown: () => bridge.isMemoryMode() || select.length === 0
        });
    },

    defaultFrequencyControl() {
        const box = document.getElementById('md_default_value');
        return {
            show: number => { box.value = number < 0 ? '' : String(number); },
            value: () => box.value === '' ? -1 : Number(box.value)
        };
    },

    load() {
        this.isLoaded = false;
        this.loadMasterCameras();
        this.settings.forEach(each => each.load());
        this.dispTriggerParam(setting('triggerMode').stored);
        this.showDistributor(false);
        this.enableSyncInput();
        this.isLoaded = true;
    },

    // All values are there before the first one is stored.
    save() {
        if (this.isLoaded) {
            const values = Array.from(this.settings.values(), each => [each, each.gather()]);
            values.forEach(([each, value]) => each.store(value));
        }
    }
});

// `read` makes of the stored text what the list shows.
function listText(name, delimiter, read = text => text) {
    const list = gridLists[name];
    return {
        show: text => {
            list.setRows([]);
            wrendefaultsettingsdialog_obj.gridListParse(name, list.fields, read(text), delimiter);
        },
        value: () => wrendefaultsettingsdialog_obj.gridListConcat(name, list.fields, delimiter),
        listen: touch => list.onEdit(touch)
    };
}
