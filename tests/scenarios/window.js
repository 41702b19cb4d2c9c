// The life of the table's window: where it opens, how it closes, and that it is the same one when it opens again.

const COUNT = `
    window.mine = {bridge: wrentabledialog, opens: 0, updates: 0, ticks: 0};
    wrentabledialog.open.connect(function () { mine.opens++; });
    wrentabledialog.update.connect(function () { mine.updates++; });
    wrentabledialog.autoUpdate.connect(function () { mine.ticks++; });`;

function stored() {
    return ['x', 'y', 'w', 'h', 'scrno'].map(edge => zeb.pref('wren/table/' + edge)).join();
}

zeb.rig(2);
zeb.setPref('wren/table/interval', 50);
// As it was left on a screen that is gone.
['x', 'y', 'w', 'h', 'scrno', 'stat'].forEach((name, i) => zeb.setPref('wren/table/' + name, [5000, 40, 1300, 700, 3, 2][i]));
check(zeb.open(), 'the table opens');
zeb.page(COUNT);

zeb.answer('cancel');
check(!zeb.close(), 'it stays when the user declines');
const question = zeb.messages();
check(question.length === 1 && question[0].kind === 'confirm' && question[0].text === 'Quit WREN?',
    'one question was put: ' + JSON.stringify(question));
// Half of a screen of 1920 x 1200 each way, but not below the least size, in the middle.
const [x, y, w, h] = stored().split(',').map(Number);
check(w === 1200 && Math.abs(h - 600) <= 1, 'the window had come to the main screen: ' + stored());
check(x >= 0 && y >= 0 && x + w <= 1920 && y + h <= 1200, 'all of it can be seen');
check(zeb.pref('wren/table/stat') === 0, 'and it is not maximised');
check(zeb.until('mine.ticks >= 2'), 'its timer still runs');

zeb.type('\u001b');
zeb.window('activate');
check(zeb.messages().length === 0, 'Escape does nothing');

zeb.window('100,50,1250,640');
zeb.setCamera(1, {connected: true, locked: true});
zeb.answer('ok');
check(zeb.close(), 'it closes when the user agrees');
check(stored() === '100,50,1250,640,0', 'its place is stored: ' + stored());
check(zeb.pref('wren/ready') === false, 'the user closed it, not the host');
check(zeb.camera(1).locked === false, 'no camera stays locked');
const ticks = zeb.page('mine.ticks');
check(zeb.messages().length === 1, 'the question came again');

check(zeb.open(), 'it opens again');
check(zeb.page('mine.bridge === wrentabledialog'), 'with the same page and bridge');
check(zeb.page('mine.opens') === 1, 'open came once: ' + zeb.page('mine.opens'));
check(zeb.until(`mine.ticks >= ${ticks + 2}`), 'its timer runs again');

zeb.setCamera(1, {locked: true});
zeb.window('minimise');
check(zeb.open(), 'the button brings a minimised table back');
zeb.window('minimise');
zeb.window('restore');
check(zeb.page('mine.opens') === 1 && zeb.camera(1).locked, 'which opens it no second time, nor does the window manager');
const later = zeb.page('mine.ticks');
check(zeb.until(`mine.ticks >= ${later + 2}`), 'and its timer goes on');
