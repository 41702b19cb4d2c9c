// The preferences that the dialog edits.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializeSettings() {
        this.tableOfSettings().forEach(([key, kind, control]) => {
            this.settings.set(key, new Setting(key, kind, control));
        });
    },

    // In the order in which they are stored.
    tableOfSettings() {
        return [
            ['wren/settings/groups', 'groups', this.groupsControl()]
        ].concat(this.cameraSettings(), this.syncSettings(), this.listSettings(), [
            ['alert/wren/multiheadlockalert', 'bool', checkBox('md_confirm_multiheadlockalert')],
            ['wren/settings/recordingSync', 'bool', checkBox('md_recording_sync')]
        ], Object.keys(TABLE_COLOUR_OF).map(name => [TABLE_COLOUR_OF[name].key, 'text', radio(name)]));
    },

    cameraSettings() {
        return [
            ['triggerEnable', 'bool', checkBox('md_use_trigger')],
            ['triggerMode', 'int', choice('md_trigger', Number)],
            ['triggerManualBeforePer', 'float', this.triggerPointControl()],
            ['triggerManualAfterPer', 'float', numberIn(this.after)],
            ['triggerRandomFrame', 'int', numberIn(this.randomFrame)],
            ['triggerRandomTriggerTimesEnable', 'bool', checkBox('md_trigger_random_trigger_times_enable')],
            ['triggerRandomTriggerTimes', 'int', numberIn(this.randomTimes)],
            ['triggerSwInEnable', 'bool', checkBox('md_enable_trig_sw_in_enable')],
            ['triggerSwIn', 'int', choice('md_enable_trig_sw_in', Number)],
            ['triggerInEnable', 'bool', checkBox('md_enable_trig_ttl_in_enable')],
            ['triggerIn', 'int', choice('md_enable_trig_ttl_in', Number)],
            ['resolutionLock', 'bool', checkBox('md_locked_resolution')],
            ['shutterSpeedLock', 'bool', checkBox('md_locked_shutter_speed')],
            ['lowlightMaxResolution', 'bool', checkBox('md_lowlight_max_resolution')]
        ].map(inSettings);
    },

    syncSettings() {
        return [
            ['wren/settings/syncInEnable', 'bool', checkBox('md_use_synccontrol')],
            ['sync/lport', 'int', choice('md_signal_distributor', Number)],
            ['sync/external', 'bit', this.syncInputControl()],
            ['sync/generator/input', 'int', choice('md_sync_in', Number)],
            ['sync/generator/address', 'text', addressIn('md_signal_generator')],
            ['sync/masterCamera', 'text', this.masterCameraControl()],
            ['sync/lport/ipaddress', 'text', listText('synchub', ',', distinctHubs)]
        ];
    },

    listSettings() {
        return [
            ['frameRatesEnable', 'bool', checkBox('md_framerates_enable')],
            ['frameRates', 'text', listText('framerate', ':')],
            ['shutterSpeedsEnable', 'bool', checkBox('md_shutter_speeds_enable')],
            ['shutterSpeeds', 'text', listText('shutterspeed', ':')],
            ['resolutionsEnable', 'bool', checkBox('md_resolutions_enable')],
            ['resolutions', 'text', listText('resolution', ':')],
            ['externalSyncSignalsEnable', 'bool', checkBox('md_external_sync_signals_enable')],
            ['externalSyncSignal', 'int', this.defaultFrequencyControl()],
            ['externalSyncSignals', 'text', listText('externalsyncsigfreq', ':')],
            ['areasEnable', 'bool', checkBox('md_disp_range_enable')],
            ['areas', 'text', listText('disp_range', ':')]
        ].map(inSettings);
    },

    // They say themselves when they are touched.
    groupsControl() {
        return {
            show: text => {
                this.cameraList = this.parseGroups(text);
                this.last_select_group = '';
                this.createGroupCameraList();
            },
            value: () => this.concatGroups(this.cameraList),
            listen: () => undefined
        };
    },

    // The two percentages move together, so what touches one touches both.
    triggerPointControl() {
        const control = numberIn(this.before);
        return Object.assign({}, control, {
            show: percent => {
                control.show(percent);
                $('#md_trig_slider').slider('value', percent);
            }
        });
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
            value: () => box.value === '' ? -1 : Number(box.value),
            listen: () => undefined
        };
    },

    load() {
        this.isLoaded = false;
        this.loadMasterCameras();
        this.settings.forEach(setting => setting.load());
        this.dispTriggerParam(this.settings.get('wren/settings/triggerMode').stored);
        this.showDistributor(false);
        this.enableSyncInput();
        this.isLoaded = true;
    },

    // All values are there before the first one is stored.
    save() {
        if (this.isLoaded) {
            const values = Array.from(this.settings.values(), setting => [setting, setting.gather()]);
            values.forEach(([setting, value]) => setting.store(value));
        }
    }
});

function inSettings([name, kind, control]) {
    return ['wren/settings/' + name, kind, control];
}

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
