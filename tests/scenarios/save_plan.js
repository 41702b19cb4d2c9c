// Names and files of a save: eight cameras, two of one name, one with two heads, one with three partitions, saved twice
// with a camera gone the second time; a plan that is gone back from, and one that can't be; a disk that fills up.

const folder = `${zeb.pref('export/dir')}/names`;
const within = name => `${folder}/${name}`;
const names = () => zeb.files(folder).map(file => file.name);
const contents = list => zeb.files(folder).filter(file => list.includes(file.name)).map(file => file.checksum);

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

function save(order) {
    zeb.save(Object.assign({folder, format: 'png'}, order));
    zeb.menu('File > Save');
}

// Looks at the plan of a save, and goes back.
function plan(order) {
    let seen = null;
    zeb.modal(() => { seen = zeb.plan(); });
    save(Object.assign({agree: false}, order));
    return seen;
}

zeb.setPref('export/saveinf', false);    // images alone
zeb.rig('names.json');
zeb.keys().forEach(key => {
    zeb.setCamera(key, {connected: true, recordCheck: true, recorded: true, resolution: [64, 48], recordedTrigger: 10});
    zeb.setCamera(key, {recordedRange: [0, 19], selectedRange: [9, 11]});
});
// Partitions 2 and 3 of the last camera; 1 has a recording by now.
const LAST = zeb.keys().length;
[2, 3].forEach(partition => {
    zeb.setCamera(LAST, {partition});
    zeb.setCamera(LAST, {recorded: true, recordedTrigger: 10, recordedRange: [0, 19], selectedRange: [9, 10],
        recordedCustomInfo: [{name: 'Run', value: `p${partition}`, unit: '', display: true, usefilename: true}]});
});
zeb.mode('memory');

const first = plan({});
same([first.possible, first.files, first.tracks.length, first.entries.map(entry => entry.text)],
    [true, 9 * 3 + 2 * 2, 11, [`The folder ${folder}/ is made.`]], 'the plan');
const runs = plan({filenameusecustom: true}).tracks.slice(-2).map(track => track.first.split('/').pop());
same(runs, ['p2_Parts_C08H1S001_-00001.png', 'p3_Parts_C08H1S001_-00001.png'], 'each partition has its own information');
same(names(), [], 'nothing is written before the operator agrees');
save({});
const lines = zeb.results();
check(lines.length === 11 && lines.every(line => /: [23] frames saved in/.test(line)), 'all are saved: ' + lines.join(' / '));
const STEMS = ['Gate_C01H1S001', 'Gate_C02H1S001', 'Pair_C03H1S001', 'Pair_C03H2S001', 'Roof_C04H1S001', 'a_b_C05H1S001',
    'Parts_C08H1S001', 'Parts_C08H1S002', 'Parts_C08H1S003'];
STEMS.forEach(stem => check(names().includes(`${stem}_00000.png`), `${stem} is there`));
const old = names();
same(old.length, 31, 'every file');
const before = contents(old);

// The same again without the first camera: nothing of the first save is touched.
zeb.fault(1, '*', {gone: true});
save({});
same(zeb.results().length, 10, 'the others are saved');
same([names().length, names().filter(name => name.startsWith('Gate_C01')).length], [31 + 28, 3], 'under new names');
check(JSON.stringify(contents(old)) === JSON.stringify(before), 'every byte of the first save stands');
zeb.fault(1, '*', {});

// What the plan says, and what it replaces.
const blocked = plan({filenameadddetails: 'text', filenameaddtextvalue: 'run'});
check(!blocked.possible && blocked.entries.some(entry => / would both write .*run_-00001\.png/.test(entry.text)),
    'two that would write one file: ' + blocked.entries.map(entry => entry.text).join(' / '));
const asking = plan({filenameadddetails: 'name', filename: 'Roof'});
check(!asking.possible, 'two of one name');
const ROOF = {filenameadddetails: 'text', filenameaddtextvalue: 'C04H1S001', filename: 'Roof'};
zeb.keys().filter(key => zeb.camera(key).name !== 'Roof').forEach(key => zeb.setCamera(key, {connected: false}));
zeb.setCamera(5, {name: 'Other'});    // the pictures show it
const again = plan(ROOF);
same(again.entries.filter(entry => entry.asks).map(entry => entry.text),
    [`Other: 3 files exist already and are replaced, the first is ${within('Roof_C04H1S001_-00001.png')}`], 'what is replaced');
check(JSON.stringify(contents(old)) === JSON.stringify(before), 'nothing is written by a plan that is gone back from');
save(ROOF);
same(zeb.results().length, 1, 'agreed to');
const replaced = contents(old).filter((sum, index) => sum !== before[index]).length;
same([names().length, replaced], [59, 3], 'and replaced, these alone');
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true}));

// A disk that fills up; what failed once more goes on where it stopped.
zeb.fault('disk', 'write', {written: 12, throws: 'no space left'});
zeb.messages();
save({folder: within('full'), filenameadddetails: 'name,number', filename: ''});
const stopped = zeb.saved();
check(stopped.some(line => /can't be written, \d frames not saved \(no space left\)/.test(line)), 'named: ' + stopped.join(' / '));
same(zeb.files(within('full')).length, 12, 'whole files only');
zeb.fault('disk', 'write', {});
let left = 0;
zeb.modal(() => {
    left = zeb.plan().files;
    zeb.wait(1000);    // a key of the first moment was meant for what was there before
    zeb.key('Return');
});
zeb.push('Save again what failed');
const rest = zeb.results();
same(left, 31 - 12, 'what was not written is planned');
check(rest.every(line => /: [123] frames saved in/.test(line)), 'and saved: ' + rest.join(' / '));
same(zeb.files(within('full')).length, 31, 'every file is there');
same(zeb.messages(), [], 'no box');
