// Every so often a frame.

const saveSkip = {
    begin() {
        byId('skip_unit').addEventListener('change', () => savePage.guarded(() => {
            saveBridge.setSkipMode(Number(byId('skip_unit').value));
            this.changed();
        }));
        byId('skip_frames').addEventListener('change', () => savePage.guarded(() => this.finish()));
        byId('skip_frames').addEventListener('input', () => savePage.guarded(() => savePage.show()));
    },

    // By time the nearest that goes with the rates of all is taken.
    finish() {
        const field = byId('skip_frames');
        if (field.value !== this.text() && this.fault() === '') {
            saveBridge.setSkipFrames(Number(field.value));
            saveTargets.tellTicked();
        }
        if (this.fault() === '') {
            this.changed();
        }
    },

    // Why what is typed can't be; empty when it can.
    fault() {
        const text = byId('skip_frames').value.trim();
        const isWhole = Number(byId('skip_unit').value) === 1 || /^\d+$/.test(text);
        const [least, most] = [saveBridge.getSkipMinFrames(), saveBridge.getSkipMaxFrames()];
        const isIn = /^\d+(\.\d*)?$/.test(text) && isWhole && Number(text) >= least && Number(text) <= most;
        const isUsed = saveTargets.isThere && saveOptions.value('skipsave') === true && most >= least;
        byId('skip_frames').classList.toggle('bad', isUsed && !isIn);
        return !isUsed || isIn ? '' : translate('A number from %1 to %2 is needed.')
            .replace('%1', least).replace('%2', most);
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
