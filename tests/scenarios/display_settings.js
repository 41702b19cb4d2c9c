// What the table shows, chosen by its dialog and from elsewhere: every key on every tab it names, the ways to leave the
// dialog, orders of columns as anyone may have left them.

// What a key shows: the page's own table is not asked.
const BLOCKS = {cameraSettings: '#camera_setting_container', customSettings: '#custom_info_container'};
const HEADERS = {syncTab: 2, irigTab: 3, pluginTab: 4, memoryPluginTab: 6};
const COLUMNS = {
    alert: ['alert', [0, 1, 2, 3, 4, 5, 6]], lock: ['lock', [0, 1, 2, 3, 4]], syncStatus: ['sync', [0, 1, 2, 3, 4]],
    frameRate: ['frameRate', [1]], shutterSpeed: ['shutterSpeed', [1]], resolution: ['resolution', [1]],
    triggerMode: ['trigger', [1]], reduceMode: ['reduce', [1]], recordCheck: ['recordCheck', [5, 6]],
    recordedFrameRate: ['frameRate', [5]], recordedStartFrame: ['originalStartFrameNo', [5]],
    recordedEndFrame: ['originalEndFrameNo', [5]], triggerOffset: ['triggerOffset', [5]]
};

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

// The columns, headers and blocks that stand there now.
const LOOK = `({
    columns: wrentabledialog_obj.activeGrid().columns.filter(column => !column.hidden).map(column => column.field),
    headers: Array.from(document.querySelectorAll('#tabs > ul > li')).map(header => !header.hidden),
    blocks: ['#camera_setting_container', '#custom_info_container']
        .map(block => document.querySelector(block).offsetWidth > 0),
    tab: wrentabledialog_obj.activeTab()
})`;
const look = () => zeb.page(LOOK);
const tick = () => zeb.page('wrentabledialog_obj.autoUpdate()');
const dialogOpen = () => zeb.page("$('#wrentabledialog_displaySettings_dialog').dialog('isOpen')");
const openDialog = () => zeb.click('#wrentabledialog_displaySettings');
const closeWith = button => zeb.click(`.ui-dialog-buttons.${button}`);

function expected(full, name) {
    const other = JSON.parse(JSON.stringify(full));
    const column = COLUMNS[name];
    if (column && column[1].includes(full.tab)) {
        other.columns = full.columns.filter(field => field !== column[0]);
    }
    if (HEADERS[name]) {
        other.headers[HEADERS[name]] = false;
    }
    if (BLOCKS[name]) {
        other.blocks[Object.keys(BLOCKS).indexOf(name)] = false;
    }
    return other;
}

zeb.rig(3);
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true, recorded: true}));
check(zeb.open(), 'the table opens');
zeb.click('#accordion h3');
const keys = zeb.page('wrentabledialog_const_obj.displaySettingsArray');
same(keys.length, 20, 'display keys');
[0, 1, 2, 3, 4, 5, 6].forEach(tab => {
    zeb.click(`#tabs > ul > li:nth-child(${tab + 1}) a`);
    check(zeb.until(`wrentabledialog_obj.activeTab() === ${tab}`), `tab ${tab}`);
    same(zeb.pref(zeb.page(`TABS[${tab}].orderKey`)), zeb.page(`TABS[${tab}].fields.join()`), 'the order of the factory');
    const whole = look();
    const wrong = [];
    keys.forEach(key => {
        const name = key.replace('wren/display/', '');
        const leaves = HEADERS[name] === tab;
        zeb.setPref(key, false);
        tick();
        const shown = look();
        const goes = leaves ? {tab: tab > 4 ? 5 : 0} : expected(whole, name);
        if (leaves ? shown.tab !== goes.tab : JSON.stringify(shown) !== JSON.stringify(goes)) {
            wrong.push(name);
        }
        zeb.setPref(key, true);
        tick();
        if (leaves) {
            zeb.click(`#tabs > ul > li:nth-child(${tab + 1}) a`);
        }
        if (JSON.stringify(look()) !== JSON.stringify(whole)) {
            wrong.push(name + ' back');
        }
    });
    same(wrong, [], `keys from elsewhere on tab ${tab}`);
});
zeb.click('#tabs > ul > li:nth-child(1) a');

