// Recordings in files: eight cameras are saved, their folder is opened, what lies in it is looked at and converted, and
// the pixels are those that were saved. What can't be read is told by its file.

const root = `${zeb.pref('export/dir')}/recordings`;
const saved = `${root}/saved`;
const FRAMES = 5;

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

function save(order) {
    zeb.save(order);
    zeb.menu('File > Save');
    return zeb.results();
}

function open() {
    zeb.file(saved);
    zeb.menu('File > Open recordings...');
}

// Of all pictures in a folder, by their names without the ending.
function pixels(folder) {
    const sums = {};
    zeb.files(folder).filter(file => file.format).forEach(file => {
        sums[file.name.replace(/\.\w+$/, '')] = zeb.pixels(`${folder}/${file.name}`);
    });
    return sums;
}

const areSame = (folder, other) => JSON.stringify(pixels(folder)) === JSON.stringify(pixels(other));
const lines = () => zeb.messages().map(message => [message.text].concat(message.list || []).join('\n'));

zeb.rig(8);
zeb.keys().forEach(key => {
    zeb.setCamera(key, {connected: true, name: `Gate "${key}"`, recorded: true, recordedRange: [0, 99], recordedTrigger: 42,
        selectedRange: [40, 39 + FRAMES], resolution: [64, 48]});
});
const cameras = zeb.keys();
zeb.mode('file');
same(zeb.keys(), [], 'nothing is open');
zeb.mode('memory');
same(save({folder: saved, format: 'png', 'png/depth': 16, 'png/lower': false, saveinf: true, filename: 'shot',
    filenameadddetail: true, filenameadddetails: 'number', filenameaddnumber: true})
    .filter(line => line.includes(`${FRAMES} frames saved`)).length, 8, 'eight are saved');
same(Object.keys(pixels(saved)).length, 8 * FRAMES, 'their pictures');

// The folder is opened once, whoever asks again; what is no recording is told. The table does not list it.
check(zeb.open(), 'the table opens');
const isConverting = () => zeb.page('JSON.parse(wrentabledialog.getControlStatus()).IsBgConverting');
zeb.writeFile(`${saved}/other.cih`, 'Camera: another program\n');
zeb.writeFile(`${saved}/out.cih`, zeb.readFile(`${saved}/${zeb.files(saved).find(file => /^shot.*cih$/.test(file.name)).name}`)
    .replace(/"files": \["/, '"files": ["../'));
zeb.messages();
open();
const files = zeb.keys();
same(zeb.page("JSON.parse(wrentabledialog.getRecords(JSON.stringify({tab: 1}))).records"), [], 'no row');
same([files.length, files.every(key => cameras.indexOf(key) < 0)], [8, true], 'each is a document, with a key of its own');
same(zeb.camera(files[1]).name, 'Gate "2"', 'as it was called');
const told = lines();
check(told.length === 1 && told[0].includes(`${saved}/other.cih: it is no recording of this program`) &&
    told[0].includes('out.cih') && told[0].includes('is no name of a file in the same folder'), `one message: ${told}`);
open();
same(zeb.keys(), files, 'none is opened twice');
zeb.messages();

// Converted by the page of conversions, which says why it must not replace what it reads.
let plan = null;
zeb.modal(() => { plan = zeb.plan(); });
zeb.save({format: 'png', dirasoriginal: true, filenameasoriginal: true, filenameadddetail: false, agree: false});
zeb.menu('File > Save');
check(!plan.possible && plan.entries.some(entry => entry.blocks && entry.text.includes('is of a recording that is open')),
    `its own pictures: ${plan.entries.map(entry => entry.text).join('; ')}`);
same(save({folder: `${root}/tiff`, dirasoriginal: false, format: 'tiff', 'tiff/depth': 16, filenameasoriginal: true,
    filenameadddetail: false, saveinf: true}).filter(line => line.includes(`${FRAMES} frames saved`)).length, 8, 'converted');
check(areSame(`${root}/tiff`, saved), 'with every pixel');

// A picture that is damaged, or not there any more.
const broken = zeb.files(saved).filter(file => file.format)[0].name;
zeb.writeFile(`${saved}/${broken}`, 'x');
zeb.menu('File > Close recordings');
same(zeb.keys(), [], 'closed');
open();
zeb.messages();
zeb.fault('disk', 'write', {delay: 20});
zeb.save({folder: `${root}/bmp`, format: 'bmp', saveinf: false});
zeb.menu('File > Save');
check(isConverting(), 'the table knows');
const results = zeb.results();
check(!isConverting(), 'and when it is over');
zeb.fault('disk', 'write', {});
same(results.filter(line => line.includes(`${FRAMES} frames saved`)).length, 7, 'the others are converted');
check(results.some(line => line.includes(`${broken} can't be read`)), `it is told by name: ${results}`);
zeb.menu('File > Close recordings');
zeb.close();

// After a save, in the background.
zeb.mode('memory');
zeb.setPref('convert/dir', `${root}/background`);
zeb.messages();
save({folder: `${root}/again`, backgroundconverting: true});
let notice = '';
while (notice === '') {
    zeb.wait(20);
    notice = lines().find(text => text.includes('converted')) || '';
}
same(notice, 'Recordings were converted: 8', 'it is told once');
check(areSame(`${root}/background`, `${root}/again`), 'it is what was saved');
