// A shoot that nobody has saved is not recorded over by accident: Enter and Escape keep it, at the button and at the
// record key. Once it is saved nobody is asked. Nor is it erased by Enter when the table opens.

const KEYS = [1, 2, 3, 4, 5, 6, 7, 8];
const STATUS = "$('#timeline_rec_exec').data('status')";
const OVER = 'Cameras hold images that nobody has saved. Record over them all the same?\n' +
    'Gate (192.168.0.11): 64 frames\nRamp: 64 frames\nNozzle: 64 frames\nRoof: 64 frames\n';

function live() {
    zeb.mode('live');
    check(zeb.until("$('#tabs').tabs('option', 'active') < 5 && $('#timeline_rec_exec:enabled').length === 1"), 'live again');
}

// Does what asks a question, answers that by a key, and looks that nothing has come of it.
function keeps(work, key, question) {
    zeb.messages();
    zeb.modal(() => {
        while (zeb.active() !== 'Confirmation') {
            zeb.wait(10);
        }
        zeb.key(key);
    });
    work();
    const told = zeb.messages().map(box => box.text).join();
    check(told.startsWith(question), `${key} refuses: ${told}`);
    check(KEYS.map(camera => zeb.camera(camera)).every(camera => camera.recordState === 0 && camera.recorded), 'nothing is armed, nothing is lost');
}

zeb.setPref('wren/display/lock', false);
zeb.rig('shoot.json');
KEYS.forEach(key => zeb.setCamera(key, { connected: true, triggerMode: 0 }));
check(zeb.open(), 'the table opens');
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`), 'all are armed');
zeb.click('#timeline_rec_exec');
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'the first shoot');
live();
keeps(() => zeb.click('#timeline_rec_exec'), 'Return', OVER);
keeps(() => zeb.key('F12'), 'Esc', OVER);

zeb.mode('memory');
KEYS.forEach(key => zeb.setCamera(key, { recordCheck: true }));
zeb.save({ format: 'png' });
check(zeb.until("$('button.save-files:enabled').length === 1"), 'to the images');
zeb.click('button.save-files');
check(zeb.results().length === 8, 'all are saved');
live();
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`) && zeb.messages().length === 0, 'the next shoot begins without a question');
zeb.click('#timeline_rec_cancel');

check(zeb.close(), 'the table closes');
keeps(() => check(!zeb.open(), 'it stays shut'), 'Return', 'There are cameras that need to erase the image data');
