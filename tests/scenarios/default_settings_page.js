// The page of the default settings: what is stored by hand goes back as it came, what is typed is stored in its form or
// refused with a word, and lists work by the keyboard.

let KEYS = [];

function read() {
    const stored = {};
    KEYS.forEach(key => { stored[key] = zeb.pref(key); });
    return stored;
}

function store(values) {
    Object.keys(values).forEach(key => zeb.setPref(key.includes('/') ? key : 'wren/settings/' + key, values[key]));
}

// Runs the dialog over the factory values and these.
function over(values, work) {
    store(FACTORY);
    store(values);
    const before = read();
    zeb.modal(work);
    zeb.page('wrentabledialog.openDefaultSettingsDialog()');
    const after = read();
    zeb.messages();
    const changed = {};
    KEYS.filter(key => after[key] !== before[key])
        .forEach(key => { changed[key.replace('wren/settings/', '')] = after[key]; });
    return changed;
}

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

const tab = number => zeb.click(`#tabs > ul > li:nth-child(${number + 1})`);
const value = id => zeb.dialog(`document.getElementById('${id}').value`);
const told = () => zeb.messages().map(message => message.text).join(' / ');
const groups = () => zeb.dialog('wrendefaultsettingsdialog_obj.concatGroups(wrendefaultsettingsdialog_obj.cameraList)');
const list = name => zeb.dialog(`gridLists.${name}.rows.map(row => row.parts.join('|')).join(' ') + ', ' +
    (gridLists.${name}.selected() || { parts: ['none'] }).parts.join('|')`);

function fill(id, text) {
    zeb.click('#' + id);
    zeb.key('Ctrl+A');
    zeb.type('\b' + text);
}

zeb.speed(10);
zeb.rig(2);
zeb.keys().forEach(key => zeb.setCamera(key, { connected: true }));
zeb.open();
zeb.setPref('wren/settings/groups', 'a:b');
zeb.setPref('wren/table/group', 'b');
zeb.page('wrentabledialog_obj.open()');
same(zeb.page("$('.groupButton').map((_, button) => button.value + button.getAttribute('buttonselected')).get()"),
    ['afalse', 'btrue', 'All groupsfalse'], 'opened again');
zeb.setPref('wren/settings/groups', '');
zeb.modal(() => {
    KEYS = zeb.dialog('Array.from(wrendefaultsettingsdialog_obj.settings.keys())');
    zeb.click('#md_cancel');
});
zeb.page('wrentabledialog.openDefaultSettingsDialog()');
const FACTORY = read();

const HAND_MADE = {
    groups: 'a|10.0.0.1|10.0.0.2|10.0.0.1:::b|x:|:a', triggerMode: 8, triggerManualBeforePer: 33.333,
    triggerManualAfterPer: 120, triggerRandomFrame: 0, triggerRandomTriggerTimes: 500, triggerIn: 8,
    recreadyTableColor: '<b>', frameRates: '3::1|2|<img src=x onerror=alert()>:3', areas: '1000|a|b::|',
    externalSyncSignal: -5, 'sync/lport': 2, 'sync/lport/ipaddress': ' 10.0.0.9,10.0.0.9 ,,hub', 'sync/external': 1,
    'sync/masterCamera': '10.99.0.1'
};
[{}, HAND_MADE, { 'sync/lport': 7, 'sync/generator/address': 'lab' }].forEach(values => {
    same(over(values, () => {
        zeb.setPref('my/own', 1);
        zeb.page('wrentabledialog.updateUI()');
        tab(3);
        zeb.click('#md_cancel');
    }), {}, 'opened and cancelled');
});
same(over(HAND_MADE, () => {
    same(list('synchub'), '10.0.0.9 hub, none', 'a hub is shown once');
    same(groups(), 'a|10.0.0.1|10.0.0.2:::b|x:|:a', 'so is a camera');
    same([value('md_trig_before_per'), value('md_trig_after_per')], ['33.33', '120.00'], 'percentages');
    same(zeb.dialog("document.querySelectorAll('.w2ui-grid img').length"), 0, 'markup is text');
    tab(1);
    zeb.click('#md_locked_resolution');
    zeb.click('#md_ok');
}), { triggerInEnable: true, triggerIn: 9, resolutionLock: true }, 'only what was touched, and what a hub needs');

