// Custom information in the table: a list typed as fast as it goes, written, read back, applied to cameras some of which
// fail, and what a slip of the hand must not lose.

const within = name => `${zeb.pref('export/dir')}/${name}`;
const P = text => zeb.page(text);
const LIST = '.custom-data-list';
const cell = (recid, column) => `#grid_wren-custom-data-list_rec_${recid} td[col="${column}"]`;
const datas = () => P('wrentabledialog_obj.getCustomDatas()');
const rows = () => P("w2ui['wren-custom-data-list'].records.map(item => [item.recid, item.name])");
const told = () => zeb.messages().map(box => box.text);
const texts = items => (items || []).map(item => [item.name, item.value, item.unit, item.display]);
const editor = () => P("var box = document.getElementById('wren_custom_editor'); return box && box.value");
const hasKeyboard = () => P(`document.activeElement.matches('${LIST}')`);
const LENGTH = 'Input the Item name and the Value at range of 1-256 character.' +
    'Input the Unit at range of 0-256 character.';
let focus = false;
function hostKeysAreLetters() {
    const said = zeb.calls().filter(call => call.call === 'ZebHost::setTextBoxFocusState');
    focus = said.length > 0 ? said[said.length - 1].args[0] : focus;
    return focus;
}

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

function begin(cameras) {
    zeb.rig(cameras);
    zeb.keys().forEach(key => zeb.setCamera(key, {connected: true}));
    check(zeb.open(), 'the table opens');
    if (!P('wrentabledialog_obj.accordionOpen')) {
        zeb.click('#accordion h3');
    }
}

// From the blank row on.
function typeFrom(recid, text) {
    zeb.click(cell(recid, 0), {double: true});
    zeb.type(text);
}

function clearList() {
    zeb.click(cell(P("w2ui['wren-custom-data-list'].records[0].recid"), 0));
    zeb.key('Ctrl+A');
    zeb.key('Delete');
    same(told(), ['Delete. Is it OK?'], 'the list is deleted after a question');
    same(rows(), [[0, '']], 'and begins anew');
}

// A list of five, typed in one go.
const FIVE = [['TestNo', '12', '', true], ['Gas & "air"', '<', 'bar', true], ['Speed', '80', 'km/h', true],
    ['Comment', ' two  blanks ', '', true], ['Engineer', "O'Neill", '', true]];
begin(8);
same([rows(), P("document.querySelector('.edit-buttons .write').disabled")], [[[0, '']], true], 'a blank row, no file');
typeFrom(0, FIVE.map(item => item.slice(0, 3).join('\t')).join('\t'));
same([editor(), hostKeysAreLetters()], ['', true], 'the last editor is open');
zeb.type('\n');
same([editor(), hasKeyboard(), hostKeysAreLetters()], ['', false, true], 'Enter goes on below');
zeb.type('\x1b');
same([texts(datas()), editor(), hasKeyboard(), hostKeysAreLetters()], [FIVE, null, true, false], 'five items');
zeb.type('\n');
same([editor(), P("w2ui['wren-custom-data-list'].records.length")], ['', 6], 'Enter opens the cell again');
zeb.type('\x1b');
zeb.click(cell(2, 3) + ' input');
FIVE[2][3] = false;

// Into a file, and back.
zeb.file(within('five.xml'));
zeb.click('.edit-buttons .write');
const five = zeb.readFile(within('five.xml'));
check(five.includes('<value> two  blanks </value>') && five.includes('<usefilename>false</usefilename>'), 'the file');
clearList();
zeb.file(within('five.xml'));
zeb.click('.edit-buttons .read');
same([texts(datas()), rows().length], [FIVE, 6], 'read back');
zeb.file(null);
zeb.click('.edit-buttons .read');
zeb.writeFile(within('none.xml'), '<custom><customItems/></custom>');
zeb.file(within('none.xml'));
zeb.click('.edit-buttons .read');
same([texts(datas()), told()], [FIVE, ['File read failed.']], 'no choice, and a file without items, leave it');

// Onto eight cameras: one is locked, one away, one gone, one has the same, one another list, one fails in the middle.
const plain = FIVE.map(([name, value, unit, display]) => ({name, value, unit, display}));
const OTHER = {name: 'Old', value: '1', unit: '', display: true, usefilename: false};
zeb.setCamera(2, {locked: true});
zeb.setCamera(3, {connected: false, customInfo: [OTHER]});
zeb.fault(4, '*', {gone: true});
zeb.setCamera(5, {customInfo: plain});
P('wrentabledialog_obj.selectAll()');
zeb.click('.edit-buttons .apply');
same([told(), [1, 2, 5, 8].map(key => texts(zeb.camera(key).customInfo).length)], [['Camera 4: the camera has disappeared.'], [5, 5, 5, 5]], 'no question where nothing is lost');
same(texts(zeb.camera(3).customInfo), [['Old', '1', '', true]], 'a camera that is away keeps its own');
zeb.setCamera(6, {customInfo: [OTHER]});
zeb.setCamera(1, {customInfo: []});
zeb.answer('cancel');
zeb.click('.edit-buttons .apply');
const QUESTION = 'Overwrite custom information for the selected camera. Is it OK?';
same([told(), texts(zeb.camera(6).customInfo).length, texts(zeb.camera(1).customInfo).length], [[QUESTION], 1, 0],
    'a no applies nothing');
