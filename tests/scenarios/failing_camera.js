// The third camera does not take a rate: the others have it, the user is told once, and the table goes on afterwards. Then it
// does not answer any more, which keeps nobody from working.

const OTHERS = [1, 2, 4, 5, 6];

// Counts the table's ticks, and beats in the page at the same pace, which go on whatever the table does.
const COUNT = `
    window.ticks = 0;
    window.beats = 0;
    wrentabledialog.autoUpdate.connect(function () { window.ticks++; });
    setInterval(function () { window.beats++; }, wrentabledialog.getPrefInt('wren/table/interval'));`;

function choose(key, value) {
    zeb.click(`.SumoSelect[dockey="${key}"] p.wren_livecontrol_framerate`);
    const place = zeb.page(`$('.wren-dropdown option').map(function () { return this.value; }).get()`).indexOf(value);
    zeb.click(`.wren-dropdown .options li:nth-child(${place + 1})`);
}

zeb.setPref('wren/table/interval', 50);
zeb.rig(6);
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true}));
zeb.setCamera(3, {name: 'Gate <3>'});
check(zeb.open(), 'the table opens');
zeb.click('a[href="#livecontrolTab"]');
check(zeb.until(`$('.wren_livecontrol_framerate[dockey="6"]').length > 0`), 'the live control tab is drawn');
zeb.page(COUNT);
check(zeb.until('ticks >= 3'), 'the timer runs');

zeb.fault(3, 'setRecordRate', {throws: 'does not answer'});
zeb.calls();
zeb.log();

let ticksInBox = -1;
let logInBox = [];
let callsInBox = [];
zeb.modal(() => {
    const ticks = zeb.page('ticks');
    const beats = zeb.page('beats');
    logInBox = zeb.log();
    callsInBox = zeb.calls();
    zeb.until(`beats >= ${beats + 10}`);
    ticksInBox = zeb.page('ticks') - ticks;
});
choose(-1, '5000');

check(OTHERS.every(key => zeb.camera(key).rate === 5000), 'the other five have the rate');
check(zeb.camera(3).rate === 1000, 'the third camera does not');

const messages = zeb.messages();
check(messages.length === 1 && messages[0].kind === 'error', 'one message is shown: ' + JSON.stringify(messages));
check(messages[0].text.includes('Gate <3>') && messages[0].text.includes('does not answer'),
    'it names the camera and the reason');
check(!OTHERS.some(key => messages[0].text.includes(zeb.camera(key).name)), 'and no other camera');

// What had happened by the time the box stood, in its order.
const calls = callsInBox.map(call => call.call).filter(call => /setRecordRate|updateUI/.test(call));
check(calls.join() === 'ZebCameraOps::setRecordRate,ZebHost::updateUI', 'the update was asked for before: ' + calls.join());
const frame = logInBox.filter(line => line.includes('setFrameRate')).map(line => line.slice(0, 7));
check(frame.join() === '[ENTER],[LEAVE]', 'and the end of the call was logged: ' + frame.join());

check(ticksInBox === 0, 'no tick came while the box stood: ' + ticksInBox);
const ticks = zeb.page('ticks');
check(zeb.until(`ticks >= ${ticks + 3}`), 'the timer runs afterwards');
check(zeb.page(`$('.SumoSelect[dockey="3"] p.wren_livecontrol_framerate span').text()`) === '1000 fps' &&
    zeb.page(`$('.SumoSelect[dockey="6"] p.wren_livecontrol_framerate span').text()`) === '5000 fps',
    'each row shows what its camera has');

zeb.fault(3, 'getRecordRate', {throws: 'does not answer'});
const seen = zeb.page('ticks');
zeb.until(`ticks >= ${seen + 5}`);
const news = zeb.messages();
check(news.length === 1 && news[0].answer === '' && news[0].text === 'Gate <3>: does not answer',
    'what the ticks meet is told once and beside the work: ' + JSON.stringify(news));
