// The first minute with the table: eight cameras are connected, two are locked, and the others are set by one choice.

const KEYS = [1, 2, 3, 4, 5, 6, 7, 8];
const LOCKED = [2, 5];
const translate = text => zeb.translate(text);

function step(text) {
    print(text);
    zeb.wait(2500);
}

function choose(key, what, value) {
    zeb.choose(`.SumoSelect[dockey="${key}"] p.wren_livecontrol_${what}`, value);
}

zeb.mode('live');
zeb.rig(KEYS.length);
check(zeb.open(), 'the table opens');
zeb.click('a[href="#cameraInfoTab"]');
step(translate('Eight cameras are found, and none is connected.'));
zeb.page(`wrentabledialog.select(${JSON.stringify(KEYS.map(String))}, true)`);

zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length >= 8"), 'all are connected');
step(translate('The switch in the row "All cameras" has connected them.'));

LOCKED.forEach(key => zeb.click(`#wren_cameraInfo_button_lockStatus_unlock_${key}`));
check(LOCKED.every(key => zeb.camera(key).locked), 'two are locked');
step(translate('Two padlocks are closed: nothing changes these cameras now.'));

zeb.click('a[href="#livecontrolTab"]');
check(zeb.until("$('.wren_livecontrol_framerate[dockey=\"8\"]').length > 0"), 'the live control tab is drawn');
step(translate('Here are the shooting conditions of each camera.'));

const before = zeb.camera(LOCKED[0]).rate;
choose(-1, 'framerate', '2000');
check(KEYS.every(key => zeb.camera(key).rate === (LOCKED.includes(key) ? before : 2000)), 'all but the locked ones are set');
step(translate('One choice in the row "All cameras" has set the frame rate of all that are not locked.'));

choose(3, 'shutterSpeed', '5000');
check(zeb.camera(3).shutter === 5000 && zeb.camera(4).shutter !== 5000, 'one has a shutter speed of its own');
step(translate('A choice in a row sets its camera alone. What a row shows is what the camera has answered.'));
