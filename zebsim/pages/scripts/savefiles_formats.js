// Which formats there are, and what can be written here.

const USUAL_RATE = 30;

const TRIAL_MS = 100; // after which it is asked again what is known of videos

const saveFormats = {
    trialTimer: 0,

    begin() {
        const formats = {
            // The frames of a layout make a video as well.
            L: () => savefile.getLayoutFileFormats().concat(['AVI', 'MOV', 'MP4']),
            S: () => savefile.getSnapFileFormats(),
            C: () => savefile.getFileFormats(false),
            E: () => savefile.getFileFormats(!saveBridge.isFileMode())
        }[saveFamily]();
        formats.forEach(format => {
            const option = document.createElement('option');
            option.value = format.toLowerCase();
            option.textContent = format;
            option.disabled = this.missing(option.value) !== '';
            byId('format').appendChild(option);
        });
        this.codecFields().forEach(field => savefile.getCodecFilters().forEach(codec => {
            const option = document.createElement('option');
            option.value = option.textContent = codec;
            field.appendChild(option);
        }));
        saveOptions.read();
        this.tellMissing();
    },

    codecFields() {
        return Array.from(document.querySelectorAll('[data-codec]'));
    },

    // Why there can't be files of a format here.
    missing(format) {
        const isShot = saveFamily === 'S' && VIDEO_KINDS.indexOf(format) >= 0;
        return isShot ? translate('A snapshot is one picture.') : app.formatFault(format);
    },

    // Formats with the same reason stand in one line.
    tellMissing() {
        const reasons = new Map();
        Array.from(byId('format').options).filter(option => option.disabled).forEach(option => {
            const reason = this.missing(option.value);
            reasons.set(reason, (reasons.get(reason) || []).concat(option.textContent));
        });
        byId('missing').textContent = Array.from(reasons.keys())
            .map(reason => `${reasons.get(reason).join(', ')}: ${reason}`).join('\n');
    },

    // What can't be chosen, in the files of the chosen format. A codec that is fine at the usual rate stays on offer.
    update() {
        const format = saveOptions.value('format');
        Array.from(byId('format').options).forEach(option => { option.disabled = this.missing(option.value) !== ''; });
        this.codecFields().filter(field => field.getAttribute('data-codec') === format).forEach(field => {
            Array.from(field.options).forEach(option => {
                option.disabled = app.videoFault(format, option.value, USUAL_RATE, false) !== '';
            });
            document.querySelector(`[data-video="${format}"]`).textContent = this.videoFault(format);
        });
        clearTimeout(this.trialTimer);
        if (app.trying) {
            this.trialTimer = setTimeout(() => savePage.logged(() => {
                this.update();
                savePage.show();
            }), TRIAL_MS);
        }
    },

    // Why a video can't be as it is chosen.
    videoFault(kind) {
        const rate = saveOptions.value(`${kind}/framerate`);
        const codec = saveOptions.value(`${kind}/codec`);
        const isLossless = kind === 'mp4' && codec === 'H264' && saveOptions.value('mp4/lossless');
        return rate === undefined ? '' : app.videoFault(kind, codec, rate, isLossless);
    },

    fault() {
        const format = saveOptions.value('format');
        const missing = this.missing(format);
        return missing || (VIDEO_KINDS.indexOf(format) >= 0 ? this.videoFault(format) : '');
    }
};
