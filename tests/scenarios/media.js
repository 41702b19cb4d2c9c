// Storage media: recordings saved on a card are opened from it, looked at, named, compared, imported and deleted; a
// drive asks for its password and is formatted; what is protected, full or pulled out says so.

const home = `${zeb.pref('export/dir')}/media`;
const mediumFolder = name => `${home}/${name}`;

function same(value, expected, text) {
    const shown = JSON.stringify(value);
    check(shown === JSON.stringify(expected), `${text}: ${shown}`);
}

const texts = () => zeb.messages().map(message => message.text);
const rows = () => zeb.dialog(`Array.from(document.querySelectorAll('#recordings tbody tr')).map(row =>
    Array.from(row.children).map(cell => cell.textContent).slice(1, 6).join('|'))`);
const why = id => zeb.dialog(`byId('${id}').disabled && byId('${id}').title`);
const choose = name => zeb.click(`#media tr[data-name$="/${name}"]`);

function page(work) {
    zeb.modal(() => {
        work();
        zeb.click('#close');
    });
    zeb.menu('File > Media > Open media...');
}

function save(folder, order) {
    zeb.save(Object.assign({folder, format: 'png', saveinf: true}, order));
    zeb.menu('File > Save');
}

zeb.rig(2);
zeb.keys().forEach(key => {
    zeb.setCamera(key, {connected: true, recorded: true, recordedTrigger: 4, recordedRange: [0, 9], selectedRange: [3, 5],
        name: `Gate <b>${key}</b>`, resolution: [64, 48]});
});
page(() => {
    same(rows(), [], 'no medium, no recording');
    same([why('open'), why('import')], ['No medium is chosen.', 'No recording is chosen.'], 'and why nothing goes');
});

zeb.medium('sd', {name: 'CARD <1>', folder: mediumFolder('card'), capacity: '64 MB'});
zeb.medium('quikDrive', {name: 'Quik', folder: mediumFolder('quik'), capacity: '1 MB', password: 'secret'});
zeb.medium('cfast', {name: 'Fast', folder: mediumFolder('fast'), protected: true});
zeb.mode('memory');
save(mediumFolder('card'), {});
check(zeb.results().every(line => line.includes('3 frames saved')), 'the card takes what is saved');
zeb.messages();
save(mediumFolder('quik'), {});
check(zeb.results().length === 2, 'the drive takes it too');
zeb.medium('quikDrive', {name: 'Quik', filled: 1});
let plan = null;
zeb.modal(() => { plan = zeb.plan(); });
save(mediumFolder('quik'), {filename: 'more', agree: false});
check(plan.entries.some(entry => entry.text.includes('not enough space')), `a full drive is told: ${JSON.stringify(plan.entries)}`);
zeb.modal(() => { plan = zeb.plan(); });
save(mediumFolder('fast'), {agree: false});
check(!plan.possible, 'a protected one takes nothing');
zeb.setPref('export/filename', '');

