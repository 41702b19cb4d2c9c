// A user opens the table for the first time, says how his cameras are to be set, and each that joins is ready to shoot.

// Those of `keys` on which something else stands.
function others(keys) {
    return keys.filter(key => {
        const { triggerMode, ports, resolutionLock, lowLightType } = zeb.camera(key);
        return triggerMode !== 4 || ports['2'] !== 9 || ports['7'] !== 17 || !resolutionLock || lowLightType !== 2;
    });
}

function inDialog(work) {
    let asked = false;
    zeb.modal(() => {
        asked = true;
        work();
    });
    return () => check(asked, 'the dialog has stood');
}

function tab(id) {
    zeb.click(`a[href="#${id}"]`);
}

zeb.speed(10);
zeb.rig(6);
const keys = zeb.keys();
keys.slice(0, 5).forEach(key => zeb.setCamera(key, { connected: true, lowLight: key === 2, lowLightType: 3 }));
zeb.setPref('wren/settings/done', false);
zeb.fault(3, 'setResolutionLock', { throws: 'no answer' });
const hasStood = inDialog(() => {
    zeb.click('#md_addgroup');
    zeb.type('Gate\n');
    zeb.click('#md_device_group_list .groupes li');
    zeb.click('#md_addcamera');
    zeb.click('#md_camera_ip4');
    zeb.key('Ctrl+A');
    zeb.paste('16');
    zeb.type('\n');
    tab('tabs_camera_trigger');
    ['#md_use_trigger', '#md_enable_trig_sw_in_enable', '#md_enable_trig_ttl_in_enable', '#md_locked_resolution']
        .forEach(box => zeb.click(box));
    zeb.choose('#md_trigger', 'Manual');
    zeb.choose('#md_enable_trig_sw_in', 'NORMALLY CLOSE');
    zeb.choose('#md_enable_trig_ttl_in', 'TRIG NEG');
    tab('tabs_wren_list_1');
    zeb.click('#md_framerates_enable');
    zeb.click('#md_add_framerate');
    zeb.click('#md_framerate');
    zeb.key('Ctrl+A');
    zeb.type('500\n');
    zeb.click('#md_ok');
});
check(zeb.open(), 'the table opens');
hasStood();
check(zeb.pref('wren/settings/done') === true, 'it will not be asked again');
check(zeb.pref('wren/settings/groups') === 'Gate|192.168.0.16', 'the group is stored');
check(zeb.pref('wren/settings/frameRates') === '500:1000', 'so are the rates');
check(zeb.messages().map(message => message.text).join() === 'Camera 3: Lock: no answer', 'one failure is told');
check(others([1, 2, 4, 5]).length === 0, 'the cameras are set');
check(zeb.camera(3).triggerMode === 4, 'the one that fails has what came before');
check(zeb.camera(2).lowLight, 'low light is on again');
check(zeb.until("$('.groupButton[value=Gate]:visible').length === 1"), 'the group has its button');

zeb.click('#wren_button_connection_disconnect_6');
check(zeb.until("$('#wren_button_connection_connect_6:visible').length === 1"), 'another camera joins');
check(others([6]).length === 0, 'a camera that joins is set');

zeb.click('#accordion h3');
zeb.setCamera(2, { lowLight: false });
zeb.until("!$('#wrentabledialog_defaultsettings').prop('disabled')");
const hasStoodAgain = inDialog(() => {
    tab('tabs_camera_trigger');
    check(zeb.dialog("document.getElementById('md_trigger').value") === '4', 'the dialog has its values back');
    zeb.click('#md_cancel');
});
zeb.calls();
zeb.click('#wrentabledialog_defaultsettings');
hasStoodAgain();
check(zeb.calls().every(call => !/^DOC_Control::set/.test(call.call)), 'Cancel loads nothing');

// Longer than a second.
zeb.speed(1);
zeb.fault(3, 'setResolutionLock', {});
zeb.fault(5, 'setResolutionLock', { delay: 2500 });
let hasWaited = false;
const isSlow = inDialog(() => {
    zeb.modal(() => { hasWaited = true; });
    zeb.click('#md_ok');
});
zeb.click('#wrentabledialog_defaultsettings');
isSlow();
check(hasWaited, 'somebody waits with a progress');
check(others([5]).length === 0, 'the slow one is set too');
