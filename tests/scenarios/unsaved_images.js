// A shoot that nobody has saved is not recorded over by accident: Enter and Escape keep it, at the button and at the
// record key. Once it is saved nobody is asked. Nor is it erased by Enter when the table opens.

const KEYS = [1, 2, 3, 4, 5, 6, 7, 8];
const STATUS = "$('#timeline_rec_exec').data('status')";
const OVER = 'Cameras hold images that nobody has saved. Record over them all the same?';

const states = () => KEYS.map(key => zeb.camera(key).recordState).join('');

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
    const boxes = zeb.messages();
    check(boxes.length === 1 && boxes[0].text.startsWith(question), `${key} refuses: ${JSON.stringify(boxes)}`);
    check(states() === '00000000' && KEYS.every(camera => zeb.camera(camera).recorded), 'nothing is armed, nothing is lost');
    return boxes[0].text.split('\n').slice(1);
}

zeb.setPref('wren/display/lock', false);
zeb.rig('shoot.json');
check(zeb.open(), 'the table opens');
zeb.click('#wren_button_connection_disconnect_-1');
check(zeb.until("$('.wren_button_connection_connect:visible').length === 9"), 'all are connected');
KEYS.forEach(key => zeb.setCamera(key, { triggerMode: 0 }));
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`), 'all are armed');
zeb.click('#timeline_rec_exec');
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'the first shoot');
live();
const lines = keeps(() => zeb.click('#timeline_rec_exec'), 'Return', OVER);
check(lines.length === 8 && lines[0] === 'Gate (192.168.0.11): 64 frames' && lines[1] === 'Ramp: 64 frames',
    'each camera is named with its frames');
keeps(() => zeb.key('F12'), 'Esc', OVER);

zeb.mode('memory');
check(zeb.until("$('#tabs').tabs('option', 'active') === 5"), 'to the images');
KEYS.forEach(key => zeb.setCamera(key, { recordCheck: true }));
zeb.save({ format: 'png' });
zeb.click('button.save-files');
check(zeb.results().length === 8, 'all are saved');
live();
zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`) && zeb.messages().length === 0, 'the next shoot begins without a question');
zeb.click('#timeline_rec_cancel');

check(zeb.close(), 'the table closes');
keeps(() => check(!zeb.open(), 'it stays shut'), 'Return', 'There are cameras that need to erase the image data');
