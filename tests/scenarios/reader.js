// What a screen reader gets of the table: live, armed and in memory mode.

const all = node => [node].concat(...node.children.map(all));
const named = text => all(zeb.accessible()).filter(node => node.name === text);
const is = (text, role, states, description) => {
    const node = named(text).find(each => each.role === role) || { states: [], description: 'no such element' };
    const missing = states.split(' ').filter(state => state && !node.states.includes(state));
    check(missing.length === 0 && node.description === (description || ''),
        `${role} ${text}: ${node.states.join(' ')}, ${node.description}`);
};

zeb.rig(3);
zeb.open();
zeb.page("wrentabledialog.connect(['1', '2'], true); $('#tabs').tabs('option', 'active', 1)");
zeb.setCamera(1, { name: '<b>Gate</b> & "co"' });
zeb.setCamera(2, { locked: true });
zeb.page('wrentabledialog_obj.update()');
is('Live control', 'Table', 'focusable');
is('<b>Gate</b> & "co", row 1 of 3', 'Row', 'selected');
is('Lock: Unlocked, <b>Gate</b> & "co", row 1 of 3', 'Cell', 'focused selected');
is('Frame rate: 1000 fps, Camera 2, row 2 of 3', 'Cell', '', 'The camera is locked.');
is('Frame rate: 1000 fps, All cameras', 'Cell', '', 'The camera is locked.');
is('Cancel', 'Button', 'disabled', 'Nothing is being recorded.');
check(all(zeb.accessible()).every(node => node.role !== 'Button' || node.name), 'each button has a name');
check(all(zeb.accessible()).filter(node => node.states.includes('focused')).length === 1, 'one has the keyboard');

zeb.key('Space');
zeb.key('Down');
is('Lock: Locked, Camera 2, row 2 of 3', 'Cell', 'focused');
check(named('Lock').some(node => node.role === 'CheckBox' && node.states.includes('checked')), 'the switch is on');
is('Lock: as asked 1', 'Notification', '');

zeb.page("document.getElementById('timeline_rec_exec').focus()");
zeb.key('Space');
check(zeb.until("$('#timeline_rec_exec').text() === 'Ready'", 10000), 'armed by a key');
is('Ready', 'Button', 'focused');
is('Lock: Locked, Camera 2, row 2 of 3', 'Cell', '', 'Cameras are ready to record.');
is('Memory info', 'PageTab', '', 'Cameras are ready to record.');
zeb.page('wrentabledialog.cancelRecord()');

zeb.mode('memory');
is('Memory info', 'Table', 'focusable');
is('Frames, Camera 2, row 2 of 3', 'Cell', '');
