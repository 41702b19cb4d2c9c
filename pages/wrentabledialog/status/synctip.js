// What the table can tell of a camera's sync, in the tip of its badge. Cameras are asked for it, so it is asked once a
// tip, and not while they are armed: a slow one must not keep a press on the record button waiting.
const syncTip = {
    key: '', // whose text stands in the tip
    verdict: '',

    text(badge) {
        if (!badge.hasAttribute('sync')) {
            return '';
        }
        const key = badge.getAttribute('dockey');
        if (tipOwner !== badge) {
            this.key = key;
            this.verdict = wrentabledialog_obj.getListDisableStatus() ? '{}' : wrentabledialog.getSyncVerdict(key);
        }
        if (this.key !== key || !this.verdict) {
            return ''; // the row has been given to another camera, or there is none of that key
        }
        const { check, follows, rate, recorded } = JSON.parse(this.verdict);
        return [badge.getAttribute('sync'), check, follows, rate, recorded].filter(Boolean).join('\n');
    }
};