same(over({ 'sync/external': 1, 'sync/generator/address': '300.lab.1.1' }, () => {
    tab(2);
    zeb.click('#md_signal_generator_ip1');
    zeb.click('#md_ok');
    zeb.click('#md_signal_generator_ip1');
    zeb.type('\t');
    same([1, 2].map(number => value('md_signal_generator_ip' + number)), ['255', ''], 'a press that limits only shows it');
    zeb.type('0');
    zeb.click('#md_ok');
}), { 'sync/generator/address': '255.0.1.1' }, 'what the page makes of an address is stored');

same(over({ 'sync/lport': 2 }, () => {
    tab(2);
    zeb.choose('#md_signal_distributor', '0');
    zeb.page('wrentabledialog.updateUI()');
    zeb.click('#md_cancel');
}), { triggerInEnable: true, triggerIn: 9, 'sync/lport': 0 }, 'left by a Sync Hub');

['live', 'memory'].forEach(mode => {
    const master = { 'sync/masterCamera': '10.99.0.1' };
    zeb.mode(mode);
    same(over(master, () => {
        zeb.mode('live');
        same(value('md_master_camera'), mode === 'live' ? '192.168.0.11' : '', 'the first stands for it');
        zeb.click('#md_ok');
    }), {}, 'a master that is not there stays, opened in mode ' + mode);
});

const MADE = {
    groups: 'Group_1|192.168.0.7', triggerEnable: true, triggerMode: 7, triggerManualBeforePer: 12.35,
    triggerManualAfterPer: 87.65, triggerRandomFrame: 77, triggerRandomTriggerTimes: 5, triggerSwIn: 17,
    resolutionLock: true, lowlightMaxResolution: false, 'sync/lport': 1, 'sync/masterCamera': '192.168.0.12',
    frameRates: '60:500', resolutions: '640|1024', externalSyncSignal: 1000, externalSyncSignals: '1000',
    areas: '1000|-10|0', memoryTableColor: 'blue'
};
same(over({}, () => {
    zeb.click('#md_addgroup');
    zeb.type('\n');
    zeb.dialog("document.getElementById('md_addgroup').focus()");
    zeb.key('Return', { hold: 500 });
    zeb.click('[aria-describedby=add_group_dialog] .close');
    zeb.click('#md_device_group_list .groupes li');
    zeb.click('#md_addcamera');
    fill('md_camera_ip4', '7\n');
    tab(1);
    ['use_trigger', 'locked_resolution', 'lowlight_max_resolution'].forEach(box => zeb.click('#md_' + box));
    zeb.choose('#md_trigger', '7');
    fill('md_trig_before_per', '12.345\t');
    fill('md_trigger_random_frame', '77\t');
    fill('md_trigger_random_times', '5\t');
    zeb.choose('#md_enable_trig_sw_in', '17');
    tab(2);
    zeb.choose('#md_signal_distributor', '1');
    same(told(), 'When connecting to L-PORT, use the camera connected to the CAM 1 connector as the master', 'told');
    zeb.choose('#md_master_camera', '192.168.0.12');
    tab(3);
    fill('md_framerate', '500');
    zeb.click('#md_add_framerate');
    fill('md_framerate', '60\n');
    fill('md_resolution_w', '640\t');
    zeb.click('#md_add_resolution');
    tab(4);
    fill('md_range_start', '-10\t');
    zeb.click('#md_add_disp_range');
    zeb.click('#md_add_externalsyncsigfreq');
    zeb.type('\t');
    zeb.key('Home');
    zeb.click('#md_default_externalsyncsigfreq');
    tab(6);
    zeb.click('[name=tablecolor_memory][value=blue]');
    zeb.click('#md_ok');
}), MADE, 'each value in its form');
same(over(MADE, () => {
    same([groups(), value('md_trigger'), value('md_trig_after_per'), value('md_master_camera')],
        ['Group_1|192.168.0.7', '7', '87.65', '192.168.0.12'], 'and back');
    tab(4);
    zeb.click('#md_clear_externalsyncsigfreq');
    same(told(), 'Clear the list. Is it OK?', 'asked');
    zeb.page('wrentabledialog.updateUI()');
    zeb.until("false", 100);
    zeb.click('#md_cancel');
}), { externalSyncSignal: -1, externalSyncSignals: '' }, 'what an update has stored stays');
[['delete', 1000, '500'], ['clear', 7, '']].forEach(([button, frequency, left]) => {
    same(over({ externalSyncSignal: frequency, externalSyncSignals: '500:01000' }, () => {
        tab(4);
        zeb.click('#md_externalsyncsigfreq_list tr[line="2"]');
        zeb.click(`#md_${button}_externalsyncsigfreq`);
        zeb.click('#md_ok');
    }), { externalSyncSignal: -1, externalSyncSignals: left }, button + ' takes the default along');
});

