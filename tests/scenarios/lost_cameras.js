// One of eight cameras dies in a shoot, and while it is saved: the others finish, the user is told which one
// and what is lost, and the next shoot can begin.

const VICTIM = 3;    // "Nozzle"
const OTHERS = [1, 2, 4, 5, 6, 7, 8];
const STATUS = "$('#timeline_rec_exec').data('status')";
const ROWS = "$('.wren_label_edit_camera_name:visible').get().map(label => Number(label.getAttribute('dockey'))).filter(key => key > 0).join()";

function start() {
    zeb.rig('shoot.json');
    zeb.mode('live');
    zeb.keys().forEach(key => zeb.setCamera(key, { connected: true, selected: true }));
    check(zeb.until("$('#tabs').tabs('option', 'active') < 5 && $('#timeline_rec_exec:enabled').length === 1"), 'a new shoot');
    zeb.messages();
}

function arm() {
    zeb.click('#timeline_rec_exec');
    check(zeb.until(`${STATUS} === 2`), 'the others are armed');
}

function trigger() {
    zeb.wait(200);    // the memory before the trigger fills
    zeb.click('#timeline_rec_exec');
    check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'the recording ends');
}

function told(pattern, text) {
    const messages = [];
    for (let n = 0; n < 50 && !messages.some(message => pattern.test(message)); ++n) {
        zeb.wait(20);
        messages.push(...zeb.messages().map(box => box.text));
    }
    check(messages.length === 1 && pattern.test(messages[0]), `${text}: ${messages.join(' / ')}`);
}

function recorded(keys, text) {
    const frames = keys.map(key => zeb.camera(key)).map(camera => camera.recorded ? camera.recordedRange[1] - camera.recordedRange[0] + 1 : 0);
    check(frames.every(count => count === 64), `${text}: ${frames.join()}`);
}

function rows(keys, text) {
    check(zeb.until(`${ROWS} === '${keys.join()}'`), `${text}: ${zeb.page(ROWS)}`);
}

zeb.setPref('wren/display/lock', false);
check(zeb.open(), 'the table opens');

start();
zeb.fault(VICTIM, 'record', { gone: true });
arm();
trigger();
told(/^Nozzle: .*disappeared.*recording is lost/, 'one that goes while it records is named, and what is lost');
recorded(OTHERS, 'the others have recorded');
rows(OTHERS, 'it has no row');

start();
arm();
trigger();
zeb.mode('live');
check(zeb.until("$('#tabs').tabs('option', 'active') < 5 && $('#timeline_rec_exec:enabled').length === 1"), 'once more');
zeb.fault(5, 'arm', { throws: 'too hot' });
zeb.answer('yes');    // nobody has saved the recording before
arm();
trigger();
OTHERS.concat(VICTIM).forEach(key => zeb.setCamera(key, { recordCheck: true }));
zeb.page('wrentabledialog.setSelectStartFrameNo([1, 2, 3, 4, 5, 6, 7, 8], -1); return 0');
zeb.page('wrentabledialog.setSelectEndFrameNo([1, 2, 3, 4, 5, 6, 7, 8], 1); return 0');
zeb.fault(VICTIM, 'readFrame', { gone: true });
zeb.fault(4, '*', { gone: true });
zeb.save({ format: 'png' });
zeb.click('button.save-files');
const results = zeb.results();
const lost = results.filter(line => !/: [23] frames saved in/.test(line));
check(results.length === 9 && lost.length === 3 && /: the camera has disappeared. Its recording is not saved.$/.test(lost[0]) &&
    /: too hot. It does not take part in the recording.$/.test(lost[1]) && /^Nozzle: camera lost.* 2 frames not saved/.test(lost[2]),
    'one that goes before or while it is saved is named in the list, the others are saved: ' + results.join(' / '));
check(results.filter(line => /\(earlier recording\): 3 frames saved in/.test(line)).length === 1,
    'frames of an earlier recording are marked');
check(zeb.close(), 'the table closes');
