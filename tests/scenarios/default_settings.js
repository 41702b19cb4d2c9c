// A user opens the table for the first time and accepts how his cameras are to be set: they are, and so is each that
// joins.

// Those of `keys` on which something else stands.
function others(keys) {
    return keys.filter(key => {
        const { triggerMode, ports, resolutionLock, lowLightType } = zeb.camera(key);
        return triggerMode !== 4 || ports['2'] !== 9 || ports['7'] !== 17 || !resolutionLock || lowLightType !== 2;
    });
}

zeb.speed(10);
zeb.rig(6);
zeb.keys().slice(0, 5).forEach(key => zeb.setCamera(key, { connected: true, lowLight: key === 2, lowLightType: 3 }));
const stored = { done: false, groups: 'Gate|192.168.0.16', triggerEnable: true, triggerMode: 4, triggerSwInEnable: true,
    triggerSwIn: 17, triggerInEnable: true, triggerIn: 9 };
Object.keys(stored).forEach(name => zeb.setPref('wren/settings/' + name, stored[name]));
zeb.fault(3, 'setResolutionLock', { throws: 'no answer' });
let asked = 0;
zeb.modal(() => {
    asked++;
    zeb.click('a[href="#tabs_camera_trigger"]');
    zeb.click('#md_locked_resolution');
    zeb.click('#md_ok');
});
check(zeb.open() && asked === 1, 'the dialog comes before the table');
check(zeb.pref('wren/settings/done') === true, 'once');
check(zeb.messages().map(message => message.text).join() === 'Camera 3: Lock: no answer', 'one failure is told');
check(others([1, 2, 4, 5]).length === 0, 'the cameras are set');
check(zeb.camera(3).triggerMode === 4, 'the one that fails has what came before');
check(zeb.camera(2).lowLight, 'low light is on again');
check(zeb.until("$('.groupButton[value=Gate]:visible').length === 1"), 'the group has its button');

zeb.click('#wren_button_connection_disconnect_6');
check(zeb.until("$('#wren_button_connection_connect_6:visible').length === 1"), 'another camera joins');
check(others([6]).length === 0, 'and is set');

zeb.speed(1);
zeb.fault(5, 'setResolutionLock', { delay: 2500 });
zeb.modal(() => {
    zeb.modal(() => { asked++; });
    zeb.click('#md_ok');
});
zeb.page('wrentabledialog.openDefaultSettingsDialog()');
check(asked === 2, 'after a second somebody waits with a progress');
check(others([5]).length === 0, 'the slow one is set too');
