// Where there is no VISA library a signal generator is never offered. All else works: here two Sync Hubs take its place.

const HUBS = ['192.168.0.91', '192.168.0.92'];

zeb.setPref('wren/settings/syncInEnable', true);
zeb.setPref('sync/external', true);
zeb.setPref('sync/generator/address', '192.168.0.90');
zeb.setPref('sync/lport', 2);
zeb.setPref('sync/lport/ipaddress', HUBS.join());
zeb.rig('sync_lab.json');
zeb.log();
check(zeb.open(), 'the table opens');
check(zeb.messages().length === 0, 'without a message');
const told = zeb.log().filter(line => line.includes('visa64.dll'));
check(told.length === 2 && told[0].includes('visa64.dll not found.') && /Looked for .*\/bin\/visa64\.dll/.test(told[1]),
    'the log says so, and where one was looked for: ' + told.join(' / '));
check(zeb.until("$('#connect_signal_distributor').is(':visible.connected')") &&
    zeb.page("$('#connect_signal_generator').is(':hidden')"), 'the hubs are connected, and no generator is shown');
check(zeb.page("$('#externalSyncSelector option').get().map(option => option.text).join()") === '500,1000,2000' &&
    zeb.page("$('#externalSyncSelector').val()") === '1000', 'the hub tells its frequencies');

zeb.click('#externalSyncSelector');
zeb.type('2000\n');
check(zeb.hub(HUBS[0]).frequency === 2000 && zeb.hub(HUBS[1]).frequency === 1000, 'only the hub that makes the signal is set');
zeb.calls();
zeb.click('#sync_execute');
const handed = zeb.calls().filter(call => call.call === 'ZebCameraOps::syncCameras').map(call => JSON.stringify(call.args));
check(handed.join() === JSON.stringify([[3, 2, 4, 1], 3, 2, true, false, 0, 2000, 0]), 'the cameras get its signal: ' + handed);
