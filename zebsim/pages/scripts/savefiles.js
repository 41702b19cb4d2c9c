'use strict';

// How images are saved: those of cameras, side by side in a layout, snapshots, and what is converted. An option that is
// chosen here holds at once, for names are composed by it; when the dialog is not accepted, the host takes it back.

const savePage = Object.assign(dialogFrame(saveBridge), {
    followTimer: 0,

    initialize() {
        saveOptions.build();
        this.begin(() => this.update());
        zeb4func.enableUserOperationLog(saveBridge, 'body');
        document.body.classList.add(`of_${saveFamily}`);
        saveOptions.begin(suffix => this.guarded(() => this.changed(suffix)));
        saveTabs.begin();
        saveFormats.begin();
        savePaths.begin();
        saveSkip.begin();
        saveNames.begin();
        saveTargets.begin();
        this.onClick('information', () => saveBridge.saveInfoView(saveTargets.keys()) && saveTargets.showPreview());
        this.onClick('time_code', () => saveBridge.openCustumTimeCodeDialog() && saveTargets.showPreview());
        this.onClick('conversion', () => saveBridge.openConvertParameterEditDialog(saveTargets.keys()));
        this.onClick('reset_size', () => ['width', 'height'].forEach(side => saveOptions.fill(
            `combinedresolutionspecify${side}`, saveOptions.stored(`combinedresolutionreset${side}`, 'int'))));
        this.onClick('save', () => this.save());
        this.onClick('cancel', () => saveBridge.reject());
        document.addEventListener('keydown', event => this.guarded(() => this.press(event)));
        const accept = saveTargets.isThere ? textKey('Save') : textKey('OK');
        byId('save').textContent = translate(accept);
        this.update();
        byId('dir').focus();
    },

    updateTal2() {
        const missing = textKey('TAL2 is not installed.');
        const loading = textKey('Not while recordings are downloaded by themselves.');
        const fault = !savefile.isTAL2AppInstalled() ? missing : savefile.isTal2OptionDisabled() ? loading : '';
        if (fault === '') {
            byId('tal2').removeAttribute('data-never');
        } else {
            byId('tal2').setAttribute('data-never', '');
        }
        byId('tal2_fault').textContent = fault === '' ? '' : translate(fault);
    },

    // The host has changed: cameras come and go, and others set preferences.
    update() {
        this.applyStyle();
        saveNames.update();
        this.updateTal2();
        saveOptions.read();
        saveFormats.update();
        saveTargets.update();
        savePaths.update();
        saveSkip.update();
        this.show();
    },

    // The operator has chosen or typed something.
    changed(suffix) {
        saveOptions.show();
        if (suffix === 'format' || suffix.indexOf('/') > 0) {
            saveFormats.update();
        }
        if (suffix.indexOf('skip') === 0) {
            saveTargets.update();
        } else if (saveFamily === 'L') {
            saveTargets.tellSum();
        }
        if (suffix === 'saveinfo' || (suffix.indexOf('filename') === 0 && savefile.isNeedRefreshPreview())) {
            saveTargets.showPreviewSoon();
        }
        this.show();
    },

    // Names are looked for on the disk; who types does not wait for them.
    show() {
        clearTimeout(this.followTimer);
        this.followTimer = setTimeout(() => this.logged(() => saveNames.show()), 100);
        const fault = saveOptions.fault() || saveFormats.fault() || saveSkip.fault() || savePaths.fault() ||
            saveTargets.fault();
        byId('fault').textContent = fault;
        byId('save').disabled = fault !== '';
    },

    // Enter means Save but on a button, which it presses.
    press(event) {
        if (event.keyCode === 27) {
            saveBridge.reject();
        } else if (event.keyCode === 13 && event.target.tagName !== 'BUTTON') {
            event.preventDefault();
            saveSkip.finish();
            this.save();
        }
    },

    save() {
        if (byId('save').disabled) {
            return;
        }
        if (saveTargets.isThere) {
            saveBridge.save();
        } else {
            saveBridge.accept();
        }
    },

    // For who presses by script: chooses an option as the operator would. Answers why that is not possible.
    fill(suffix, value) {
        const fault = saveOptions.fill(suffix, value);
        this.show();
        return fault;
    }
});

// One of the parts of the options is seen at a time.
const saveTabs = {
    begin() {
        byId('tabs').addEventListener('click', event => this.open(event.target.getAttribute('data-tab')));
        this.open('folders');
    },

    open(id) {
        if (id === null) {
            return;
        }
        Array.from(document.querySelectorAll('.tab')).forEach(tab => { tab.hidden = tab.id !== id; });
        Array.from(byId('tabs').children).forEach(button =>
            button.classList.toggle('front', button.getAttribute('data-tab') === id));
    }
};

document.addEventListener('DOMContentLoaded', () => savePage.initialize());