// Opened, looked at and named.
zeb.mode('live');
page(() => {
    choose('CARD <1>');
    zeb.click('#open');
    check(zeb.dialog(`document.querySelectorAll('#recordings tbody tr').length`) === 2, `both are there: ${rows()}`);
    check(rows()[0].startsWith('1|D:|Gate <b>1</b>||'), `as text: ${rows()[0]}`);
    zeb.wait(400);
    check(zeb.dialog(`byId('preview').naturalWidth`) > 0, 'and can be looked at');
    zeb.click('#data_name');
    zeb.type('Crash <i>7</i>');
    zeb.click('#name');
    check(rows()[0].startsWith('1|D:|Gate <b>1</b>|Crash <i>7</i>|'), `the name is on the card: ${rows()[0]}`);

    zeb.click('#recordings tr[data-name]:nth-child(2)');
    same(zeb.dialog(`byId('data_name').value`), '', 'each recording shows its own name');
    zeb.click('#recordings tr[data-name]:nth-child(1)');
    same(zeb.dialog(`byId('data_name').value`), 'Crash <i>7</i>', 'the named one too');

    zeb.file(mediumFolder('card'));
    zeb.click('#check');
    check(texts().some(text => text.includes('saved nowhere but on its medium')), 'its own files do not count');

    // Another medium of the kind: no leaves the card open.
    zeb.medium('sd', {name: 'Other', folder: mediumFolder('other')});
    zeb.wait(600);
    choose('Other');
    zeb.answer('cancel');
    zeb.click('#open');
    check(rows().length === 2, 'no leaves all open');
    same(texts(), ['Multiple SD cards can not be opened at the same time. Are you sure you want to close all data of D:?'],
        'the question');

    // A locked drive asks, a wrong password is refused.
    choose('Quik');
    zeb.modal(() => {
        zeb.type('wrong');
        zeb.key('Return');
        zeb.type('secret');
        zeb.key('Return');
    });
    zeb.click('#open');
    check(rows().length === 4, `the drive is open beside the card: ${rows().length}`);

    // Formatted after the question.
    zeb.answer('cancel');
    zeb.click('#format');
    check(zeb.files(mediumFolder('quik')).length > 1, 'no leaves the files');
    zeb.messages();
    zeb.answer('ok');
    zeb.click('#format');
    check(texts().includes('Formatting is completed.'), 'it is formatted');
    same(zeb.files(mediumFolder('quik')).map(file => file.name), ['.zebsim-medium'], 'its label alone is left');
    check(rows().length === 2, 'and its recordings are gone from the table');

    // One that goes while its question stands.
    zeb.modal(() => {
        zeb.medium('quikDrive', {name: 'Quik', in: false});
        zeb.push('OK');
    });
    zeb.messages();
    choose('Quik');
    zeb.click('#format');
    same(zeb.dialog(`byId('note').textContent`), 'Quik was pulled out.', 'the page says so');
    check(!texts().some(text => text.includes('ormatting')), 'and nothing else happens');

    choose('Fast');
    same([why('format'), why('password')], ['It is write protected.', 'Only a QUIK Drive has a password.'], 'why not');
    choose('CARD <1>');
    same(why('format'), 'An SD card is formatted in its camera.', 'why not');
});

// Imported by the dialog that saves.
page(() => {
    zeb.click('#recordings th input');
    zeb.save({folder: `${home}/imported`, format: 'tiff'});
    zeb.click('#import');
    check(zeb.results().length === 2, 'both are imported');
    check(zeb.files(`${home}/imported`).filter(file => file.format === 'tiff').length === 6, 'as pictures of the other format');

    // Deleted, and pulled out.
    zeb.answer('ok');
    zeb.click('#delete');
    check(rows().length === 0, 'deleted');
});
check(zeb.files(mediumFolder('card')).every(file => file.name.startsWith('.')), 'their files are gone');
zeb.mode('memory');
save(mediumFolder('card'), {});
zeb.results();
zeb.mode('live');
page(() => {
    choose('CARD <1>');
    zeb.click('#open');
    zeb.click('#open');
    zeb.wait(100);
    check(rows().length === 2, `opened anew: ${rows().length}`);
    zeb.medium('sd', {name: 'CARD <1>', in: false});
    zeb.wait(600);
    check(rows().length === 0, 'its recordings go with it');
    same(zeb.dialog(`byId('note').textContent`), 'CARD <1> was pulled out.', 'the page says so');
});
check(zeb.messages().some(message => message.text.includes('CARD <1> was pulled out.')), 'and the host');

// Put in and pulled out by the viewer's menu.
zeb.modal(() => {
    zeb.type('relative');
    zeb.key('Return');    // refused: the dialog stays
    zeb.key('Ctrl+A');
    zeb.type(mediumFolder('slot'));
    zeb.key('Tab');
    zeb.key('Tab');
    zeb.type('By & hand');
    zeb.key('Return');
});
zeb.menu('File > Media > Put in...');
same(zeb.medium('sd', {name: 'By & hand'}).used, 0, 'it is in');
let refusal = '';
try {
    zeb.medium('sd', {name: 'By & hand', protected: true});
} catch (error) {
    refusal = String(error);
}
check(refusal.includes('protected of a medium that is in needs its folder'), `nothing is passed over: ${refusal}`);
