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
    check(!zeb.log().some(line => /refused|USER..ERROR/i.test(line)), `${when}: nothing was asked of the network`);
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
