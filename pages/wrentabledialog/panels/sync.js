// The area of the signal from outside: what gives it, at which frequency, and the button that puts all cameras on it.
Object.assign(wrentabledialog_obj, {
    initializeExternalSyncArea() {
        onClick('#connect_signal_generator', () => wrentabledialog.connectSignalGenerator());
        onClick('#connect_signal_distributor', () => wrentabledialog.connectSignalDistributors());
        onClick('#sync_execute', () => wrentabledialog.setSyncSettings());
        $('#externalSyncSelector').on('change', event => {
            const selector = event.currentTarget;
            if (selector.value && !selector.disabled) { // a list that was open before can still be chosen from
                guarded(() => wrentabledialog.setSignalFrequency(Number(selector.value)));
            }
        });
    },

    updateExternalSyncArea() {
        const displayed = wrentabledialog.getPrefBool(PREF_KEY_WREN_DISPLAY_EXTERNAL_SYNC);
        const settings = parseReply(wrentabledialog.getSyncSettings());
        const usable = Boolean(settings && settings.syncEnable);
        offerFrequencies(usable ? settings.syncSignals : []);
        if (settings) {
            showElement(document.getElementById('external_sync_area'), usable && displayed);
        }
        if (usable) {
            this.showSyncSettings(settings);
        }
    },

    showSyncSettings(settings) {
        const selector = document.getElementById('externalSyncSelector');
        reasons.grey('#sync_execute', !settings.syncExecuteEnable,
            translated(textKey('With these settings no camera can be synchronised.')));
        showElement(selector, settings.syncSignals.length > 0);
        chooseOption(selector, Number(settings.syncSignal) === 0 ? null : settings.syncSignal);
        showSource('connect_signal_generator', settings.signalGeneratorAvailable, settings.signalGeneratorConnected);
        showSource('connect_signal_distributor', settings.masterHubAvailable, settings.masterHubConnected);
    }
});

// Options that are the same stay, for the user may have the list open. If they are not, the list closes, which it does
// when the page is laid out without it; else the place he chooses would stand for another frequency than he sees.
function offerFrequencies(frequencies) {
    const selector = document.getElementById('externalSyncSelector');
    const offered = Array.from(selector.options).map(option => option.value);
    if (String(offered) === String(frequencies)) {
        return;
    }
    const shown = !selector.hidden;
    showElement(selector, false);
    selector.getBoundingClientRect();
    selector.textContent = '';
    showElement(selector, shown);
    frequencies.forEach(frequency => {
        const option = document.createElement('option');
        option.value = frequency;
        option.textContent = frequency;
        selector.appendChild(option);
    });
}

function showSource(id, available, connected) {
    const button = document.getElementById(id);
    showElement(button, Boolean(available));
    if (button.classList.contains('connected') !== Boolean(connected)) {
        button.classList.toggle('connected');
    }
}
