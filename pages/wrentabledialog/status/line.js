// The line at the left of the action bar: how all cameras stand, whatever group and filter show, what the last search
// found, and what the last change of many cameras came to.
const VERDICTS = { // in the order in which they are listed
    gone: textKey('is gone'),
    unanswered: textKey('no answer'),
    refused: textKey('not taken'),
    locked: textKey('kept by lock'),
    clamped: textKey('taken otherwise'),
    set: textKey('as asked')
};
const ACTIONS = {
    frameRate: textKey('Frame rate'),
    shutterSpeed: textKey('Shutter speed'),
    resolution: textKey('Resolution'),
    triggerMode: textKey('Trigger mode'),
    reduceMode: textKey('Live speed'),
    lowLight: textKey('Lowlight'),
    lowLightType: textKey('Lowlight'),
    lock: textKey('Lock'),
    connect: textKey('Connect'),
    disconnect: textKey('Disconnect'),
    cameraName: textKey('Camera name'),
    comment: textKey('Comment'),
    recordCheck: textKey('recordCheck'),
    selectStartFrameNo: textKey('selectStartFrameNo'),
    selectEndFrameNo: textKey('selectEndFrameNo'),
    triggerOffset: textKey('triggerOffset'),
    search: textKey('search'),
    record: textKey('Record')
};

const RESULT = ',"result":';

const statusLine = {
    reply: '', // as it was shown last
    result: 'null', // of it, as it came: of many cameras it is long, and seldom another one
    status: null,

    initialize() {
        onClick('#wren_lock_all', () => wrentabledialog.lockAll(!this.isAllLocked()));
        onClick('#wren_select_all', () => {
            wrentabledialog_obj.preventSelect = false;
            wrentabledialog_obj.selectAll();
        });
        onClick('#wren_status_result', () => resultList.toggle());
        resultList.initialize();
        attention.initialize();
    },

    // Once a cycle. In file mode there are no cameras to tell of.
    refresh() {
        const isFile = wrentabledialog.isFileMode();
        showElement(document.getElementById('wren_status'), !isFile);
        if (isFile) {
            resultList.close();
            return;
        }
        const reply = wrentabledialog.getTableStatus();
        if (reply !== this.reply) {
            this.take(reply);
        }
        this.refreshButtons();
    },

    // The result stands last in the reply. In a text of it no quote is without a backslash.
    take(reply) {
        const place = reply.indexOf(RESULT);
        const status = place < 0 ? null : parseReply(reply.slice(0, place) + '}');
        if (!status) {
            return;
        }
        const result = reply.slice(place + RESULT.length, -1);
        this.reply = reply;
        this.status = status;
        setText(document.getElementById('wren_status_counts'), this.countsText(status));
        setText(document.getElementById('wren_status_search'), status.search);
        if (result !== this.result) {
            this.result = result;
            this.showResult(parseReply(result));
        }
    },

    countsText({ found, connected, locked, armed, recordMs }) {
        const texts = [withValues(textKey('found %1, connected %2, locked %3'), found, connected, locked)];
        if (recordMs >= 0) {
            texts.push(withValues(textKey('recording %1 s, armed %2 of %3'), Math.floor(recordMs / 1000), armed,
                connected));
        } else if (armed > 0) {
            texts.push(withValues(textKey('ready %1 of %2'), armed, connected));
        }
        return texts.join(', ');
    },

    showResult(result) {
        const link = document.getElementById('wren_status_result');
        showElement(link, result !== null);
        if (result === null) {
            resultList.close();
        } else {
            setText(link, resultText(result));
            setClass(link, result.ok ? 'ok' : 'odd');
        }
        resultList.take(result);
    },

    refreshButtons() {
        attention.refreshButton();
        const live = wrentabledialog.isLiveMode();
        const { why } = wrentabledialog_obj.readListStatus([]);
        const none = !this.status || this.status.connected === 0;
        const lock = document.getElementById('wren_lock_all');
        showElement(lock, live);
        const key = this.isAllLocked() ? textKey('Unlock all') : textKey('Lock all');
        setText(lock, translate(key));
        reasons.grey('#wren_lock_all, #wren_select_all', none || why !== '',
            why || translated(textKey('No camera is connected.')));
    },

    isAllLocked() {
        return this.status !== null && this.status.connected > 0 && this.status.locked >= this.status.connected;
    }
};

// The text of a key with numbers or names in place of its %1, %2 ...
function withValues(key, ...values) {
    return translate(key).replace(/%(\d)/g, (place, number) => values[number - 1]);
}

// One line of what a change came to: the verdicts that are not as asked, with their numbers.
function resultText(result) {
    const counts = verdictCounts(result).filter(({ verdict }) => verdict !== 'set' || result.ok);
    const told = counts.map(({ verdict, count }) => `${verdictText(verdict)} ${count}`);
    return `${actionText(result.action)}: ${told.join(', ') || verdictText('set')}`;
}

function actionText(action) {
    const key = ACTIONS[action] || action;
    return translate(key);
}

function verdictText(verdict) {
    const key = VERDICTS[verdict] || verdict;
    return translate(key);
}

function verdictCounts(result) {
    return Object.keys(VERDICTS)
        .map(verdict => ({ verdict, count: result.rows.filter(row => row.verdict === verdict).length }))
        .filter(({ count }) => count > 0);
}
