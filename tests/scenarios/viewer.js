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
check(!zeb.pref('wren/settings/syncInEnable'), 'Escape stores nothing');
check(!status().IsPrefDialogOpening, 'the dialog is gone');
zeb.modal(() => zeb.type('\t \n'));
zeb.click('#wren_io_setting');
check(zeb.pref('wren/settings/syncInEnable'), 'Enter stores what was ticked');

// The page of addresses takes a network and hands it to the search of the table.
zeb.modal(() => zeb.type('10.0.7\n'));
zeb.click('#wren_ethernet_setting');
check(zeb.pref('cameraconnection/SearchIP') === '10.0.7', 'the network is stored');

zeb.mode('file');
check(status().IsNoneWindow, 'without images there is no window');
