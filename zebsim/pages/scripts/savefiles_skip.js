// Every so often a frame.

const saveSkip = {
    begin() {
        byId('skip_unit').addEventListener('change', () => savePage.guarded(() => {
            saveBridge.setSkipMode(Number(byId('skip_unit').value));
            this.changed();
        }));
        byId('skip_frames').addEventListener('change', () => savePage.guarded(() => this.finish()));
    },

    // By time the nearest that goes with the rates of all is taken.
    finish() {
        const field = byId('skip_frames');
        const value = Number(field.value.trim());
        if (field.value !== this.text() && value > 0) {
            saveBridge.setSkipFrames(value);
            saveTargets.tellTicked();
        }
        this.changed();
    },

    changed() {
        saveTargets.update();
        this.update(true);
        savePage.show();
    },

    text() {
        return String(Number(saveBridge.getSkipFrames().toFixed(4)));
    },

    update(isDone) {
        byId('skip_unit').value = saveBridge.getSkipMode();
        if (isDone || document.activeElement !== byId('skip_frames')) {
            byId('skip_frames').value = this.text();
        }
        byId('skip_bounds').textContent = saveTargets.isThere ?
            `${saveBridge.getSkipMinFrames()} - ${saveBridge.getSkipMaxFrames()}` : '';
    }
};
