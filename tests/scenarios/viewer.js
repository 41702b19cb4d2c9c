// The viewer stands beside the table: links of the table open its dialogs, and what is set there reaches the table.

zeb.rig('eight-mixed');
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true}));
check(zeb.open(), 'the table opens');

const status = () => zeb.page('JSON.parse(wrentabledialog.getControlStatus())');
check(status().IsMultiWindow && zeb.page('wrentabledialog.countMdiWindow()') === 8, 'each camera has a window');

// A link opens the preferences at the page of inputs and outputs. Tab goes to its first box, which the blank ticks.
zeb.modal(() => {
    check(status().IsPrefDialogOpening, 'the table knows of the dialog');
    zeb.type('\t \u001b');
});
zeb.click('#wren_io_setting');
check(!zeb.pref('wren/settings/deviceSpeedPlaying'), 'Escape stores nothing');
check(!status().IsPrefDialogOpening, 'the dialog is gone');
zeb.modal(() => zeb.type('\t \n'));
zeb.click('#wren_io_setting');
check(zeb.pref('wren/settings/deviceSpeedPlaying'), 'Enter stores what was ticked');

// The page of addresses takes a network and hands it to the search of the table.
zeb.modal(() => zeb.type('10.0.7\n'));
zeb.click('#wren_ethernet_setting');
check(zeb.pref('cameraconnection/SearchIP') === '10.0.7', 'the network is stored');

// The viewer's floating lists: of three partitions, a line and the settings, above the control; one list at a time.
zeb.setCamera(1, {selected: true, partitions: 3});
const box = (...call) => zeb.page(`wrentabledialog.${call[0]}(${JSON.stringify(call.slice(1)).slice(1, -1)});
    return wrentabledialog.isShownDropBox()`);
check(!box('showDropDownBox', 'nothing', 20, 300, 120, 24), 'an unknown list is none');
box('showDropDownBox', 'partition', 20, 300, 120, 24);
check(zeb.until('wrentabledialog.isShownDropBox()'), 'the partitions are shown');
[[20, 300 - 5 * 24], [139, 299]].forEach(at =>
    check(box('hideDropDownBox', 'partition', ...at), `${at} is on the list`));
check(box('hideDropDownBox', 'variable'), 'another one is hidden');
check(!box('hideDropDownBox', 'partition', 20, 299 - 5 * 24), 'this is not');
['partition', 'variable'].forEach(key => box('showDropDownBox', key, 20, 300, 120, 24));
check(!box('hideDropDownBox', 'variable'), 'the second has taken the place of the first');

zeb.mode('file');
check(status().IsNoneWindow, 'without images there is no window');
