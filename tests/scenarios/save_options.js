// Every option that the pages of saving offer is changed by mouse and keys, and stands in the preferences once the page
// is accepted; what is without effect is disabled beside its reason. Cancel keeps nothing.

zeb.rig(2);
zeb.keys().forEach(key => {
    zeb.setCamera(key, {connected: true, selected: true, recorded: true, recordedTrigger: 10, resolution: [64, 48]});
    zeb.setCamera(key, {recordedRange: [0, 19], selectedRange: [0, 19]});
});

const page = text => zeb.dialog(text);
const inPage = (selector, text) => page(`(function (field) { return ${text}; })(document.querySelector('${selector}'))`);

// All that a page shows, hidden parts of other families left out: suffix, kind, conditions and the like.
const fieldsOf = () => JSON.parse(page(`JSON.stringify(saveOptions.fields.filter(function isOffered(element) {
    const part = element.closest('[data-in]');
    return !part || (part.getAttribute('data-in').indexOf(saveFamily) >= 0 && isOffered(part.parentNode));
}).map(field => ({
    suffix: field.getAttribute('data-pref'), tag: field.tagName, type: field.type, tab: field.closest('.tab').id,
    never: field.hasAttribute('data-never'),
    needs: (field.getAttribute('data-if') || '').split(' ').filter(text => text !== ''),
    format: (field.closest('[data-format]') || field).getAttribute('data-format')
})))`));

// What must hold for the field to be enabled.
function prepare(field) {
    page(`saveTabs.open('${field.tab}')`);
    if (field.format) {
        page(`savePage.fill('format', '${field.format.split(' ')[0]}')`);
        while (page('app.trying')) {
            zeb.wait(50);
        }
    }
    field.needs.forEach(need => {
        const [, not, suffix, sign, values] = /^(!?)([^=~]+)(?:([=~])(.*))?$/.exec(need);
        const first = sign === '~' ? 'name,number,text' : values && values.split('|')[0];
        const value = values === undefined ? not === '' : /^\d+$/.test(first) ? Number(first) : first;
        page(`savePage.fill('${suffix}', ${JSON.stringify(value)})`);
    });
}

const NUMBERS = {filenameseqdigits: '7', 'jpeg/compressquality': '40', count: '3', 'avi/crf': '30', 'mov/crf': '30',
    'mp4/crf': '30', 'avi/quality': '20', 'mov/quality': '20', 'mp4/quality': '20', 'avi/framerate': '25',
    'mov/framerate': '29.97', 'mp4/framerate': '25', combinedresolutionspecifywidth: '640',
    combinedresolutionspecifyheight: '480'};
const TEXTS = {dir: '/tmp', groupdirname: 'group', subdirname: 'sub', groupdiraddtimeformat: 'yyyy',
    subdiraddtimeformat: 'HHmm', filenameaddtimeformat: 'ss'};

// As an operator does it.
function change(field, selector) {
    if (field.type === 'checkbox') {
        zeb.click(selector);
    } else if (field.tag === 'SELECT') {
        zeb.choose(selector, inPage(selector, `Array.from(field.options).filter(option =>
            !option.disabled && option.value !== field.value).map(option => option.value)[0]`));
    } else {
        zeb.click(selector);
        zeb.key('Ctrl+A');
        zeb.type(NUMBERS[field.suffix] || TEXTS[field.suffix] || 'typed');
    }
}

// Answers the values that the page has stored, and which options it has none of.
function walk(prefix) {
    const done = {changed: {}, never: []};
    fieldsOf().forEach(field => {
        prepare(field);
        const selector = `[data-pref="${field.suffix}"]`;
        const told = `${prefix}${field.suffix}`;
        if (field.never || inPage(selector, 'field.disabled')) {
            const reason = inPage(selector, "field.closest('.line').querySelector('.why').textContent");
            check(inPage(selector, 'field.disabled') && reason !== '', `${told} is disabled: ${reason}`);
            done.never.push(field.suffix);
            return;
        }
        const before = zeb.pref(told);
        change(field, selector);
        const after = zeb.pref(told);
        if (JSON.stringify(before) === JSON.stringify(after) || typeof before !== typeof after) {
            check(false, `${told} is changed by the page: ${before} -> ${after}`);
        }
        done.changed[field.suffix] = after;
    });
    return done;
}

function openSave(name, work) {
    zeb.modal(work);
    zeb.menu(`File > ${name}`);
}

const counts = [];
function count(prefix, done) {
    counts.push(`${prefix} ${Object.keys(done.changed).length} changed, ${done.never.length} disabled`);
}

zeb.mode('memory');
// Each page is walked, then left; what it had tried is gone.
[['Save', 'export/'], ['Save layout', 'layout/']].forEach(([name, prefix]) => {
    let done;
    let first;
    openSave(name, () => {
        first = zeb.pref(`${prefix}filenameseqdigits`);
        done = walk(prefix);
        count(prefix, done);
        zeb.key('Escape');
    });
    check(zeb.pref(`${prefix}filenameseqdigits`) === first, `${prefix}: Cancel keeps nothing`);
});

// Settings alone: OK keeps all.
function settings(prefix, open) {
    let done;
    zeb.modal(() => {
        done = walk(prefix);
        count(prefix, done);
        zeb.click('#save');
    });
    open();
    const lost = Object.keys(done.changed).filter(suffix => suffix !== 'format' && !suffix.includes('/') &&
        JSON.stringify(zeb.pref(prefix + suffix)) !== JSON.stringify(done.changed[suffix]));
    // Conditions of others are filled in on the way.
    check(lost.length < Object.keys(done.changed).length / 3, `${prefix}: OK keeps what was chosen; on the way ${lost}`);
}
openSave('Save', () => {
    page("saveTabs.open('contents')");
    settings('convert/', () => zeb.click('#conversion'));
    zeb.key('Escape');
});
zeb.mode('live');
zeb.open();
settings('snap/', () => zeb.page('wrentabledialog.snapShot(4)'));
zeb.close();
print(counts.join('; '));