over({ triggerRandomTriggerTimesEnable: false }, () => {
    tab(1);
    zeb.choose('#md_trigger', '7');
    [['trigger_random_frame', '12345678', '999999'], ['trigger_random_frame', '12a', '999999'],
        ['trigger_random_frame', '', '999999'], ['trigger_random_times', '0', '1'],
        ['trig_before_per', '100.5', '100.00'], ['trig_after_per', '-3', '0.00'],
        ['trig_after_per', '12.345', '12.35']].forEach(([box, typed, shown]) => {
        fill('md_' + box, typed + '\t');
        same(value('md_' + box), shown, `"${typed}" in ${box}`);
    });
    same(value('md_trig_before_per'), '87.65', 'the rest of it');
    fill('md_trigger_random_times', '900');
    zeb.click('#md_ok');
    same(value('md_trigger_random_times'), '100', 'the press that limits it only shows it');
    zeb.choose('#md_trigger', '4');
    zeb.click('#md_trig_slider .ui-slider-handle');
    zeb.key('End');
    zeb.key('Left');
    same([value('md_trig_before_per'), value('md_trig_after_per')], ['99.99', '0.01'], 'the slider ends at 100');
    zeb.click('#md_cancel');
});

const ADDRESS = 'The address is not whole: each of its numbers is one from 0 to 255, the last at least 1, and at most ' +
    '254 in 192.168.';
over({ groups: 'a|10.0.0.1:b', areas: '1000|0|9', 'sync/external': 1, 'sync/lport': 2,
    'sync/lport/ipaddress': '10.0.0.1' }, () => {
    zeb.click('#md_addgroup');
    [['  ', 'Enter a group name.'], ['a ', 'Duplicate group names.'],
        ['*', 'group name contains characters that cannot be used.'], ['x:|', '']].forEach(([name, refusal]) => {
        fill('md_groupname', name + '\n');
        same(told(), refusal, `the name "${name}"`);
    });
    zeb.click('#md_device_group_list .groupes:nth-of-type(5) li');
    zeb.click('#md_addcamera');
    fill('md_camera_ip1', '10\t0\t0\t1\n');
    same(told(), 'Duplicate IPAddress.', 'in another group');
    zeb.click('#md_camera_ip4');
    zeb.key('Ctrl+A');
    zeb.paste(' a25b6');
    zeb.type('\t');
    same(value('md_camera_ip4'), '255', 'what was pasted');
    zeb.click('#md_dummy');
    zeb.type('\n');
    same(told(), ADDRESS, 'of a stand-in without a number');
    fill('md_camera_ip4', '0');
    zeb.click('[aria-describedby=add_camera_dialog] .ok');
    same(value('md_camera_ip4'), '1', 'a press that limits the number only shows it');
    fill('md_camera_ip4', '03\n');
    same(groups(), 'a|10.0.0.1:b:x|999.999.999.3', 'added');
    tab(4);
    [['1', 'The last frame must not be before the first.'], ['', 'Input: First frame'],
        ['0', 'Cannot add because there is a duplicate Frame rate.']].forEach(([start, refusal]) => {
        fill('md_range_start', start + '\n');
        same(told(), refusal, `a range from "${start}"`);
    });
    same(value('md_range_framerate') + list('disp_range'), '10001000|0|9, none', 'all stays as typed');
    tab(2);
    fill('md_synchub_ip1', '10\t0\t0\t1\n');
    same(told(), 'Duplicate IPAddress.', 'of a hub');
    fill('md_signal_generator_ip1', '10');
    zeb.click('#md_ok');
    let said = '';
    for (let looks = 0; looks < 500 && said === ''; looks++) {
        zeb.wait(20);
        said = told();
    }
    same(said, ADDRESS, 'of the generator');
    same(zeb.dialog('document.activeElement.id'), 'md_signal_generator_ip1', 'where it is typed');
    zeb.click('#md_cancel');
});

