// Text of cameras that looks like markup or script is shown as it stands, and does nothing.

const RUN = name => `wrentabledialog.setPrefString('hostile/${name}', 'ran')`;
const TEXTS = {
    image: `<img src=x onerror="${RUN('image')}">`,
    script: `</div></label><script>${RUN('script')}</script>`,
    request: '<img src="http://127.0.0.1:9/hostile.png"><link rel=stylesheet href="http://127.0.0.1:9/hostile.css">',
    quotes: `' onmouseover='${RUN('quotes')}' " \\ \` &amp;&lt; %1 %n {{x}}`,
    lines: 'first\nsecond <br> of two',
    long: 'x'.repeat(4096),
    japanese: '高速度カメラ「<b>門</b>」𠮷',
    closing: '"]}, {"recid": -2, "key": "1"}] </td></tr></table><b>bold</b>'
};
const NAMES = Object.keys(TEXTS);
const keyOf = name => NAMES.indexOf(name) + 1;

const ELEMENTS = "document.querySelectorAll('img, script, link, b, iframe, object, [onmouseover], [onerror]').length";
function text(selector) {
    return zeb.page(`$(${JSON.stringify(selector)}).text()`);
}

function attribute(selector, name) {
    return zeb.page(`$(${JSON.stringify(selector)}).attr(${JSON.stringify(name)})`);
}

// Moves the mouse there; the tip that comes up is the last one in the page.
function tipOver(selector) {
    zeb.click(selector, {down: false});
    return zeb.until("$('.ui-tooltip-content').length > 0") && zeb.page("$('.ui-tooltip-content').last().text()");
}

function checkHarmless(when) {
    check(zeb.page(ELEMENTS) === elementsAtStart, `${when}: no element was made`);
    check(NAMES.every(name => zeb.pref('hostile/' + name) === undefined) &&
        !zeb.calls().some(call => /setPref/.test(call.call)), `${when}: the bridge was not called`);
    check(!zeb.log().some(line => /(link|request) refused|USER..ERROR/i.test(line)), `${when}: nothing was asked of the network`);
}

zeb.rig(NAMES.length);
zeb.keys().forEach(key => zeb.setCamera(key, {connected: true, alerts: ['plain'], comment: 'plain'}));
check(zeb.open(), 'the table opens');
// A grid is made when it is first seen, with handlers of its own.
zeb.click('#accordion h3');
zeb.click('#accordion h3');
zeb.click('a[href="#livecontrolTab"]');
zeb.click('a[href="#cameraInfoTab"]');
const elementsAtStart = zeb.page(ELEMENTS);
zeb.calls();
zeb.log();

NAMES.forEach(name => {
    const hostile = TEXTS[name];
    zeb.setCamera(keyOf(name), {name: hostile, alerts: [hostile], comment: hostile, syncStatus: hostile});
});
zeb.page('wrentabledialog.updateUI()');

NAMES.forEach(name => {
    const key = keyOf(name);
    check(text(`#wren-cameraInfo-list .wren_label_edit_camera_name[dockey="${key}"]`) === TEXTS[name], `${name}: as a name`);
    check(text(`#wren_cameraInfo_comment_${key}`) === TEXTS[name], `${name}: as a comment`);
    check(attribute(`#wren_cameraInfo_sync_${key}`, 'sync') === TEXTS[name], `${name}: as a state of the signal`);
    zeb.click('#tabs li:first-child a');
    check(tipOver(`#wren_cameraInfo_alert_${key}`) === TEXTS[name], `${name}: as the tip of an alert`);
    zeb.click('#tabs li:first-child a');
    check(tipOver(`#wren_cameraInfo_comment_${key}`) === TEXTS[name], `${name}: as the tip of a comment`);
});
checkHarmless('camera information');

zeb.click('a[href="#livecontrolTab"]');
check(zeb.until(`$('.wren_livecontrol_framerate[dockey="1"]').length > 0`), 'the live control tab is drawn');

// What a camera answers stands in a message box.
zeb.keys().forEach(key => zeb.fault(key, 'setRecordRate', {throws: TEXTS.image}));
zeb.page("wrentabledialog.setFrameRate(['1', '5'], '2000')");
const boxes = zeb.messages();
check(boxes.length === 1 && boxes[0].kind === 'error' && boxes[0].text.includes(TEXTS.image),
    'a message shows what a camera answered: ' + JSON.stringify(boxes));
checkHarmless('message');

