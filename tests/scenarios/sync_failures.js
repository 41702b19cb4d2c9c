// What keeps cameras from being put on one signal, and what the operator is told then: one message each, with nothing
// done to any camera. The table's timer is as good as off, for he clicks before the table looks again.

const HUBS = ['192.168.0.91', '192.168.0.92'];
const FIT = {triggerMode: 1, lowLight: false, dualSlope: 0, autoExposure: false};

function synchronised() {
    return zeb.calls().filter(call => call.call === 'ZebCameraOps::syncCameras').length;
}

function expect(told, button, kind, wanted) {
    zeb.messages();
    zeb.click(button);
    // What a search has found is told a moment later.
    const shown = zeb.messages().filter(message => !message.text.startsWith('Search in'));
    check(shown.length === 1 && shown[0].kind === kind && shown[0].text.includes(wanted),
        `${told}: ${JSON.stringify(shown)}`);
}

// The button refuses with this text, and no camera hears of it.
function expectRefusal(told, text) {
    zeb.calls();
    expect(told, '#sync_execute', 'error', text);
    check(synchronised() === 0, 'nothing is done');
}

function look() {
    zeb.page('wrentabledialog_obj.autoUpdate(); return 0');
}

function isConnected(button) {
    look();
    check(zeb.page(`$('${button}').is(':visible')`), `${button} can be clicked`);
    return zeb.page(`$('${button}').hasClass('connected')`);
}

zeb.setPref('wren/table/interval', 3600000);
zeb.setPref('wren/settings/syncInEnable', true);
zeb.setPref('alert/setsynchronization', false);
zeb.setPref('sync/external', true);
zeb.setPref('sync/lport', 2);
zeb.setPref('sync/lport/ipaddress', HUBS.join());
zeb.rig('sync_lab.json');
check(zeb.open(), 'the table opens');
check(zeb.messages().length === 0 && isConnected('#connect_signal_distributor'), 'both hubs are there');

zeb.setHub(HUBS[1], {found: false});
expect('a hub is missing', '#connect_signal_distributor', 'error', 'Failed to connect to Sync Hub');
check(!isConnected('#connect_signal_distributor'), 'no hub is used then');
zeb.calls();
expect('synchronising tells it too', '#sync_execute', 'error', 'Failed to connect to Sync Hub');
check(synchronised() === 1, 'and goes on with the cameras');

zeb.setPref('sync/generator/address', '192.168.0.90');    // and goes before the hubs
zeb.visa({viOpen: {status: 0xBFFF0011}});
expect('the generator can not be reached', '#sync_execute', 'error', 'Could not connect with signal generator');
check(!isConnected('#connect_signal_generator'), 'it is shown for what it is');
expect('nor by its button', '#connect_signal_generator', 'error', 'Could not connect with signal generator');
zeb.visa({identity: 'Maker,33210B,0,1.0'});
expect('it is of another model', '#connect_signal_generator', 'error', 'can not be connected because unsupported device.');
check(!isConnected('#connect_signal_generator'), 'such a one is not used');
zeb.visa({});
zeb.messages();
zeb.click('#connect_signal_generator');
check(zeb.messages().length === 0 && isConnected('#connect_signal_generator'), 'the right one is');
zeb.visa({viClear: {status: -1}});
zeb.click('#externalSyncSelector');
zeb.type('5000\n');
check(zeb.messages().map(message => message.text).join() === 'Failed sync to signal generator', 'it can not be set');
zeb.visa({});
zeb.click('#connect_signal_generator');

[
    ['a camera waits for another trigger', {2: {triggerMode: 2}},
        'Sync setting is possible only when all cameras are in the same trigger mode.'],
    ['a camera is in low light', {2: {lowLight: true}},
        'Synchronization setting is impossible due to the presence of low light camera.'],
    ['one is in low light before another waits for another trigger', {1: {lowLight: true}, 2: {triggerMode: 2}},
        'Synchronization setting is impossible due to the presence of low light camera.'],
    ['cameras of different timing wait for a start trigger',
        {1: {triggerMode: 0}, 2: {triggerMode: 0}, 3: {triggerMode: 0}, 4: {triggerMode: 0}},
        'Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not be ' +
        'used. Consider using manual mode.'],
    ['a shutter has two slopes, and the exposure is automatic', {4: {dualSlope: 1, autoExposure: true}},
        'Synchronization setting can not be done because there is a dual slope shutter camera.'],
    ['an exposure is automatic', {4: {autoExposure: true}},
        'Synchronization setting is impossible because there is a camera with automatic exposure control.']
].forEach(([told, spoilt, text]) => {
    Object.keys(spoilt).forEach(key => zeb.setCamera(Number(key), spoilt[key]));
    expectRefusal(told, text);
    [1, 2, 3, 4].forEach(key => zeb.setCamera(key, FIT));
});
[1, 2, 3, 4].forEach(key => zeb.setCamera(key, {triggerMode: 4}));
zeb.messages();
zeb.click('#sync_execute');
check(synchronised() === 1 && zeb.messages().length === 0, 'cameras of different timing may wait for a manual one');

zeb.setCamera(3, {lowLight: true});
look();
check(zeb.page("$('#sync_execute').is(':disabled')"), 'once the table knows of low light, the button is off');
zeb.setCamera(3, {lowLight: false});
look();

zeb.fault(2, 'synchronise', {throws: 'no clock'});
zeb.setPref('alert/setsynchronization', true);
zeb.calls();
expect('a camera fails', '#sync_execute', 'error', 'Ramp');
check(synchronised() === 1, 'while it was at work');
zeb.fault(2, 'synchronise', {});

// Search by address finds the camera of the old type, the search for all devices the dummy too.
zeb.click('#accordion h3');
['192', '168', '7'].forEach((octet, index) => {
    zeb.click(`#livecontrol_ip${index + 1}`);
    zeb.page(`document.getElementById('livecontrol_ip${index + 1}').select(); return 0`);
    zeb.type(octet);
});
const before = zeb.keys();
zeb.click('#livecontrol_search');
check(zeb.keys().length === before.length + 1, 'one more camera is found');
zeb.setCamera(zeb.keys()[4], {connected: true, lowLight: true});
expectRefusal('its type can not be synchronised, low light or not', 'The selected camera does not support sync setting');
zeb.setCamera(zeb.keys()[4], {lowLight: false});
zeb.click('#livecontrol_discovery');
check(zeb.keys().length === before.length + 2, 'another one is');
expectRefusal('it is a dummy', 'Dummy camera can not set synchronization');
