// Four cameras in a laboratory are put on the signal of a function generator: it is switched on, set, lost and found
// again. At last the cameras make a chain of their own.

const GENERATOR = '192.168.0.90';
const OFFERED = '1000,2000,3000,4000,5000,6000,7000,8000,9000,10000';
const DIFFERS = "The camera's frame rate differs from the external sync signal";
// What the area shows: the sources, + where one is connected, then the frequencies, the chosen one, and the button.
const AREA = `(function () {
    const parts = [['#connect_signal_generator', 'generator'], ['#connect_signal_distributor', 'hub']]
        .filter(part => $(part[0]).is(':visible'))
        .map(part => part[1] + ($(part[0]).hasClass('connected') ? '+' : ''));
    const selector = document.getElementById('externalSyncSelector');
    if ($(selector).is(':visible')) {
        parts.push(Array.from(selector.options).map(option => option.text).join(), 'now ' + selector.value);
    }
    return $('#external_sync_area').is(':visible') ? parts.concat($('#sync_execute:disabled').length ? [] : 'go').join(' ')
        : 'hidden';
})()`;

function checkArea(expected, text) {
    check(zeb.until(`${AREA} === ${JSON.stringify(expected)}`), `${text}: ${zeb.page(AREA)}`);
}

// What the generator was told since the last asking, without the questions of each look at it.
function told() {
    return zeb.visaCalls().map(call => call.trim()).filter(call => !/FREQ\?|viScanf/.test(call));
}

// Waits until the table says of these cameras, and of no others, that their rate is not that of the signal.
function checkDiffering(keys, text) {
    const texts = "$('.wren_alert[alert=true]').get().map(alert => [alert.getAttribute('dockey'), alert.getAttribute('alerts')])";
    const expected = JSON.stringify(keys.map(key => [String(key), DIFFERS]));
    check(zeb.until(`JSON.stringify(${texts}) === ${JSON.stringify(expected)}`), `${text}: ${JSON.stringify(zeb.page(texts))}`);
}

function chooseFrequency(hertz) {
    zeb.choose('#externalSyncSelector', String(hertz));
}

function chooseRate(key, value) {
    zeb.choose(`.SumoSelect[dockey="${key}"] p.wren_livecontrol_framerate`, value);
}

// Synchronises by the button and answers how the cameras were handed over. `notice` runs while the notice stands.
function execute(notice) {
    let ticks = 'no progress stood';
    let early = 0;
    zeb.fault(1, 'synchronise', {delay: 300});
    zeb.modal(() => {
        const before = zeb.page('ticks');
        zeb.type('\u001b');
        zeb.until(`beats >= ${zeb.page('beats') + 4}`);
        ticks = zeb.page('ticks') - before;
        early = zeb.messages().length;
    });
    if (notice) {
        zeb.modal(notice);
    }
    zeb.messages();
    zeb.calls();
    zeb.click('#sync_execute');
    check(ticks === 0 && early === 0, `the progress stood, and no tick came meanwhile: ${ticks}`);
    const made = zeb.calls().filter(call => call.call === 'ZebCameraOps::syncCameras').map(call => call.args);
    check(made.length === 1, 'the cameras are handed over once');
    return JSON.stringify(made[0]);
}

zeb.setPref('wren/table/interval', 50);
zeb.setPref('wren/settings/syncInEnable', true);
zeb.setPref('wren/settings/triggerIn', 8);
zeb.setPref('sync/external', true);
zeb.setPref('sync/generator/address', GENERATOR);
zeb.setPref('sync/generator/input', 1);
zeb.visa({viOpen: {status: 0xBFFF0011}});
zeb.rig('sync_lab.json');
check(zeb.open(), 'the table opens');
zeb.page(`
    window.ticks = 0;
    window.beats = 0;
    wrentabledialog.autoUpdate.connect(function () { window.ticks++; });
    setInterval(function () { window.beats++; }, 50);`);
const opening = zeb.messages();
check(opening.length === 1 && opening[0].text === 'Could not connect with signal generator',
    'the generator is not switched on yet: ' + JSON.stringify(opening));
checkArea('generator go', 'it can be connected');

zeb.visa({frequency: 1000});
zeb.visaCalls();
zeb.click('#connect_signal_generator');
checkArea(`generator+ ${OFFERED} now 1000 go`, 'connected, with its frequencies');
check(told().filter(call => call.startsWith('viOpen ')).join() === `viOpen TCPIP0::${GENERATOR}::inst0::INSTR`,
    'by its address');
checkDiffering([2, 4], 'two cameras run at another rate');

chooseFrequency(2000);
check(told().includes('viPrintf FREQ 2000'), 'the generator is set');
checkArea(`generator+ ${OFFERED} now 2000 go`, 'the chosen frequency stands');
checkDiffering([1, 3], 'now the two others do');

const handed = execute();
check(handed === JSON.stringify([[3, 2, 4, 1], 3, 0, true, true, 1, 2000, 0]), 'in the order of addresses: ' + handed);
check(told().includes('viPrintf FREQ 2000'), 'the generator is set once more');
check(zeb.messages().length === 1, 'one notice comes');
check(zeb.until(`['Over Sync', 'Sync In', 'Over Sync', 'Sync In'].every((state, index) =>
    $('#wren_cameraInfo_sync_' + (index + 1)).attr('sync') === state)`), 'the rows show how each camera gets along with it');

zeb.click('a[href="#livecontrolTab"]');
['1', '3'].forEach(key => chooseRate(key, '2000'));
zeb.click('a[href="#cameraInfoTab"]');
checkDiffering([], 'all of them run at its rate');
check(zeb.until(`$('#wren-cameraInfo-list .wren_sync[sync="Sync In"]:visible').length === 4`), 'and in step');

execute(() => zeb.type('\t '));
check(zeb.messages().length === 1, 'the notice is not wanted any more');
execute();
check(zeb.messages().length === 0, 'and stays away');

zeb.setCamera(2, {rate: 1000});
checkDiffering([2], 'one is set otherwise');
zeb.visa({viScanf: {never: true}});
checkArea('generator go', 'the generator does not answer any more');
checkDiffering([], 'without a signal no camera is compared with it');
const ticks = zeb.page('ticks');
check(zeb.until(`ticks >= ${ticks + 3}`) && zeb.messages().length === 0, 'the table goes on, without a message');
const NO_SYNC = `$('#wren-cameraInfo-list .wren_sync[sync="No Sync"]:visible').length`;
check(zeb.until(`${NO_SYNC} === 4`), 'and the cameras have no signal');
zeb.visa({frequency: 1000});
check(zeb.until(`${NO_SYNC} === 0`), 'they see it as soon as it is back');
zeb.visaCalls();
zeb.click('#connect_signal_generator');
checkArea(`generator+ ${OFFERED} now 2000 go`, 'connected again');
check(told().includes('viPrintf FREQ 2000'), 'it gets the frequency that was chosen before');

zeb.setPref('sync/external', false);
checkArea('go', 'a chain needs nothing from outside');
const chained = execute();
check(chained === JSON.stringify([[3, 4, 2, 1], 3, 0, false, true, 1, 2000, 0]), 'its master comes first: ' + chained);
check(zeb.close(), 'the table closes');