// What a user types into the dialog of a camera comes back as it was typed.
zeb.modal(() => zeb.type(TEXTS.image + '\n'));
zeb.click('#wren_livecontrol_button_edit_camera_name_8');
check(zeb.camera(8).name === TEXTS.image, 'a name is stored as it was typed: ' + zeb.camera(8).name);
check(text('#wren-livecontrol-list .wren_label_edit_camera_name[dockey="8"]') === TEXTS.image, 'and shown so');
checkHarmless('dialog of a camera');

// Custom information in the table's list, its editor and tips, and in the viewer's dialog.
const cell = (recid, column) => `#grid_wren-custom-data-list_rec_${recid} td[col="${column}"]`;
const oneLine = string => string.replace(/\n/g, '');
const items = NAMES.map(name => ({name: TEXTS[name], value: TEXTS[name], unit: TEXTS[name], display: true}));
zeb.setCamera(1, {customInfo: items});
zeb.page('wrentabledialog.setSelectDoc("1")');
zeb.click('#accordion h3');
zeb.click('.edit-buttons .loadCamera');
NAMES.forEach((name, index) => [0, 1, 2].forEach(column => {
    check(text(cell(index + 1, column)) === TEXTS[name], `${name}: as text ${column} of an item`);
    zeb.click(cell(index + 1, column), {double: true});
    check(zeb.page("$('#wren_custom_editor').val()") === oneLine(TEXTS[name]), `${name}: in the editor`);
    zeb.type('\x1b');
}));
zeb.click('#tabs li:first-child a');
check(tipOver(cell(keyOf('script'), 1)) === TEXTS.script, 'as the tip of a value');
zeb.click('#tabs li:first-child a');
check(zeb.page('JSON.stringify(wrentabledialog_obj.getCustomDatas())') === JSON.stringify(items),
    'and nothing was changed');
zeb.modal(() => {
    const shown = zeb.dialog("Array.from(document.querySelectorAll('#items tbody tr')).map(row =>" +
        'Array.from(row.cells).slice(1).map(cell => cell.textContent))');
    check(JSON.stringify(shown) === JSON.stringify(NAMES.map(name => [TEXTS[name], TEXTS[name], TEXTS[name]])),
        'items in the dialog');
    check(zeb.dialog("document.querySelectorAll('b, #items img, #items script, [onerror], [onmouseover]').length") === 0,
        'no element was made in the dialog');
    zeb.click('#cancel');
});
zeb.menu('Camera > Custom info...');
check(JSON.stringify(zeb.camera(1).customInfo.map(item => item.value)) === JSON.stringify(items.map(item => item.value)),
    'Cancel leaves the items as they were');
checkHarmless('custom information');

// The pages that save and that show media: partitions, custom information in names, folders by camera, media and files.
check(zeb.close(), 'the table closes');
zeb.keys().forEach((key, index) => {
    const name = TEXTS[NAMES[index]];
    const items = [{name: 'Item', value: name, unit: name, display: true, usefilename: true}];
    zeb.setCamera(key, {name, partitions: 2, partitionNames: [name, name], resolution: [64, 48]});
    [1, 2].forEach(partition => {
        zeb.setCamera(key, {partition});
        zeb.setCamera(key, {recorded: true, recordedRange: [0, 9], selectedRange: [0, 1], recordedCustomInfo: items});
    });
});
const MADE = 'script:not([src]):not([type="text/html"]), link:not([href^="qrc:"]), img:not(#preview), [onerror], ' +
    '[onmouseover], i, iframe, tbody b:not(.cut), #facts b, #note b, #path b, label b, option b';
