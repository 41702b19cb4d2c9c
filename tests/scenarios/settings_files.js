// The settings of eight cameras, saved and loaded by keys and mouse: as they were, into fewer cameras, past locks,
// refusals and cameras that go, and from what lies in the devices themselves.

const P = text => zeb.page(text);
const folder = `${zeb.pref('export/dir')}/settings`;
const told = () => zeb.messages();
const STATES = ['connected', 'selected', 'locked', 'plugins', 'blockedPlugins', 'presets', 'preset', 'partition',
    'partitions', 'status', 'recordState', 'syncStatus', 'alerts', 'stopLive', 'playing', 'suspendReduce'];

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

// What of a camera a file is to bring back.
function settings(key) {
    const state = zeb.camera(key);
    STATES.forEach(member => delete state[member]);
    return state;
}

const all = () => zeb.keys().map(settings);

// Which members of which cameras are not as they were.
function changed(cameras, before) {
    const lines = [];
    cameras.forEach((state, index) => Object.keys(state).forEach(member => {
        const [is, was] = [state, before[index]].map(one => JSON.stringify(one[member]));
        if (is !== was) {
            lines.push(`${before[index].name}.${member} ${is} in place of ${was}`);
        }
    }));
    return lines;
}

function begin(rig) {
    zeb.rig(rig);
    zeb.keys().forEach(key => zeb.setCamera(key, {connected: true, selected: key < 3}));
    zeb.setPref('rigx/path', folder);
    check(zeb.open(), 'the table opens');
    if (!P('wrentabledialog_obj.accordionOpen')) {
        zeb.click('#accordion h3');
    }
}

function save(name) {
    zeb.modal(() => {
        zeb.click('#name');
        zeb.key('Ctrl+A');
        zeb.type(name);
        zeb.type('\n');
    });
    zeb.click('#livecontrol_save_button');
}

function load(name) {
    zeb.modal(() => zeb.type(`${name}\n`));
    zeb.click('#livecontrol_load_button');
    return told();
}

const texts = () => told().map(box => box.text);

// Every setting as something else, of what the camera's model offers.
const OTHERS = {
    comment: 'changed', alias: 'mine', randomFrames: 7, randomTimes: 3, randomCounted: true, resolutionLock: true,
    shutterSpeedLock: true, effectivePlugins: ['lut'], pluginValues: {lut: {black: 9}}, partitionNames: ['first'], frameSkip: 4, frameSkipEnabled: true, frameSkipMode: 1,
    recordArea: [-5, 5], rotation: 0.25, flipHorizontal: true, flipVertical: true, zoom: 2, dualSlope: 1,
    autoExposure: true, lutCurve: true,
    customInfo: [{name: 'TestNo', value: '12', unit: '', display: true, usefilename: false}]
};

zeb.writeFile(`${folder}/other.txt`, 'so that the folder is there');
begin('eight-mixed');
same(texts().length, 2, 'old images are asked about and named');
const before = all();
save('eight');
const file = JSON.parse(zeb.readFile(`${folder}/eight.rigx`));
same([file.format, file.cameras.length, texts()], [1, 7, []], 'seven devices are in the file');
zeb.keys().forEach(key => zeb.setCamera(key, OTHERS));
zeb.setCamera(1, {irig: true, irigStampAtEnd: true, irigSync: true, reduce: true, lowLightType: 3, binningPower: 1});
zeb.setCamera(1, {rate: 500, shutter: 500, resolution: [1024, 512], triggerMode: 4, name: '<b>"Other"'});
zeb.answer('Cancel');
same(load('eight').map(box => box.answer), ['Cancel'], 'the preview can be left');
same(zeb.camera(1).rate, 500, 'which changes nothing');
const [preview, result] = load('eight').map(box => box.text);
check(preview.startsWith('Load the settings of "eight.rigx"?') &&
    preview.includes('<b>"Other": Frame rate 500 fps → 1000 fps'), `the preview tells what changes`);
