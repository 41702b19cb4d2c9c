// Image plug-ins by real mouse: switched in the table and deleted by their menu where they may be touched, and what a
// file shows of them.

const P = text => zeb.page(text);
const told = () => zeb.messages().map(box => box.text);
const made = () => zeb.calls().filter(call => /^DOC_Storage|setCurrentDoc|toolApply/.test(call.call))
    .map(call => `${call.call.split('::')[1]} ${call.args.join(' ')}`);
const label = (tab, key, icon) => `#wren_${tab}_effect_icons_${key} label[plgName="${icon}"]`;
const LUT = 'tool-adj-lut';
const MOSAIC = 'tool-edt-mosaic';
const lutOf = key => label('plugin', key, LUT);
const mosaicOf = key => label('memoryPlugin', key, MOSAIC);
const state = (tab, key, icon) => P(`var box = document.querySelector('#wren_${tab}_effect_icons_${key} ` +
    `input[plgName="${icon}"]'); return (box.checked ? 'works' : 'rests') + (box.disabled ? ' greyed' : '')`);
const tab = number => zeb.click(`#tabs > ul > li:nth-child(${number + 1}) a`);

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

zeb.rig(4);
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true, selected: true, plugins: ['filter', 'lut', 'mosaic']}));
check(zeb.open(), 'the table opens');
tab(4);
zeb.calls();
zeb.click(lutOf(1));
same([made(), state('plugin', 1, LUT)], [['setPluginEffective 1 lut true 0'], 'works'], 'a click switches it on');
same(zeb.camera(1).effectivePlugins, ['lut'], 'on the camera');
zeb.popup();
zeb.click(lutOf(1), {right: true});
same(made(), [], 'a menu that is left does nothing');
zeb.popup('Delete');
zeb.click(lutOf(1), {right: true});
same(made(), ['setPluginEffective 1 lut false 0', 'setCurrentDoc 1 1', 'toolApply lut'], 'its menu deletes it');
P('wrentabledialog.togglePlugin(["1", "2", "99", "3"], "lut", true)');
same(made(), ['setPluginEffective 1 lut true 0', 'setPluginEffective 2 lut true 0', 'setPluginEffective 3 lut true 0'],
    'several in one call');
P('wrentabledialog.togglePlugin(["1"], "unheardof", true); wrentabledialog.togglePlugin(["1"], "pseudo", true)');
same(made(), [], 'one that nobody has, and one that the camera has not');

// Not to be touched.
zeb.setCamera(2, {locked: true});
zeb.setCamera(3, {blockedPlugins: ['lut']});
check(zeb.until("$('#wren_plugin_button_lockStatus_lock_2:visible').length === 1") &&
    zeb.until(`$('#wren_plugin_effect_icons_3 input[plgName="${LUT}"]:disabled').length === 1`), 'the rows show it');
for (const [key, why] of [[2, 'locked'], [3, 'blocked']]) {
    zeb.click(lutOf(key));
    zeb.click(lutOf(key), {right: true});
    same([made(), state('plugin', key, LUT).split(' ')[0], told()], [[], 'works', []], `a ${why} one stays, without menu`);
}
for (const status of ['IsOtherPluginOpen', 'IsBgSaving']) {
    const isShown = on => zeb.until(`$('${lutOf(1)}').attr('cursorDisable') === '${on}'`);
    zeb.status(status, true);
    check(isShown(true), `the row shows ${status}`);
    zeb.click(lutOf(1));
    zeb.click(lutOf(1), {right: true});
    same([made(), state('plugin', 1, LUT)], [[], 'works'], `nothing while ${status}`);
    zeb.status(status, false);
    check(isShown(false), `and that it is over`);
}
zeb.setCamera(4, {connected: false});
P('wrentabledialog.togglePlugin(["4"], "lut", true)');
zeb.popup('Delete');
P('wrentabledialog.effectContextMenu("4", "lut", 100, 100); wrentabledialog.effectContextMenu("99", "lut", 100, 100)');
same(made(), [], 'of a disconnected camera there is a menu that does nothing, of one that is gone none');

zeb.fault(1, 'setPluginEffective', {throws: 'no answer'});
zeb.popup('Delete');
zeb.click(lutOf(1), {right: true});
same([made(), told()], [['setPluginEffective 1 lut false 0'], ['Camera 1: no answer']], 'a failure is told');
zeb.fault(1, 'setPluginEffective', {});

// One of recorded images alone knows no lock.
zeb.setCamera(2, {recorded: true, recordCheck: true, recordedRange: [0, 9], selectedRange: [3, 3], resolution: [1024, 512]});
tab(6);
zeb.calls();
zeb.click(mosaicOf(2));
same([made(), state('memoryPlugin', 2, MOSAIC)], [['setPluginEffective 2 mosaic true 0'], 'works'],
    'a locked row takes what works on recorded images alone');

// What is seen is what is saved: the picture of the paused player, and that of a file.
const folder = zeb.pref('export/dir');
const saved = name => {
    zeb.save({folder: `${folder}/${name}`, format: 'png'});
    zeb.click('button.save-files');
    check(zeb.results()[0].startsWith('Camera 2: 1 frames saved in '), `${name} is saved`);
    return zeb.pixels(`${folder}/${name}/Camera 2_C02H1S001_00003.png`);
};
zeb.setCamera(2, {locked: false, pluginValues: {lut: {black: 40, white: 180}, mosaic: {square: 32}}});
const both = saved('both');
same([both.width, both.height], [1024, 512], 'as large as it was recorded');
zeb.click(mosaicOf(2));
const lut = saved('lut');
zeb.setCamera(2, {effectivePlugins: []});
const plain = saved('plain');
check(new Set([both, lut, plain].map(picture => picture.checksum)).size === 3, 'each effect is in the files');
zeb.setCamera(2, {effectivePlugins: ['lut']});
same(saved('again'), lut, 'and the same again when it is on again');
same(told(), [], 'nobody complains');
zeb.close();