zeb.fault(7, 'addCustomInfo', {throws: 'no answer'});
zeb.setCamera(8, {customInfo: []});
zeb.click('.edit-buttons .apply');
same([1, 2, 5, 6, 8].map(key => texts(zeb.camera(key).customInfo).length), [5, 5, 5, 5, 0], 'up to the one that fails');
same(told(), [QUESTION, 'Camera 7: no answer\nCamera 7: the custom information could not be put back.'], 'which is told');
zeb.fault(7, 'addCustomInfo', {});

// A camera that does not tell its list keeps it, and so does the page.
zeb.fault(6, 'getCustomInfoList', {throws: 'no answer'});
zeb.setCamera(8, {customInfo: []});
zeb.click('.edit-buttons .apply');
P('wrentabledialog.setSelectDoc("6")');
zeb.click('.edit-buttons .loadCamera');
same([told(), texts(datas()), texts(zeb.camera(8).customInfo)], [['Camera 6: no answer', 'Camera 6: no answer'], FIVE, []],
    'a camera that does not tell');
zeb.fault(6, 'getCustomInfoList', {});

// From the current camera.
zeb.setCamera(8, {customInfo: [OTHER]});
P('wrentabledialog.setSelectDoc("8")');
zeb.click('.edit-buttons .loadCamera');
same([texts(datas()), rows().length], [[['Old', '1', '', true]], 2], 'the list of the current camera');

// What can't be taken is told once, and the cell is as it was.
const REFUSED = [
    ['name', 0, '', LENGTH], ['name', 0, 'x'.repeat(257), LENGTH], ['value', 1, '', LENGTH],
    ['unit', 2, 'x'.repeat(257), LENGTH], ['name', 0, 'a<b>c', 'Tags cannot be registered.']
];
REFUSED.forEach(([field, column, text, message]) => {
    zeb.click(cell(1, column), {double: true});
    zeb.key('Ctrl+A');
    if (text === '') {
        zeb.type('\b');
    } else if (text.length > 50) {
        zeb.paste(text);
    } else {
        zeb.type(text);
    }
    zeb.type('\tq\tr\n');
    same([told(), texts(datas())[0].slice(0, 3)], [[message], ['Old', '1', '']], `${field} "${text.slice(0, 9)}"`);
    same([editor(), hasKeyboard()], [null, true], 'what follows without a pause falls into no other cell');
    zeb.until('Date.now() > customEditor.refusedUntil');
    zeb.type('q');
    same(editor(), 'q', 'the next letter begins anew in the same cell');
    zeb.type('\x1b');
});
typeFrom(2, 'Old\t2\n\x1b');
zeb.click('.edit-buttons .write');
same(told(), ['Item name is duplicated. Please change to another item name.'], 'a name twice');

// A cell looked into and left is unchanged, whatever its text; Escape takes back; Delete is a letter's in the editor.
zeb.setCamera(8, {customInfo: [{name: 'a\nb', value: '<i>x</i>', unit: '  '}]});
zeb.click('.edit-buttons .loadCamera');
const hostile = texts(datas());
[0, 1, 2].forEach(column => {
    zeb.click(cell(1, column), {double: true});
    zeb.type('\n');
    zeb.type('\x1b');
    zeb.click(cell(1, column), {double: true});
    zeb.type('q');
    zeb.key('Delete');
    zeb.type('\x1b');
});
same([texts(datas()), told()], [hostile, []], 'looked into and left');
P("document.querySelector('.edit-buttons .read').focus()");
zeb.key('Delete');
same(told(), [], 'Delete is nothing outside the list');
zeb.click(cell(2, 0), {right: true});
same(P("document.getElementById('wren_custom_menu')"), null, 'no menu on a blank row');
zeb.click(cell(1, 0));
zeb.key('Shift+F10');
zeb.answer('cancel');
zeb.key('Return');
same([told(), texts(datas())], [['Delete. Is it OK?'], hostile], 'a no deletes nothing');

// The rows that were meant, by keys and by the mouse; a tick that ends an edit is one too.
clearList();
typeFrom(0, 'a\t1\t\tb\t2\t\tc\t3\t\td');
zeb.click(cell(1, 3) + ' input');
same(texts(datas()).map(item => item[0] + item[3]), ['atrue', 'bfalse', 'ctrue', 'dtrue'], 'a tick after a name');
zeb.click(cell(0, 0));
['Shift+Down', 'Shift+End', 'Shift+Up', 'Shift+Up', 'Delete'].forEach(name => zeb.key(name));
same([told(), rows().map(row => row[1])], [['Delete. Is it OK?'], ['d', '']], 'a range shrinks too');
zeb.key('Delete');
same([told(), rows().map(row => row[1])], [['Delete. Is it OK?'], ['']], 'the current row');
zeb.setCamera(8, {customInfo: [OTHER]});
zeb.click('.edit-buttons .loadCamera');

