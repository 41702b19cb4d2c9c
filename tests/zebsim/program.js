'use strict';

// The built program, started as a user starts it, and what it says of a scenario.
//   node program.js ZEBSIM FOLDER

const { spawnSync } = require('child_process');
const fs = require('fs');
const path = require('path');

const [zebsim, folder] = process.argv.slice(2);
const file = name => path.join(folder, name);
const [prefs, mine, picture] = ['prefs.ini', 'my.js', 'table.png'].map(file);
let faults = 0;

// Runs it and expects a status, and words in what it writes.
function expect(args, status, words, environment) {
    const { status: ended, stdout, stderr } = spawnSync(zebsim, args,
        { encoding: 'utf8', env: { ...process.env, DISPLAY: '', WAYLAND_DISPLAY: '', ...environment } });
    const missing = words.filter(word => !(stdout + stderr).includes(word));
    if (ended !== status || missing.length > 0) {
        console.error(`${args.join(' ')}: ended with ${ended}, not ${status}; it does not say ${missing}`);
        console.error(stdout + stderr);
        ++faults;
    }
}

function expectScript(script, status, words = [], args = []) {
    fs.writeFileSync(mine, script);
    expect(['--rig', '3', '--prefs', prefs, '--scenario', mine, ...args], status, words);
}

fs.rmSync(folder, { recursive: true, force: true });
fs.mkdirSync(folder, { recursive: true });

// Help and mistakes need no display.
[
    [['--help'], 0, '--scenario'],
    [['--wrong'], 2, "Unknown option 'wrong'"],
    [['a.json'], 2, "argument 'a.json'"],
    [['--style', 'blue'], 2, "light or dark, not 'blue'"],
    [['--lang', 'xx'], 2, "or ja, not 'xx'"],
    [['--rig', '0'], 2, 'cameras, not 0'],
    [['--rig', '-3'], 2, 'cameras, not -3'],
    [['--timeout', 'soon'], 2, "not 'soon'"],
    [['--rig'], 2, 'Missing value']
].forEach(([args, status, words]) => expect(args, status, [words, 'Usage:'], { QT_QPA_PLATFORM: 'xcb' }));

const device = { address: '10.0.0.1', model: 'standard', heads: [{ rate: 'fast' }] };
fs.writeFileSync(file('wrong.json'), JSON.stringify({ devices: [device] }));
expect(['--rig', file('wrong.json'), '--prefs', prefs], 2, [file('wrong.json'), 'rate']);
expect(['--plugin', file('none.zeb'), '--prefs', prefs], 2, [file('none.zeb')]);

expectScript("print('hello'); print([1, {a: 'x'}]); check(zeb.keys().length === 3, 'small')", 0,
    ['hello\n[1,{"a":"x"}]\nok: small\n']);
expectScript("\nfunction f(x) {\n  check(x, 'held');\n}\nf(0);\ncheck(true, 'after');\n", 1,
    ['my.js:3: held', 'ok: after']);
expectScript(`zeb.open(); check(zeb.page("wrentabledialog.translate('Open')") === '開く', 'Japanese');
    check(zeb.pref('env/style') === 'dark', 'dark')`, 0, [], ['--style', 'dark', '--lang', 'ja', '--no-table']);

const EXPORT = "zeb.page('wrentabledialog.openExportSupportFileDialog()')";

// The place of what a script throws.
[
    ['var a;\n\na.b.c;', 'my.js:3: TypeError'],
    ["\nthrow new Error('mine');", 'my.js:2: Error: mine'],
    ["throw 'bare text'", 'bare text'],
    ['\nlet x = = 3;', 'my.js:2: SyntaxError'],
    ["\nzeb.page('1')", 'my.js:2: Error: the table was never open'],
    ["zeb.modal(() => { throw new Error('mine'); }); zeb.open(); zeb.close()", 'Error: mine'],
    ["zeb.modal(() => check(true, 'seen'))", 'FAILED: a function still waits'],
    ["zeb.answer('ok', 'no', 1, 2, 3, 4)", 'FAILED: no box took the answer ok, no, 1, 2, 3, 4'],
    ["zeb.file('a')", 'FAILED: no file dialog took a zeb.file'],
    [`zeb.open(); ${EXPORT}`, 'FAILED: a file dialog stands, and there is no zeb.file for it'],
    [`zeb.open(); zeb.file('a"b'); ${EXPORT}`, 'FAILED: no new name with a double quote can be typed'],
    [`zeb.open(); zeb.file('.'); ${EXPORT}`, 'FAILED: .: the file dialog does not take it']
].forEach(([script, words]) => expectScript(script, 1, [words]));
expect(['--scenario', file('missing.js'), '--prefs', prefs], 1, []);