check(result.startsWith('The settings of "eight.rigx" are loaded.'), `the result: ${result}`);
same(changed(all(), before), [], 'every camera is as it was');
same(load('eight').map(box => box.text.includes('→')), [false], 'the same file again changes nothing');

// A lock and a failure are told, and the others are set; a second load ends right when they are gone.
const isLockShown = on => zeb.until(`$('#wren_cameraInfo_button_lockStatus_lock_1:visible').length === ${on}`);
zeb.keys().forEach(key => zeb.setCamera(key, {comment: `changed ${key}`}));
zeb.setCamera(1, {locked: true});
zeb.fault(2, 'setComment', {throws: 'no answer'});
check(isLockShown(1), 'the row shows the lock');
const lines = load('eight').map(box => box.text).join('\n').split('\n');
[['Gate', 'locked'], ['Ramp', 'no answer']].forEach(([name, reason]) =>
    check(lines.some(line => line.startsWith(name) && line.includes(reason)), `${name}: it is told: ${lines}`));
same(changed(all().slice(2), before.slice(2)), [], 'the others are set');
zeb.setCamera(1, {locked: false});
zeb.fault(2, 'setComment', {});
check(isLockShown(0), 'the row shows no lock');
load('eight');
same(changed(all(), before), [], 'a second load ends right');

// A file with a fault, and a name that can't be.
zeb.writeFile(`${folder}/broken.rigx`, zeb.readFile(`${folder}/eight.rigx`).replace(/"rate": *1000/, '"rate": "fast"'));
same(load('broken').map(box => /broken\.rigx: line \d+: .*rate/.test(box.text)), [true], 'a broken file is one message');
same(changed(all(), before), [], 'and changes nothing');
zeb.modal(() => zeb.type('a?b\n\x1b'));
zeb.click('#livecontrol_load_button');
same(texts(), ['Invalid filename.'], 'no such name is opened');
zeb.modal(() => {
    zeb.click('#name');
    ['a?b', 'eight'].forEach(name => {
        zeb.key('Ctrl+A');
        zeb.type(`${name}\n`);
    });
    zeb.type('\x1b');
});
zeb.answer('ok', 'cancel');
zeb.click('#livecontrol_save_button');
same(texts(), ['Invalid filename.', 'Do you want to overwrite it?'], 'nor saved, nor over a file');

// Presets: stored in the devices, changed, and back; one of them starts anew for it.
zeb.speed(20);
zeb.modal(() => {
    zeb.page('0');
    zeb.click('#presets th:nth-child(3) input');
    zeb.click('#ok');
});
zeb.click('#livecontrol_save_button');
same(zeb.keys().map(key => zeb.camera(key).preset), [2, 2, 2, 2, 0, 2, 2, 0], 'all that have presets store theirs');
zeb.setCamera(1, {rate: 500});
zeb.setCamera(4, {rate: 250});
zeb.setCamera(7, {rate: 20000});
zeb.modal(() => {
    zeb.push('Load from camera');
    ['Ramp', 'Track'].forEach(name => zeb.push('None', name));
    zeb.push('OK');
});
zeb.answer('ok');
zeb.click('#livecontrol_load_button');
const reboot = 'The following camera preset is loaded after rebooting. Please restart the camera.\n\n Impact';
same(texts(), [reboot], 'the user is asked about the one that starts anew');
same([1, 4].map(key => zeb.camera(key).rate), [before[0].rate, before[3].rate], 'the presets are loaded');
same(zeb.camera(7).connected, false, 'that one is away');
check(zeb.until("$('#wren_button_connection_disconnect_7:visible').length") &&
    zeb.until("$('#wren_button_connection_connect_7:visible').length", 60000), 'its row tells that it is back');
same([zeb.camera(7).connected, zeb.camera(7).rate, texts()], [true, before[6].rate, []], 'and back, without a word');
check(zeb.page("document.querySelectorAll('tr[recid]').length") > 8, 'the table shows all of them');
zeb.close();