// By the dialog: each box acts at once, and what is not left by OK is taken back.
const stored = () => keys.map(key => zeb.pref(key));
const full = look();
const values = stored();
const some = ['alert', 'lock', 'customSettings', 'syncTab', 'recordCheck'];
const bare = some.reduce(expected, full);
function clickSome() {
    openDialog();
    some.forEach(name => zeb.click('#wren_display_' + name));
    same(look(), bare, 'the boxes act at once');
}
const LEAVES = {
    'Cancel': () => closeWith('close'),
    'Escape': () => zeb.type('\x1b'),
    'the title bar': () => zeb.click('.ui-dialog-titlebar-close'),
    'Reset, then Cancel': () => {
        closeWith('caution');
        same([look(), dialogOpen()], [full, true], 'Reset shows all and stays');
        closeWith('close');
    }
};
Object.keys(LEAVES).forEach(way => {
    clickSome();
    LEAVES[way]();
    same([stored(), look(), dialogOpen()], [values, full, false], way);
});
clickSome();
closeWith('ok');
same([look(), dialogOpen(), some.map(name => zeb.pref('wren/display/' + name))],
    [bare, false, some.map(() => false)], 'OK');
openDialog();
same(zeb.page("Array.from(document.querySelectorAll('.display_checkbox:not(:checked)')).map(box => box.id).sort()"),
    some.map(name => 'wren_display_' + name).sort(), 'the boxes show the keys');
closeWith('caution');
closeWith('ok');
same(look(), full, 'Reset, then OK');

// The dialog beside the rest.
clickSome();
zeb.mode('file');
tick();
same(zeb.page("Array.from(document.querySelectorAll('.display_checkbox, .ui-dialog-buttons'))" +
    ".filter(element => !element.hasAttribute('disabled')).length"), 0, 'in file mode nothing in it works');
zeb.mode('live');
tick();
same([stored(), dialogOpen()], [values, false], 'file mode and back counts as Cancel');
clickSome();
zeb.mode('file');
tick();
zeb.type('\x1b');
same([stored(), dialogOpen()], [values, false], 'Escape leaves it there too');
zeb.mode('live');
tick();
zeb.click('#tabs > ul > li:nth-child(7) a');
zeb.mode('live');
tick();
zeb.setPref('wren/display/memoryPluginTab', false);
zeb.mode('memory');
tick();
same(look().tab, 5, 'a mode that comes together with a hidden tab');
zeb.setPref('wren/display/memoryPluginTab', true);
zeb.mode('live');
tick();
clickSome();
zeb.mode('memory');
tick();
same([dialogOpen(), zeb.page("document.querySelector('.ui-dialog-buttons.ok').disabled")], [true, false],
    'in memory mode it goes on');
closeWith('close');
same(stored(), values, 'Cancel in memory mode');
zeb.mode('live');
tick();
clickSome();
zeb.messages();
check(zeb.close(), 'the table closes over the open dialog');
same(stored(), values, 'which counts as Cancel');
check(zeb.open(), 'and opens again');
check(!dialogOpen(), 'without the dialog');

// Orders of columns that anyone may have left; a tick shows each, and no other tick builds anything.
const ORDER = 'wren/column_order/cameraInfo';
const own = full.columns;
const ORDERS = [
    ['', own], ['nonsense,,', own], ['comment,lock', ['comment', 'lock']], ['lock,comment,lock', ['lock', 'comment']],
    ['lock', ['lock']], ['lock,comment', ['lock', 'comment']], [own.join() + ',', own],
    ['comment, nonsense ,lock', ['comment', 'lock']], [own.slice().reverse().join(), own.slice().reverse()], ['', own]
];
zeb.click('#tabs > ul > li:nth-child(1) a');
zeb.page('var rebuild = wrentabledialog_obj.resetAllColumns; window.rebuilds = 0;' +
    'wrentabledialog_obj.resetAllColumns = function (tab) { window.rebuilds++; rebuild.call(this, tab); }');
ORDERS.forEach(([order, columns]) => {
    zeb.setPref(ORDER, order);
    tick();
    zeb.page('window.rebuilds = 0');
    tick();
    tick();
    same([look().columns, zeb.page('window.rebuilds')], [columns, 0], `the order "${order}"`);
});
same(zeb.messages(), [['confirm', 'Quit WREN?', 'OK']].map(([kind, text, answer]) => ({answer, kind, text})), 'boxes');
