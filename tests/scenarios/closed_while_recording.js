// The table is closed and opened again while the cameras are armed and while they record: nothing of that reaches them,
// and the new table follows the recording to its end.

const KEYS = [1, 2, 3, 4, 5, 6, 7, 8];
const STATUS = "$('#timeline_rec_exec').data('status')";

function states() {
    return KEYS.map(key => zeb.camera(key).recordState).join('');
}

function reopen(text) {
    check(zeb.close(), `the table closes ${text}`);
    check(zeb.open(), `and opens again ${text}`);
    check(zeb.messages().map(box => box.text).join() === 'Quit WREN?', 'one question, and nothing about frames');
}

zeb.setPref('wren/display/lock', false);
zeb.rig('shoot.json');
check(zeb.open(), 'the table opens');
zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until("$('.wren_button_connection_connect:visible').length === 9"), 'all are connected');
zeb.setCamera(3, { triggerMode: 1 });    // its end trigger would be over at once
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`), 'all are armed');
reopen('with armed cameras');
check(zeb.until(`${STATUS} === 2`) && states() === '22222222', 'they are still armed: ' + states());

zeb.speed(0.01);    // 64 frames last 13 seconds now
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 3`), 'all record');
reopen('while they record');
check(zeb.until(`${STATUS} === 3`) && states() === '33333333', 'they still record: ' + states());
check(zeb.page("$('#timeline_rec_cancel').text()") === 'Stop', 'the recording can be stopped');
zeb.speed(1);
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'its end brings memory mode');
check(KEYS.every(key => zeb.camera(key).recorded), 'and all have recorded');
