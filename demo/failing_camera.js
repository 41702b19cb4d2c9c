// What a camera that fails does to the others: nothing. One does not answer, one refuses what it is told, one vanishes.

const KEYS = [1, 2, 3, 4];
const translate = text => zeb.translate(text);

function step(text) {
    print(text);
    zeb.wait(3000);
}

function alertOf(key) {
    return `$('#wren_cameraInfo_alert_${key}[alert=true]').length > 0`;
}

function rowOf(key) {
    return `$('.wren_label_edit_camera_name[dockey="${key}"]:visible').length > 0`;
}

zeb.mode('live');
zeb.rig(KEYS.length);
check(zeb.open(), 'the table opens');
zeb.click('a[href="#cameraInfoTab"]');
KEYS.forEach(key => zeb.setCamera(key, { connected: true }));
check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length >= 4"), 'all are connected');
step(translate('Four cameras are connected.'));

zeb.fault(2, '*', { throws: translate('the camera does not answer') });
check(zeb.until(alertOf(2)), 'its row has an alert');
step(translate('Camera 2 does not answer any more. Its row says so, the others are as before.'));
zeb.fault(2, '*', {});
check(zeb.until(`!(${alertOf(2)})`), 'its alert is gone');
step(translate('It answers again, and its row is whole again.'));

zeb.click('a[href="#livecontrolTab"]');
check(zeb.until("$('.wren_livecontrol_framerate[dockey=\"4\"]').length > 0"), 'the live control tab is drawn');
zeb.fault(3, 'setRecordRate', { throws: translate('the camera refuses this') });
print(translate('Camera 3 refuses its frame rate. One message names it, and the others are set.'));
zeb.modal(() => zeb.wait(4000));
zeb.answer('ok');
zeb.choose('.SumoSelect[dockey="-1"] p.wren_livecontrol_framerate', '2000');
check(KEYS.every(key => (zeb.camera(key).rate === 2000) === (key !== 3)), 'the others are set');
zeb.fault(3, '*', {});
step(translate('The row of camera 3 shows the frame rate that it still has.'));

zeb.click('a[href="#cameraInfoTab"]');
check(zeb.until(rowOf(4)), 'camera 4 has a row');
zeb.fault(4, '*', { gone: true });
check(zeb.until(`!(${rowOf(4)})`), 'it has no row');
step(translate('Camera 4 has vanished, and its row with it.'));
zeb.fault(4, '*', {});
check(zeb.until(rowOf(4)), 'its row is back');
step(translate('It is back. The button Faults in the window of a camera does all this by hand.'));
