// Every option of saving is changed by mouse and keys on the page that offers it, or stands there disabled beside its
// reason, or no page has it. What is accepted is kept whole, what is only tried is not.

// The keys of the table: plain rows, and those that its helpers put together.
const FAMILIES = {E: 'export/', C: 'convert/', S: 'snap/', R: 'report/', L: 'layout/'};
const source = zeb.readFile('../../export/options/SaveOptions.cpp');
function rowsOf(helper) {
    const starts = {additionsTo: {suffix: 'add', number: 'addnumber'}}[helper] || {suffix: ''};
    const rows = source.split(` ${helper}(`)[1].split('\n}')[0].match(/\{[^{,]+, (suffix|number)( % "\w+")?, /g);
    return rows.map(row => /, (suffix|number)(?: % "(\w+)")?, /.exec(row))
        .map(([, start, end]) => starts[start] + (end || ''));
}
const ADDED = rowsOf('additionsTo');
const FOLDER = rowsOf('directory').concat(ADDED);
const TABLE = source.match(/\{"[ECSRL]+", "[^"]+"/g).map(row => row.split('"').filter((text, index) => index % 2))
    .concat(...[['ECSRL', 'filename', ADDED], ['ECSRL', 'subdir', FOLDER], ['ECSR', 'groupdir', FOLDER],
        ['E', 'fd/dataname', ADDED.slice(1)], ['ECL', 'avi/', rowsOf('video')], ['ECL', 'mov/', rowsOf('video')],
        ['ECL', 'mp4/', rowsOf('video')], ['EC', 'raww/', rowsOf('raw')], ['EC', 'mraw/', rowsOf('raw')],
        ['E', 'graw/', rowsOf('raw')]].map(([families, name, ends]) => ends.map(end => [families, name + end])));
const KEYS = [].concat(...TABLE.map(([families, suffix]) => families.split('').map(one => FAMILIES[one] + suffix)));
check(KEYS.length === 446 && new Set(KEYS).size === 446, `keys of the table: ${KEYS.length}`);

// What no page offers.
const LEFT = [
    ['ESL', 'dirasoriginal'],    // of files alone
    ['EC', 'raww/depth raww/lower raww/bayersave mraw/depth mraw/lower mraw/bayersave mraw/divide mraw/divideframe'],
    ['E', 'graw/depth graw/lower'],    // raw formats are on no page
    ['EC', 'csv/dir csvtype daqpath savemmepath savemmesameexport'],    // no camera here measures signals
    ['EC', 'media fd/dataname fd/datanameaddnumber'],    // saves go into folders
    ['E', 'sd/slot fd/datanameasoriginal'],
    ['E', ADDED.slice(1).map(end => `fd/dataname${end}`).join(' ')],
    ['E', 'inf_comments inf_date inf_engineer inf_project inf_technician inf_testno inf_testtype inf_testtypeno'],
    ['L', 'combinedresolutionwidth combinedresolutionheight templatedir'],
    ['L', 'combinedresolutionresetwidth combinedresolutionresetheight'],    // Reset reads them
    // Files have neither numbers of cameras nor of heads.
    ['C', [].concat(...['filename', 'subdir', 'groupdir'].map(name => ['format', 'cameranodigits', 'headnodigits',
        'manualcameranodigits', 'manualheadnodigits'].map(end => `${name}addnumber${end}`))).join(' ')]
];
const left = KEYS.filter(key => key.startsWith('report/')).concat(...LEFT.map(([families, suffixes]) =>
    [].concat(...families.split('').map(one => suffixes.split(' ').map(suffix => FAMILIES[one] + suffix)))));

zeb.rig(2);
zeb.keys().forEach(key => {
    zeb.setCamera(key, {connected: true, selected: true, recorded: true, recordedTrigger: 10, resolution: [64, 48]});
    zeb.setCamera(key, {recordedRange: [0, 19], selectedRange: [0, 19]});
});

const page = text => zeb.dialog(text);
const inPage = (selector, text) =>
    page(`(function (field) { return ${text}; })(document.querySelector('${selector}'))`);

// What a page shows, hidden parts of other families left out.
const shown = selector => JSON.parse(page(`JSON.stringify(Array.from(document.querySelectorAll('${selector}'))
    .filter(function isOffered(element) {
        const part = element.closest('[data-in]');
        return !part || (part.getAttribute('data-in').indexOf(saveFamily) >= 0 && isOffered(part.parentNode));
    }).map(field => ({
        suffix: field.getAttribute('data-pref'), digits: field.getAttribute('data-digits'), id: field.id,
        tag: field.tagName, type: field.type, tab: field.closest('.tab').id, never: field.hasAttribute('data-never'),
        isName: field.hasAttribute('data-name'),
        needs: (field.getAttribute('data-if') || '').split(' ').filter(text => text !== ''),
        format: (field.closest('[data-format]') || field).getAttribute('data-format')
    })))`));

// Opens the part with the field, and chooses what must hold for it to be enabled: the page itself says what does.
function prepare(field) {
    page(`saveTabs.open('${field.tab}')`);
    if (field.format) {
        page(`savePage.fill('format', '${field.format.split(' ')[0]}')`);
        while (page('app.trying')) {
            zeb.wait(50);
        }
    }
    field.needs.forEach(need => page(`(function (need) {
        const field = saveOptions.field(/[^!=~]+/.exec(need)[0]);
        (field.type === 'checkbox' ? [true, false] : Array.from(field.options).map(option => option.value))
            .some(value => saveOptions.holds(need) || (savePage.fill(saveOptions.suffixOf(field), value), false));
    })('${need}')`));
}

const TYPED = {filenameseqdigits: '7', 'jpeg/compressquality': '40', count: '3', 'avi/crf': '30', 'mov/crf': '30',
    'mp4/crf': '30', 'avi/quality': '20', 'mov/quality': '20', 'mp4/quality': '20', 'avi/framerate': '25',
    'mov/framerate': '29.97', 'mp4/framerate': '25', combinedresolutionspecifywidth: '640',
    combinedresolutionspecifyheight: '480', dir: `${zeb.pref('export/dir')}/own`, groupdirname: 'group',
    subdirname: 'sub', groupdiraddtimeformat: 'yyyy', subdiraddtimeformat: 'HHmm', filenameaddtimeformat: 'ss'};

function type(selector, text) {
    zeb.click(selector);
    zeb.key('Ctrl+A');
    zeb.type(text);
}

// As an operator does it; what can't stand in a name is not taken as it is typed.
function change(field, selector) {
    if (field.type === 'checkbox') {
        zeb.click(selector);
    } else if (field.tag === 'SELECT') {
        zeb.choose(selector, inPage(selector, `Array.from(field.options).filter(option =>
            !option.disabled && option.value !== field.value).map(option => option.value)[0]`));
    } else {
        const text = TYPED[field.suffix] || 'typed';
        type(selector, field.isName ? `${text.slice(0, 1)}\\/:*?${text.slice(1)}"<>|%` : text);
        const note = field.isName ? page("byId('note').textContent") : '';
        if (inPage(selector, 'field.value') !== text || (field.isName && !note.startsWith('Not in names'))) {
            check(false, `${field.suffix} takes what can stand in a name: ${inPage(selector, 'field.value')} ${note}`);
        }
    }
}

const changed = [];
const disabled = [];

// Does the work; all the options of these suffixes are others afterwards, and of their type.
function changing(prefix, suffixes, work) {
    const keys = suffixes.map(suffix => prefix + suffix);
    const before = keys.map(key => zeb.pref(key));
    work();
    keys.forEach((key, index) => {
        const after = zeb.pref(key);
        if (before[index] === after || (before[index] !== undefined && typeof before[index] !== typeof after)) {
            check(false, `${key} is changed by the page: ${before[index]} -> ${after}`);
        }
        changed.push(key);
    });
}

// In a box of their own; digits of cameras are not those of files.
function changeDigits(prefix, field) {
    prepare(field);
    const number = `${field.digits.toLowerCase()}addnumber`;
    const parts = prefix === 'convert/' ? ['session'] : ['camera', 'head', 'session'];
    const open = work => {
        zeb.modal(() => {
            work();
            zeb.click('#ok');
        });
        zeb.click(`[data-digits="${field.digits}"]`);
    };
    changing(prefix, [].concat(...parts.map(part => [`${number}${part}nodigits`, `${number}manual${part}nodigits`])),
        () => open(() => parts.forEach(part => zeb.choose(`#${part}`, '7'))));
    if (parts.length > 1) {
        changing(prefix, [`${number}format`], () => open(() => zeb.click('#auto')));
    }
}

function changeSkip(prefix) {
    prepare(shown('#skip_frames')[0]);
    changing(prefix, ['skipsaveframe'], () => {
        type('#skip_frames', '4');
        zeb.key('Tab');
    });
    changing(prefix, ['skipunit'], () => zeb.choose('#skip_unit', '1'));
    changing(prefix, ['skipsavemsec'], () => {
        type('#skip_frames', '3');
        zeb.key('Tab');
    });
}

function changePaths(prefix) {
    page("saveTabs.open('paths')");
    page("savePage.fill('singlepath', false)");
    changing(prefix, ['multipathlist'], () => {
        zeb.click('#add_path');
        type('#path_list input', 'l?e|ft');
    });
    check(zeb.pref(`${prefix}multipathlist`) === `left|${TYPED.dir}`, 'what parts the list is not taken');
    changing(prefix, ['multipathdevicelist'], () => zeb.choose('#path_devices select', '0'));
}

function walk(prefix) {
    shown('[data-pref]').forEach(field => {
        prepare(field);
        const selector = `[data-pref="${field.suffix}"]`;
        const isDisabled = inPage(selector, 'field.disabled');
        if (field.never || isDisabled) {
            const reason = inPage(selector, "field.closest('.line').querySelector('.why').textContent");
            check(isDisabled && reason !== '', `${prefix}${field.suffix} is disabled: ${reason}`);
            disabled.push(prefix + field.suffix);
            return;
        }
        changing(prefix, [field.suffix], () => change(field, selector));
    });
    shown('[data-digits]').forEach(field => changeDigits(prefix, field));
    if (shown('#skip_frames').length > 0) {
        changeSkip(prefix);
    }
    if (shown('#add_path').length > 0) {
        changePaths(prefix);
    }
}

// A fraction comes from the page less exact than it stands in the file.
const valuesOf = prefix => KEYS.filter(key => key.startsWith(prefix)).map(key => zeb.pref(key))
    .map(value => typeof value === 'number' ? Math.fround(value) : value);

// Walks the page and accepts it, then tries other values of the same options and leaves it.
function keepsWhatIsAccepted(prefix, open, accept, settle = () => {}) {
    const keys = KEYS.filter(key => key.startsWith(prefix));
    let accepted = [];
    const checkKept = text => {
        const now = valuesOf(prefix);
        const others = keys.filter((key, index) => now[index] !== accepted[index]);
        check(others.length === 0, `${prefix}: ${text}${others.map(key => `, but ${key} ${zeb.pref(key)}`)}`);
    };
    open(() => {
        walk(prefix);
        page("savePage.fill('format', 'png')");
        accepted = valuesOf(prefix);
        accept();
    });
    checkKept('all that was accepted is kept');
    settle();
    open(() => {
        const tried = changed.filter(key => key.startsWith(prefix));
        tried.forEach(key => {
            const value = zeb.pref(key);
            const [kind, other] = {boolean: ['bool', !value], number: ['float', value + 1],
                string: ['string', `${value}x`]}[typeof value];
            page(`saveOptions.store('${key.slice(prefix.length)}', '${kind}', ${JSON.stringify(other)})`);
        });
        const now = valuesOf(prefix);
        const others = keys.filter((key, index) => now[index] !== accepted[index]);
        check(others.length === tried.length, `${prefix}: ${others.length} of ${tried.length} are tried`);
        zeb.key('Escape');
    });
    checkKept('nothing that was only tried is kept');
}

// The dialogs that save go on to their plan.
function saves(name, prefix) {
    keepsWhatIsAccepted(prefix, work => {
        zeb.modal(work);
        zeb.menu(`File > ${name}`);
    }, () => {
        zeb.modal(() => {
            zeb.wait(1000);    // a key of the first moment was meant for what was there before
            zeb.key('Return');
        });
        zeb.click('#save');
    }, () => zeb.results().forEach(line => check(/: \d+ frames saved in /.test(line), line)));
}

zeb.mode('memory');
saves('Save', 'export/');
saves('Save layout', 'layout/');
keepsWhatIsAccepted('convert/', work => {
    zeb.modal(() => {
        page("saveTabs.open('contents')");
        zeb.modal(work);
        zeb.click('#conversion');
        zeb.key('Escape');
    });
    zeb.menu('File > Save');
}, () => zeb.click('#save'));
zeb.mode('live');
zeb.open();
keepsWhatIsAccepted('snap/', work => {
    zeb.modal(work);
    zeb.page('wrentabledialog.snapShot(4)');
}, () => zeb.click('#save'));
zeb.close();

// Each key has its one place.
const placed = changed.concat(disabled, left);
const places = key => placed.filter(other => other === key).length;
const misplaced = KEYS.filter(key => places(key) !== 1).concat(placed.filter(key => !KEYS.includes(key)));
check(misplaced.length === 0, `each key is changed by one page, disabled there, or left to nobody: ${misplaced}`);
const counts = `${changed.length} changed, ${disabled.length} disabled, ${left.length} left to nobody`;
check(counts === '291 changed, 18 disabled, 137 left to nobody', counts);