const RATES = Array.from({ length: 10000 }, (_, index) => index + 1);
same(Object.keys(over({ groups: 'Group_10|10.0.0.2|10.0.0.3:Group_2', frameRates: RATES.join(':'), externalSyncSignals: '30:10:20' },
    () => {
        const keys = (names, name) => names.map(key => {
            zeb.key(key);
            return list(name);
        });
        zeb.click('#tabs > ul > li');
        zeb.type('\t\t\t');
        const selected = ['Down', 'Down', 'Left', 'Left', 'Down', 'Delete', 'Home'].map(key => {
            zeb.key(key);
            return zeb.dialog("wrendefaultsettingsdialog_obj.shownItems().filter(item => item.selected)" +
                ".map(item => item.groupname || item.ipaddress).join('+')");
        });
        same(selected, ['Group_10', 'Group_10+10.0.0.2', 'Group_10', 'Group_10', 'Group_2', '', 'Group_10'], 'groups by keys');
        same(told(), 'Do you want to delete the group?', 'asked');
        zeb.key('F2');
        fill('md_groupname', 'Group_3\n');
        ['Right', 'Down', 'Return'].forEach(key => zeb.key(key));
        fill('md_camera_ip4', '9\n');
        same(groups(), 'Group_3|10.0.0.3|10.0.0.9', 'edited by keys');
        zeb.click('#md_device_group_list .childs li', { down: true });
        zeb.key('Delete');
        zeb.click('#md_addgroup', { down: false });
        same(zeb.dialog("Array.from(document.querySelectorAll('#md_device_group_list .name')).map(name => name.textContent)"),
            ['Group_3', '10.0.0.3'], 'a row that goes while the mouse is down');
        tab(4);
        zeb.click('#md_externalsyncsigfreq_list .w2ui-grid-records tr[recid]');
        fill('md_external_sync_sig_freq', '25\n');
        same(list('externalsyncsigfreq'), '10 20 25 30, 30', 'sorted, and the same selected');
        zeb.type('\t\t');
        same(keys(['Up', 'Delete', 'Up', 'Down', 'Space', 'Home', 'Delete'], 'externalsyncsigfreq'),
            ['10 20 25 30, 25', '10 20 30, none', '10 20 30, 20', '10 20 30, 30', '10 20 30, none', '10 20 30, 10',
                '20 30, none'], 'a list by keys');
        tab(3);
        zeb.click('#md_framerate_list .w2ui-grid-records');
        zeb.key('End');
        zeb.key('Delete');
        check(zeb.dialog("document.querySelectorAll('#md_framerate_list tr').length") < 200, 'a long list draws what is seen');
        zeb.click('#md_ok');
    })), ['groups', 'frameRates', 'externalSyncSignals'], 'what was edited');
check(zeb.pref('wren/settings/frameRates').endsWith(':9999'), 'its last entry has gone');