const FORBIDDEN = /[\\/:*?"<>|%\t\n]/g;
const D = text => zeb.dialog(text);
const textsIn = (selector, what) => D(`Array.from(document.querySelectorAll('${selector}')).map(part => part.${what})`);
function same(value, expected, text) {
    check(JSON.stringify(value) === JSON.stringify(expected), `${text}: ${JSON.stringify(value).slice(0, 300)}`);
}
function checkPage(when) {
    check(D(`document.querySelectorAll('${MADE}').length`) === 0, `${when}: no element was made`);
    check(NAMES.every(name => zeb.pref('hostile/' + name) === undefined), `${when}: nothing ran`);
}

const labels = [].concat(...NAMES.map(name => Array(2).fill(`${TEXTS[name]}, ${TEXTS[name]}`)));
const home = `${zeb.pref('export/dir')}/<b>hostile</b> $& 'home'`;
zeb.mode('memory');
zeb.modal(() => {
    same(textsIn('#targets tbody .name', 'textContent'), labels, 'recordings');
    same(textsIn('#targets tbody td[title]:nth-child(2)', 'title'), labels, 'their tips');
    D(`savePage.fill('dir', ${JSON.stringify(home)}); savePage.fill('filenameusecustom', true);
        savePage.fill('filenameusecustomincludeunit', true); savePage.fill('filenameusecustomfromtarget', true)`);
    same(textsIn('#custom_camera option', 'textContent'), NAMES.map(name => TEXTS[name]), 'cameras to choose from');
    D("savePage.fill('filenameusecustomfromtarget', false)");
    zeb.click('#targets tbody tr');
    NAMES.filter(name => name !== 'long').forEach(name => {
        D(`saveTargets.pick(saveTargets.rows()[${2 * NAMES.indexOf(name)}])`);
        zeb.wait(500);
        const inName = TEXTS[name].replace(FORBIDDEN, '_');
        const path = D("byId('path').textContent");
        check(path.startsWith(`${home}/${inName}_${inName}`), `${name}: written as ${path}`);
        same(textsIn('#facts dd', 'textContent')[0], `${TEXTS[name]}, ${TEXTS[name]}`, `${name}: the facts`);
    });

    // A folder by camera, called so.
    D("saveTabs.open('paths'); savePage.fill('singlepath', false)");
    NAMES.forEach((name, index) => {
        zeb.click('#add_path');
        zeb.click(`#path_list .line:nth-child(${index + 1}) input`);
        zeb.key('Ctrl+A');
        zeb.paste(TEXTS[name].slice(0, 200));
    });
    const folders = textsIn('#path_list input:first-child', 'value');
    same(folders, NAMES.map(name => TEXTS[name].slice(0, 200).replace(/\n/g, ' ')), 'names of folders by camera');
    same(textsIn('#path_devices .line:first-child option', 'textContent').slice(1),
        folders.map(folder => `${folder}: ${home}`), 'are offered as they stand');
    checkPage('saving');
    zeb.key('Escape');
});
zeb.menu('File > Save');

// The plan and the results.
let plan = null;
zeb.modal(() => { plan = zeb.plan(); });
const called = {format: 'png', filename: 'shot', saveinf: true, filenameadddetails: 'number'};
zeb.save(Object.assign({folder: home, agree: false}, called));
zeb.menu('File > Save');
same(plan.tracks.map(track => track.name), labels, 'the plan');
const card = `${home}/card`;
zeb.save(Object.assign({folder: card}, called));
zeb.menu('File > Save');
same(zeb.results(), labels.map(label => `${label}: 2 frames saved in ${card}`), 'the results');

// A medium, its folder and a file on it are called so.
const file = `${TEXTS.image} %1 $&`.replace(/\//g, '_');
zeb.writeFile(`${card}/${file}.cih`, zeb.readFile(`${card}/shot_C01H1S001.cih`));
zeb.mode('live');
const medium = `${TEXTS.quotes} $& <b>card</b>`;
zeb.medium('sd', {name: medium, folder: card, capacity: '64 MB'});
zeb.modal(() => {
    zeb.click('#media tr');
    zeb.click('#open');
    same(textsIn('#media b', 'textContent'), [`D: ${medium}`], 'a medium');
    same(textsIn('#media td', 'title'), [card], 'its folder');
    const cells = textsIn('#recordings tbody td:nth-child(6)', 'textContent');
    check(cells.length === 17 && cells.includes(`${file}.cih`), `files: ${cells}`);
    const names = textsIn('#recordings tbody td:nth-child(4)', 'textContent');
    NAMES.forEach(name => check(names.includes(TEXTS[name]), `${name}: a camera of the medium`));
    zeb.click('#data_name');
    zeb.paste(TEXTS.script);
    check(zeb.clipboard() === TEXTS.script, 'the clipboard has it as it is');
    zeb.click('#name');
    check(textsIn('#recordings tbody td:nth-child(5)', 'textContent').includes(TEXTS.script), 'a name that is typed');
    zeb.medium('sd', {name: medium, in: false});
    zeb.wait(600);
    same(D("byId('note').textContent"), `${medium} was pulled out.`, 'the note');
    checkPage('media');
    zeb.key('Escape');
});
zeb.messages();
zeb.menu('File > Media > Open media...');
const notices = zeb.messages().map(message => message.text);
same(notices, [`${medium} was pulled out. Its recordings are closed.`], 'the notice');
