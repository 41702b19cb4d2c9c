// What the camera settings ask for each trigger mode.
const TRIGGER_PARTS = {
    3: ['random', 'random_frame', 'random_check', 'random_times'],
    4: ['manual'],
    5: ['random', 'random_frame', 'random_check', 'random_times'],
    6: ['random', 'random_frame', 'random_times'],
    7: ['manual', 'random', 'random_frame', 'random_times'],
    14: ['random', 'random_frame']
};
const TRIGGER_ROWS = [
    ['manual', 'md_trigger_manual'],
    ['random', 'md_trigger_random'],
    ['random_frame', 'md_trigger_random_frame_row'],
    ['random_check', 'md_trigger_random_check_row'],
    ['random_times', 'md_trigger_random_times_row']
];

const timesSetting = setting('triggerRandomTriggerTimes');
const percentages = ['triggerManualBeforePer', 'triggerManualAfterPer'].map(setting);

Object.assign(wrendefaultsettingsdialog_obj, {
    initializeTrigger() {
        const percent = { widget: 'spinnerRealtimeFire', min: 0, max: 100, step: 0.01, start: 50 };
        this.randomFrame = new NumberBox('md_trigger_random_frame', { min: 1, max: 999999, start: 1 });
        this.randomTimes = new NumberBox('md_trigger_random_times', { min: 1, max: 100, start: 1 });
        this.before = new NumberBox('md_trig_before_per', percent);
        this.after = new NumberBox('md_trig_after_per', percent);
        this.before.onChange(value => this.putTriggerPoint(value));
        this.after.onChange(value => this.putTriggerPoint(100 - value));
        $('#md_trig_slider').slider(Object.assign(SliderProperty(50), {
            min: 0.0,
            max: 100.01, // so that the last step is whole
            step: 0.01,
            slide: (event, ui) => {
                guarded(() => this.putTriggerPoint(Math.min(ui.value, 100)));
                return false; // the slider stands where that has put it
            }
        }));
        const trigger = document.getElementById('md_trigger');
        trigger.addEventListener('change', () => guarded(() => this.dispTriggerParam(Number(trigger.value), true)));
        onSwitch('#md_trigger_random_trigger_times_enable', () => this.limitTimes(Number(trigger.value), true));
        onClick('.switch-expand', () => {
            const panel = document.getElementById('md_trigger_param');
            this.openTriggerPanel(panel.hidden);
        });
    },

    // Shows what the mode has parameters for.
    dispTriggerParam(value, byUser) {
        const parts = TRIGGER_PARTS[value];
        zeb4func.disable('.switch-expand', !parts);
        this.openTriggerPanel(Boolean(parts));
        TRIGGER_ROWS.forEach(([part, id]) => showElement(document.getElementById(id), (parts || []).includes(part)));
        this.limitTimes(value, Boolean(byUser));
    },

    openTriggerPanel(open) {
        showElement(document.getElementById('md_trigger_param'), open);
        document.querySelector('.switch-expand').classList.toggle('open', open);
    },

    // Where the number of recordings can be switched off, it is 0 while it is; everywhere else there is one at least.
    limitTimes(mode, byUser) {
        const parts = TRIGGER_PARTS[mode];
        const isOff = parts !== undefined && parts.includes('random_check') &&
            !document.getElementById('md_trigger_random_trigger_times_enable').checked;
        this.randomTimes.disable(isOff);
        const times = isOff ? 0 : Math.max(1, this.randomTimes.number);
        if (parts !== undefined && times !== this.randomTimes.number) {
            this.randomTimes.show(times);
            timesSetting.force(byUser);
        }
    },

    // Percent before the trigger.
    putTriggerPoint(percent) {
        const before = Number(percent.toFixed(2));
        this.before.show(before);
        this.after.show(Number((100 - before).toFixed(2)));
        $('#md_trig_slider').slider('value', before);
        percentages.forEach(each => each.touch());
    }
});
