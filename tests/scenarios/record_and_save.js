// A shoot from the first button to the files: eight cameras are connected, set to 2,000 fps and locked, armed and
// triggered; in memory mode the frames to keep are chosen, looked at and saved. What the files hold is read afterwards.

const KEYS = [1, 2, 3, 4, 5, 6, 7, 8];
const STATUS = "$('#timeline_rec_exec').data('status')";
const START = '#wren_spinner_select_start_frameno';
const END = '#wren_spinner_select_end_frameno';

function setNumber(spinner, number) {
    zeb.click(spinner);
    zeb.page(`document.querySelector('${spinner}').select(); return 0`);
    zeb.type(`${number}\n`);
}

// Start and end of each row as they are shown, as "-4..8".
function ranges() {
    return zeb.page(`[${KEYS}].map(key => $('${START}' + key).val() + '..' + $('${END}' + key).val()).join()`);
}

function shows(expected, text) {
    check(zeb.until(`[${KEYS}].map(key => $('${START}' + key).val() + '..' + $('${END}' + key).val()).join() === '${expected}'`),
        `${text}: ${ranges()}`);
}

// What the user did stands in the log once, before what came of it.
function operations(user, method, text) {
    const lines = zeb.log().filter(line => line.includes('[USER]') || line.includes(`[ENTER] "JS_Mediator_WrenTableDialog::${method}"`));
    check(lines.length === 2 && lines[0].includes(user) && lines[1].startsWith('[ENTER]'), `${text}: ${lines.join(' / ')}`);
}

zeb.rig('shoot.json');
check(zeb.open(), 'the table opens');
zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length === 8"), 'all are connected');

zeb.click('a[href="#livecontrolTab"]');
check(zeb.until("$('.wren_livecontrol_framerate[dockey=\"8\"]').length > 0"), 'the live control tab is drawn');
zeb.log();
zeb.choose('.SumoSelect[dockey="-1"] p.wren_livecontrol_framerate', '2000');
operations('[ID:wren_livecontrol_framerate_-1] [Control:ComboBox] [Operation:changed] [Value:2000]', 'setFrameRate',
    'the choice stands in the log');
check(KEYS.every(key => zeb.camera(key).rate === 2000), 'all record at 2,000 fps');

zeb.click('#timeline_rec_exec');
check(zeb.messages().map(box => box.text).join() === 'Lock all connected cameras.', 'nothing is armed before all are locked');
check(zeb.page(STATUS) === 0, 'the button still arms');
zeb.click('a[href="#cameraInfoTab"]');
KEYS.forEach(key => zeb.click(`#wren_cameraInfo_button_lockStatus_unlock_${key}`));
check(KEYS.every(key => zeb.camera(key).locked), 'all are locked');

zeb.calls();
zeb.log();
zeb.click('#timeline_rec_exec');
operations('[ID:timeline_rec_exec] [Control:Button] [Operation:clicked] [Value:]', 'record', 'so does the press that arms');
check(zeb.until(`${STATUS} === 2`), 'all are armed');
check(zeb.calls().filter(call => call.call === 'ZebRecorder::startRecReady').length === 1, 'by one call');
check(zeb.page("$('#timeline_rec_exec').text()") === 'Ready', 'the button says so');
zeb.wait(100);    // the memory before the trigger fills
zeb.click('#timeline_rec_exec');
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"),
    'after the trigger the recording ends, and memory mode comes');
// 2 MiB are 64 frames: behind the trigger, around it, before it.
shows('0..63,-32..31,-63..0,-32..31,-32..31,-32..31,-32..31,-32..31', 'each camera has recorded as it was to');

setNumber(`${START}-1`, -4);
setNumber(`${END}-1`, 3);
shows('0..3,-4..3,-4..0,-4..3,-4..3,-4..3,-4..3,-4..3', 'the batch row trims all of them as far as they reach');
setNumber(`${START}2`, -10);
setNumber(`${END}5`, -2);
shows('0..3,-10..3,-4..0,-4..3,-4..-2,-4..3,-4..3,-4..3', 'two are trimmed on their own');

KEYS.slice(1).forEach(key => zeb.click(`#wren_memoryInfo_recordCheck_${key}`));
zeb.answer('cancel');
zeb.click('button.save-files');
check(zeb.messages().length === 1, 'one that nobody has looked at is asked about');
zeb.click('#wren_memoryInfo_recordCheck_1');
check(KEYS.every(key => zeb.camera(key).recordCheck), 'now all are looked at');
zeb.save({ format: 'png' });
zeb.click('button.save-files');
const results = zeb.results();
check(results.length === 8 && results.every(line => /\d+ frames saved/.test(line)), 'all are saved: ' + results.join(' / '));
check(zeb.messages().length === 0, 'nothing is asked any more');
