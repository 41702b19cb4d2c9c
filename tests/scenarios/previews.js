// The look at a recording that is chosen in the page that saves: 64 cameras that take their time to show one, gone
// through by a key that is held down. The page stays alive, and what is chosen last is what is shown.

const FRAMES = [0, 9];
zeb.rig(64);
zeb.keys().forEach(key => {
    zeb.setCamera(key, {connected: true, name: `Gate ${key}`, recorded: true, resolution: [64, 48]});
    zeb.setCamera(key, {recordedRange: FRAMES, recordedTrigger: 4, selectedRange: FRAMES});
    zeb.fault(key, 'getPreview', {delay: 50});
});

const page = text => zeb.dialog(text);
const shownKey = () => Number(/^Gate (\d+)/.exec(page("(document.querySelector('#facts dd') || {}).textContent"))[1]);
const chosenRow = () => page("document.querySelector('#targets .chosen').getAttribute('data-name')");
const picture = () => page("byId('preview').src");
const pictureOf = key => `data:image/png;base64,${page(`saveBridge.select(${key}, 1, PREVIEW_WIDTH, PREVIEW_HEIGHT)`)}`;

// Previews asked for since the last asking; comes back once the page has none in mind.
function previews() {
    zeb.wait(500);
    return zeb.log().filter(line => line.startsWith('[ENTER] "JS_Mediator_FileDialog::select"')).length;
}

function inPage(work) {
    zeb.modal(() => {
        previews();
        work();
        zeb.key('Escape');
    });
    zeb.menu('File > Save');
}

zeb.mode('memory');
inPage(() => {
    zeb.click('#targets tbody tr');
    page(`window.ticks = window.keys = 0;
        setInterval(function () { ++window.ticks; }, 10);
        document.addEventListener('keydown', function () { ++window.keys; })`);
    zeb.key('Down', {hold: 2400});
    const [keys, ticks] = [page('window.keys'), page('window.ticks')];
    const asked = previews();
    check(keys > 20 && asked > 0 && asked < keys / 4, `${keys} keys, ${asked} previews`);
    check(ticks > keys, `${ticks} ticks of the page meanwhile`);
    const last = Math.min(1 + keys, 64);
    check(shownKey() === last, `the facts are those of the last one, ${last}: ${shownKey()}`);
    check(chosenRow() === `${last}/1`, 'and so the row');
    const own = pictureOf(last);
    check(picture() === own && own !== pictureOf(1), 'and the picture');

    zeb.fault(last, 'getPreview', {throws: 'no answer'});
    zeb.key('Up');
    zeb.key('Down');
    previews();
    check(page("byId('preview').hidden") && shownKey() === last, 'no picture of another camera stands there');
    const told = zeb.messages().map(message => message.text).join();
    check(told === `Gate ${last}: no answer`, `it is told once: ${told}`);
});

function typing(items) {
    let asked = 0;
    zeb.setPref('export/saveinfo', true);
    zeb.setPref('saveinfo/display0', items);
    inPage(() => {
        page("saveTabs.open('names')");
        const before = picture();
        zeb.click('#filename');
        zeb.type('run');
        asked = previews();
        check((picture() !== before) === (asked > 0), `${items}: the picture shows the name`);
    });
    return asked;
}
check(typing('Camera name:1') === 0, 'no preview for a name that is not drawn');
check(typing('File name:1') === 1, 'one for a name that is');
