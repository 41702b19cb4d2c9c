// Eight cameras, two of them locked; a rate chosen in the batch row reaches the other six in one call and comes back.

const UNLOCKED = [1, 2, 4, 5, 7, 8];
const LOCKED = [3, 6];
const CHOSEN = '2000';

function rateShown(key) {
    return zeb.page(`$('.SumoSelect[dockey="${key}"] p.wren_livecontrol_framerate span').text()`);
}

// Chooses in a drop-down by real clicks: on its caption, then on the entry of the list that opens.
function choose(key, value) {
    zeb.click(`.SumoSelect[dockey="${key}"] p.wren_livecontrol_framerate`);
    const place = zeb.page(`$('.wren-dropdown option').map(function () { return this.value; }).get()`).indexOf(value);
    check(place >= 0, `${value} is on offer`);
    zeb.click(`.wren-dropdown .options li:nth-child(${place + 1})`);
}

function isConnected(key) {
    return zeb.camera(key).connected;
}

zeb.rig(8);
check(zeb.open(), 'the table opens');
check(zeb.page("$('#tabs').tabs('option', 'active')") === 0, 'the camera information tab is in front');

zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length === 8"), 'all rows have a lock');
check(zeb.keys().every(isConnected), 'one click on the batch row connects all eight');

LOCKED.forEach(key => zeb.click(`#wren_cameraInfo_button_lockStatus_unlock_${key}`));
check(LOCKED.every(key => zeb.camera(key).locked) && !UNLOCKED.some(key => zeb.camera(key).locked),
    'two cameras are locked');

zeb.click('a[href="#livecontrolTab"]');
check(zeb.until(`$('.wren_livecontrol_framerate[dockey="8"]').length > 0`), 'the live control tab is drawn');
check(rateShown(1) === '1000 fps' && rateShown(3) === '1000 fps', 'all rows show the rate they start with');

zeb.calls();
zeb.log();
choose(-1, CHOSEN);

const rates = zeb.calls().filter(call => call.call === 'ZebCameraOps::setRecordRate');
check(rates.length === 1 && JSON.stringify(rates[0].args) === JSON.stringify([UNLOCKED, 2000]),
    'one call sets the rate of the six, in the order of the rows: ' + JSON.stringify(rates));
check(UNLOCKED.every(key => zeb.camera(key).rate === 2000), 'the six cameras record at the new rate');
check(LOCKED.every(key => zeb.camera(key).rate === 1000), 'the two locked ones do not');
check(UNLOCKED.every(key => rateShown(key) === '2000 fps'), 'the six rows show the new rate');
check(LOCKED.every(key => rateShown(key) === '1000 fps'), 'the two rows show the old one');

const log = zeb.log().filter(line => line.includes('setFrameRate'));
check(log.length === 2 && log[0].startsWith('[ENTER]') && log[1].startsWith('[LEAVE]'),
    'the log tells when the call began and ended: ' + log.join(' / '));
check(log[0].includes('2000') , 'and with which rate');
check(zeb.messages().length === 0, 'no message was shown');