// A right click that ends a bad text deletes the row that it was on.
typeFrom(2, 'Second\t2\t\n');
zeb.type('\x1b');
zeb.click(cell(1, 0), {double: true});
zeb.key('Ctrl+A');
zeb.type('<b>');
zeb.click(cell(2, 1), {right: true});
zeb.until('Date.now() > customEditor.refusedUntil');
zeb.key('Return');
same([told(), rows().map(row => row[1])], [['Tags cannot be registered.', 'Delete. Is it OK?'], ['Old', '']],
    'the row under the menu');

// However an edit ends, what was typed is there or given up, and the host's keys are the host's.
const ENDS = {
    'the accordion': [() => zeb.click('#accordion h3'), () => zeb.click('#accordion h3')],
    'a tab': [() => zeb.click('#tabs > ul > li:nth-child(3) a'), () => undefined],
    'a mode': [() => zeb.click('#tabs > ul > li:nth-child(6) a'), () => zeb.click('#tabs > ul > li:nth-child(1) a')],
    'file mode': [() => zeb.mode('file'), () => zeb.mode('live')],
    'a hidden list': [() => {
        zeb.setPref('wren/display/customSettings', false);
        P('wrentabledialog_obj.autoUpdate()');
        zeb.type('lost');
    },
        () => zeb.setPref('wren/display/customSettings', true)],
    'display settings': [() => P('wrentabledialog_obj.refreshAllControls()'), () => undefined]
};
Object.keys(ENDS).forEach((what, index) => {
    zeb.click(cell(1, 1), {double: true});
    zeb.key('Ctrl+A');
    zeb.type('value ' + index);
    same(hostKeysAreLetters(), true, what);
    ENDS[what][0]();
    P('wrentabledialog_obj.autoUpdate()');
    same([editor(), texts(datas())[0][1], hostKeysAreLetters()], [null, 'value ' + index, false], what + ' ends an edit');
    ENDS[what][1]();
    P('wrentabledialog_obj.autoUpdate()');
});
zeb.click(cell(1, 1), {double: true});
zeb.type('x');
check(zeb.close(), 'the table closes over an editor');
same(hostKeysAreLetters(), false, 'and lets go of the keys');
zeb.messages();

// The last of 64 counts; a file with 65 gives 64.
begin(2);
clearList();
typeFrom(0, Array.from({length: 64}, (_, i) => `n${i}\t${i}\t`).join('\t'));
zeb.type('\n');
same([rows().length, datas().length, datas()[63].name, editor()], [64, 64, 'n63', null], '64 items and no blank row');
zeb.file(within('many.xml'));
zeb.click('.edit-buttons .write');
P('wrentabledialog_obj.selectAll()');
zeb.click('.edit-buttons .apply');
same([1, 2].map(key => zeb.camera(key).customInfo.length), [64, 64], 'all of them reach the cameras');
zeb.writeFile(within('many.xml'), zeb.readFile(within('many.xml')).replace('<customItem>',
    '<customItem><name>first</name><value>1</value></customItem><customItem>'));
zeb.file(within('many.xml'));
zeb.click('.edit-buttons .read');
same([rows().length, datas()[0].name, datas()[63].name], [64, 'first', 'n62'], 'of 65 in a file the first 64');

// The viewer's dialog: what is done reaches both cameras, and OK keeps it.
const items = number => zeb.camera(number).customInfo.map(item => `${item.name} ${item.value}${item.display ? '+' : ''}`);
[1, 2].forEach(number => zeb.setCamera(number, {customInfo: [OTHER]}));
P('wrentabledialog.updateUI()');
zeb.modal(() => {
    zeb.dialog("document.getElementById('cameras').focus()");
    zeb.key('Ctrl+A');
    zeb.dialog("document.getElementById('name').focus()");
    zeb.type('New\t5\tmm\n');
    zeb.key('Ctrl+A');
    zeb.type('Old\t2\n');
    same([items(1), items(2)], [['Old 2+', 'New 5+'], ['Old 2+', 'New 5+']], 'added and changed by Enter');
    zeb.click('#items tbody tr:first-child td:nth-child(2)');
    zeb.click('#items tbody tr:last-child input');
    same(items(2), ['Old 2+', 'New 5'], 'a tick');
    zeb.click('#items tbody tr:last-child td:nth-child(2)');
    zeb.click('#name', {double: true});
    zeb.type('Third');
    zeb.click('#edit');
    zeb.type('Fourth\n');
    same(items(2), ['Old 2+', 'Third 5', 'Fourth 5+'], 'a new name, and one more');
    zeb.click('#items tbody tr:first-child td:nth-child(2)');
    ['Shift+Down', 'Shift+Down', 'Delete'].forEach(name => zeb.key(name));
    same([items(1), told()], [[], ['Delete. Is it OK?']], 'a range is deleted');
    zeb.click('#ok');
});
zeb.menu('Camera > Custom info...');
same([items(1), items(2)], [[], []], 'OK');
same(told(), [], 'boxes');
