// A shoot: four cameras are locked, armed and triggered; a few frames are chosen, looked at and saved.

const KEYS = [1, 2, 3, 4];
const STATUS = "$('#timeline_rec_exec').data('status')";
const translate = text => zeb.translate(text);

function step(text) {
    print(text);
    zeb.wait(2500);
}

function setNumber(spinner, number) {
    zeb.click(spinner);
    zeb.page(`document.querySelector('${spinner}').select(); return 0`);
    zeb.type(`${number}\n`);
}

zeb.mode('live');
zeb.rig(KEYS.length);
check(zeb.open(), 'the table opens');
zeb.click('a[href="#cameraInfoTab"]');
KEYS.forEach(key => zeb.setCamera(key, { connected: true, selected: true, rate: 4000 }));
check(zeb.until("$('#wren-cameraInfo-list .wren_button_lockStatus_unlock:visible').length >= 4"), 'all are connected');
step(translate('Four cameras are connected.'));

KEYS.forEach(key => zeb.click(`#wren_cameraInfo_button_lockStatus_unlock_${key}`));
check(KEYS.every(key => zeb.camera(key).locked), 'all are locked');
step(translate('Cameras are locked before they record.'));

zeb.click('#timeline_rec_exec');
check(zeb.until(`${STATUS} === 2`), 'all are armed');
step(translate('Record has armed them: their memories fill, and they wait for the trigger.'));

zeb.click('#timeline_rec_exec');
print(translate('The second press is the trigger. The cameras record until their memories are full.'));
check(zeb.until("$('#tabs').tabs('option', 'active') === 5", 30000), 'the recording ends');
step(translate('Memory mode shows what each camera holds. The frame of the trigger is number 0.'));

check(zeb.until("$('#wren_spinner_select_end_frameno-1').length > 0"), 'the memory tab is drawn');
setNumber('#wren_spinner_select_start_frameno-1', 0);
setNumber('#wren_spinner_select_end_frameno-1', 19);
check(zeb.until(`[${KEYS}].every(key => $('#wren_spinner_select_end_frameno' + key).val() === '19')`), 'all are trimmed');
step(translate('Twenty frames of each are to be saved.'));

KEYS.forEach(key => zeb.click(`#wren_memoryInfo_recordCheck_${key}`));
check(KEYS.every(key => zeb.camera(key).recordCheck), 'all are looked at');
step(translate('Each camera is ticked once somebody has looked at its images.'));

print(translate('Before anything is written a plan names every file.'));
zeb.save({ format: 'png' });
zeb.modal(() => zeb.wait(4000));
zeb.click('button.save-files');
const results = zeb.results();
check(results.length === KEYS.length && results.every(line => line.includes('20')), `all are saved: ${results.join(' / ')}`);
step(results[0]);
step(translate('All is saved. The files stay there until the viewer is closed.'));
