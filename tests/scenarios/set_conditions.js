// An operator finds two more cameras, sets the conditions of all from the batch row, and then looks after single ones.
// What the rows show is what the cameras answered.

const NAMES = "$('#wren-cameraInfo-list .wren_label_edit_camera_name').map(function () { return this.textContent; }).get()";

function shown(key, word) {
    return zeb.page(`$('.SumoSelect[dockey="${key}"] p.wren_livecontrol_${word} span').text()`);
}

function choose(key, word, value) {
    zeb.choose(`.SumoSelect[dockey="${key}"] p.wren_livecontrol_${word}`, value);
}

// The commands that the cameras got since the last asking.
function commands() {
    return zeb.calls().filter(call => /^ZebCameraOps|^DOC_/.test(call.call))
        .map(call => call.call.replace(/.*::/, '') + ' ' + JSON.stringify(call.args));
}

function checkCommands(expected, text) {
    const made = commands();
    check(JSON.stringify(made) === JSON.stringify(expected), text + ': ' + made.join(' / '));
}

zeb.speed(10);
zeb.rig('eight-mixed');
check(zeb.open(), 'the table opens');
zeb.click('#accordion h3');
['192', '168', '7'].forEach((octet, index) => {
    zeb.click(`#livecontrol_ip${index + 1}`);
    zeb.key('Ctrl+A');
    zeb.type(octet);
});
const before = zeb.keys();
commands();
zeb.click('#livecontrol_search');
const found = zeb.keys().filter(key => !before.includes(key));
checkCommands(['searchCamera ["192.168.7.0"]'], 'one search');
check(found.length === 2 && zeb.until(`${NAMES}.includes('Hall left') && ${NAMES}.includes('Hall right')`),
    'the two heads in the hall are found');
zeb.click('#accordion h3');

const all = zeb.keys();
zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until(`$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length === ${all.length}`),
    'one click connects all of them');
check(all.every(key => zeb.camera(key).connected), 'all cameras are connected');

// All are selected by the name of the batch row, which offers what the last one can: a head in the hall.
zeb.calls();
zeb.click('#grid_wren-cameraInfo-list_summary .wren_label_edit_camera_name');
for (let looks = 0; looks < 100 && !zeb.calls().some(call => call.call === 'ZebHost::updateUI'); looks++) {
    zeb.wait(100); // the host hears of a selection a moment later
}
zeb.click('a[href="#livecontrolTab"]');
check(zeb.until("$('#wren-livecontrol-list .SumoSelect').length > 0"), 'the live control tab is drawn');
commands();
zeb.messages();
choose(-1, 'framerate', '2000');
checkCommands([`setRecordRate [[${all}],2000]`], 'one call sets the rate of all');
check(zeb.camera(1).rate === 2000 && shown(1, 'framerate') === '2000 fps', 'a camera that can runs at it');
check(zeb.camera(8).rate === 1000 && shown(8, 'framerate') === '1000 fps', 'one that can not shows its own highest');
zeb.messages();
choose(-1, 'resolution', '640 x 400');
check(commands().length === 1, 'one call sets the resolution of all');
check(found.every(key => shown(key, 'resolution') === '640 x 400'), 'the heads in the hall have it');
check(shown(1, 'resolution') === '1024 x 1024', 'one that refused shows what it has');
const refused = zeb.messages();
check(refused.length === 1 && refused[0].kind === 'error' && /Gate/.test(refused[0].text) &&
    !/Hall/.test(refused[0].text), 'one message names those that refused');

[1, 2].forEach(key => zeb.click(`#wren_livecontrol_button_lockStatus_unlock_${key}`));
commands();
zeb.messages();
choose(-1, 'framerate', '1000');
checkCommands([`setRecordRate [[${all.slice(2)}],1000]`], 'the two that are locked are left out');
check(zeb.messages().length === 0, 'and nobody is asked or told');
check(shown(1, 'framerate') === '2000 fps' && shown(3, 'framerate') === '1000 fps', 'and keep their rate');

commands();

zeb.click('#wren_button_lowlight_on_6');
checkCommands(['setLowLight [[6],true]'], 'low light for one');
check(zeb.until("$('#wren_slider_lowlight_6:not([disabled])').length === 1"), 'its slider can be moved');
check(zeb.page("$('.SumoSelect.disabled .wren_livecontrol_framerate[dockey=6]').length === 2") &&
    zeb.page("$('#wren_livecontrol_button_lockStatus_unlock_6').length === 0"), 'no rate and no lock meanwhile');
commands();
zeb.drag('#wren_slider_lowlight_6 .ui-slider-handle', '.wren-slider-container[dockey="6"] label:nth-of-type(2)');
checkCommands(['setShutterSpeed [[6],60]'], 'one call at the end of the slider\'s way');
check(shown(6, 'shutterSpeed') === '1/60 sec', 'the drop-down shows the speed of the slider');

zeb.click('a[href="#cameraInfoTab"]');
zeb.click('#wren_cameraInfo_comment_3', {double: true});
zeb.type('Nozzle, ');
zeb.click('.ui-dialog-buttons.ok');
check(zeb.camera(3).comment.startsWith('Nozzle, ') && zeb.until("$('#wren_cameraInfo_comment_3').text() !== ''"),
    'the comment is written and shown');
