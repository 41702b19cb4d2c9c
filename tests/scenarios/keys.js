// The hand on the keys: what an operator presses goes where the window in front says, is done once, or shows that it was
// not done. A notice stands all the while.

const KEYS = [1, 2, 3];
const START = '#wren_spinner_select_start_frameno1';

function states() {
    return KEYS.map(key => zeb.camera(key).recordState).join('');
}

function untilStates(wanted, text) {
    for (let looks = 0; looks < 200 && states() !== wanted; looks++) {
        zeb.wait(50);
    }
    check(states() === wanted, `${text}: ${states()}`);
    zeb.wait(500); // a second press at once would be that of a double one
}

function refusals() {
    return zeb.log().filter(line => line.includes('not done')).join();
}

zeb.rig(KEYS.length);
check(zeb.open(), 'the table opens');
zeb.window('activate');
const table = zeb.active();
zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length === 3"), 'all are connected');
KEYS.forEach(key => zeb.click(`#wren_cameraInfo_button_lockStatus_unlock_${key}`));
zeb.notices(true);
zeb.fault(3, 'getComment', {throws: 'no answer'});
check(zeb.until("$('.wren_alert[dockey=3][alert=true]').length > 0"), 'one fails, and a notice stands');
check(zeb.active() === table, 'it does not take the keyboard');

zeb.click('#accordion h3');
for (const key of ['Return', 'Escape']) {
    zeb.modal(() => zeb.key(key));
    zeb.click('#livecontrol_deleteall');
    check(zeb.keys().length === KEYS.length && zeb.active() === table, `${key} deletes nothing and the table has the keyboard again`);
}
zeb.messages();

zeb.key('F12');
untilStates('222', 'the record key arms');
check(zeb.active() === table, 'the ready bar does not take the keyboard either');
zeb.log();
zeb.key('F12');
zeb.key('F12');
untilStates('333', 'the trigger; a second press at once is no stop');
check(/not done. It was pressed twice/.test(refusals()), 'it is told');
zeb.wait(1000);
zeb.key('F12');
untilStates('000', 'the stop');
for (let looks = 0; looks < 100 && zeb.mode() !== 'memory'; looks++) {
    zeb.wait(50);
}
zeb.key('F12');
check(/Record: not done/.test(refusals()) && zeb.mode() === 'memory', 'there is nothing to record in memory mode');

zeb.until(`$('${START}:visible').length > 0`);
const range = zeb.camera(1).selectedRange;
zeb.calls();
zeb.click(START);
zeb.page(`document.querySelector('${START}').select(); return 0`);
zeb.type(String(range[1] - 2));
KEYS.forEach(key => zeb.setCamera(key, {recordCheck: true}));
zeb.modal(() => zeb.key('Escape'));
zeb.key('Ctrl+S');
const calls = zeb.calls().map(call => call.call.replace(/.*::/, ''));
check(calls.indexOf('setSelectRange') >= 0 && calls.indexOf('setSelectRange') < calls.indexOf('saveFiles') &&
    zeb.camera(1).selectedRange[0] === range[1] - 2, 'a number that was being typed is in the range that is saved: ' + calls);
check(zeb.active() === table && zeb.page("'#' + document.activeElement.id") === START,
    'the save dialog gives the keyboard back, and the box still has it');
zeb.notices(false);
check(zeb.messages().some(message => /no answer/.test(message.text) && message.answer === ''), 'the notice stood to the end');