// What the calls refuse.
expectScript(`
    zeb.open();
    [
        [() => zeb.mode('night'), 'live, memory and file, not "night"'],
        [() => zeb.status('IsWarm', true), 'no state "IsWarm"'],
        [() => zeb.setCamera(1, {colour: 3}), 'camera 1, colour'],
        [() => zeb.setCamera(9, {rate: 3}), 'no camera 9'],
        [() => zeb.fault(1, '*', {angry: true}), 'not angry'],
        [() => zeb.fault(9, '*', {gone: true}), 'no camera 9'],
        [() => zeb.fault(1, 'setRecordRat', {delay: 1}), 'a camera has no operation "setRecordRat"'],
        [() => zeb.fault('host', 'isSaving', {delay: 1}), 'the host has no operation "isSaving" that can fail'],
        [() => zeb.fault('host', 'getPref', {gone: true}), "the host can't be gone"],
        [() => zeb.hub('10.0.0.1'), 'there is no Sync Hub 10.0.0.1'],
        [() => { zeb.rig('sync'); zeb.setHub('192.168.0.61', {role: 7}); }, 'Sync Hub 192.168.0.61, role: 0 for'],
        [() => zeb.fault('192.168.0.61', 'connect', {delay: 1}), 'a Sync Hub has no operation "connect"'],
        [() => zeb.rig('none.json'), 'none.json'],
        [() => zeb.speed(0), 'above 0'],
        [() => zeb.type('a\\u007fb'), 'no key types U+007F'],
        [() => zeb.key('Shift+Nothing'), 'no key Shift+Nothing'],
        [() => zeb.readFile('none.txt'), '/none.txt: No such file'],
        [() => zeb.writeFile('${prefs}/a', ''), '/a: '],
        [() => zeb.file(7), 'takes a path'],
        [() => zeb.menu('File > Open'), 'no entry "Open", but Save'],
        [() => zeb.menu('File > Save'), 'is greyed'],
        [() => zeb.menu('Help'), 'is a menu'],
        [() => zeb.modal('text'), 'takes a function'],
        [() => zeb.signal('signalNothing'), 'signalNothing']
    ].forEach(([work, words]) => {
        let told = 'nothing';
        try { work(); } catch (error) { told = error.message; }
        check(told.includes(words), words + ': ' + told);
    });`, 0);

// A script that hangs is ended, with the dialog that it stands in.
['while (true) {}', "zeb.wait(1e9); print('on')", 'while (true) { try { zeb.wait(1e9) } catch (e) {} }',
    "zeb.open(); zeb.click('#wren_io_setting'); print('on')"
].forEach(script => expectScript(script, 1, ['more than 3 seconds'], ['--timeout', '3']));

fs.writeFileSync(prefs, '[wren\nnot = "an INI file\n');
expectScript(`
    let messages = [];
    while (messages.length === 0) {
        zeb.wait(1);
        messages = zeb.messages();
    }
    check(messages[0].text.includes('${prefs}'), 'the damaged file is named');
    check(zeb.pref('wren/table/interval') === 500, 'factory values are used');`, 0);
expectScript(`check(zeb.open(), 'open'); zeb.window('140,90,1230,500');
    zeb.signal('signalScreenShot', '${picture}')`, 0, [], ['--timeout', '20']);
if (!fs.existsSync(picture)) {
    console.error('the signal that waits was not served');
    ++faults;
}
expectScript(`check(zeb.pref('wren/ready'), 'the host closed it');
    check(zeb.pref('wren/table/x') === 140 && zeb.pref('wren/table/h') === 500, 'its place is stored')`, 0);

process.exit(faults > 0 ? 1 : 0);
