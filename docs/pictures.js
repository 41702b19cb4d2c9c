// Takes all pictures of README.md and docs/ anew, into the folder docs/ of the folder it is started in:
//     ./run --prefs /tmp/pictures.ini --scenario docs/pictures.js

const STATUS = "$('#timeline_rec_exec').data('status')";

function shot(name) {
    print('picture: ' + zeb.shot(`docs/${name}.png`));
}

function begin(rig) {
    zeb.rig(rig);
    zeb.open();
    zeb.window('100,100,1200,600');
}

function connect() {
    zeb.click('#wren_button_connection_disconnect_-1');
    check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length === 8"), 'connected');
}

function lock(keys) {
    keys.forEach(key => zeb.click(`#wren_cameraInfo_button_lockStatus_unlock_${key}`));
}

// Takes the pointer to where nothing shows it.
function leave() {
    zeb.click('#accordion_label', { down: false });
}

function toTab(name) {
    zeb.click(`a[href="#${name}Tab"]`);
    leave();
}

// The table at work.
zeb.setPref('env/style', 'light');
zeb.setPref('wren/settings/syncInEnable', false);
begin('eight-mixed');
connect();
lock([2, 5]);
toTab('livecontrol');
shot('table');
zeb.close();

// One shoot, for operating.md: found, ...
zeb.setPref('wren/settings/syncInEnable', true);
zeb.setPref('sync/external', true);
zeb.setPref('sync/generator/address', '192.168.0.70');
zeb.visa({ frequency: 1000 });
begin('sync');
toTab('cameraInfo');
zeb.click('#accordion h3');
zeb.window('100,100,1200,640');
zeb.click('#livecontrol_ip1');
zeb.type('192\t168\t0\t');
shot('find');
zeb.click('#accordion h3');
zeb.window('100,100,1200,600');

// ... set, ...
connect();
toTab('livecontrol');
zeb.click('.SumoSelect[dockey="-1"] p.wren_livecontrol_framerate');
shot('conditions');
zeb.type('\u001b');
zeb.choose('.SumoSelect[dockey="-1"] p.wren_livecontrol_framerate', '1000');

// ... synchronised, ...
toTab('cameraInfo');
lock([1, 2, 3, 4, 5, 6, 7, 8]);
zeb.click('#sync_execute');
check(zeb.until("$('#wren-cameraInfo-list .wren_sync[sync=\"Sync In\"]').length === 8"), 'in step');

// ... armed, ...
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`), 'armed');
shot('armed');
zeb.wait(400);
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 3`), 'recording');
zeb.wait(200);
zeb.click('#timeline_rec_exec');

// ... and looked at.
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'recorded');
[1, 2, 3].forEach(key => zeb.click(`#wren_memoryInfo_recordCheck_${key}`));
zeb.click('#wren_spinner_select_end_frameno2', { double: true });
zeb.type('100\n');
check(zeb.until("$('#wren_spinner_select_end_frameno2').val() === '100'"), 'trimmed');
leave();
shot('review');
