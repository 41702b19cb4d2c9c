// Columns that several tabs share. For what a kind of cell is see `Cell`.
const isBatch = record => record.key === wrentabledialog_obj.batchDocKey;
const isOff = record => !record.connected;
const isLocked = record => Boolean(record.lock);
const isLockedOrLowLight = record => Boolean(record.lock || record.lowLightMode);
// What a camera has not told is no value.
const comparedValue = value => value === undefined ? '' : String(value);
const isOffOrBatch = record => isOff(record) || isBatch(record);
// Whether the camera has told what rules its controls: its lock in live mode, its check in memory mode.
const isSteered = record => record.lock !== undefined || record.check !== undefined;
const LISTS = ['frameRates', 'shutterSpeeds', 'resolutions', 'triggerModes'];
// Two reasons as one text. One that does not hold is false or ''.
const reasonText = (one, other) => one && other ? `${one} ${other}` : one || other || '';
const whyLocked = record => record.lock && translated(textKey('The camera is locked.'));
const whyLockedOrLowLight = record =>
    reasonText(whyLocked(record), record.lowLightMode && translated(textKey('The camera is in low light mode.')));
const hasDropDowns = record => record.connected && LISTS.every(list => Array.isArray(record[list]));

const COLUMNS = {};

COLUMNS.lock = {
    caption: () => translate('Lock'),
    size: '5%',
    align: 'right',
    needs: ['lock', 'lowLightMode'],
    still: true,
    empty: record => isOffOrBatch(record) || record.lowLightMode,
    text: record => record.lock ? translated(textKey('Locked')) : translated(textKey('Unlocked')),
    why: (record, status) => status.why,
    markup: `<div class="flexWrapper" part="wrapper" dockey>
        <a class="wren_button_lockStatus_lock" part="locked" role="switch" aria-checked="true"
            id="wren_{short}_button_lockStatus_lock_" dockey></a>
        <a class="wren_button_lockStatus_unlock" part="open" role="switch" aria-checked="false"
            id="wren_{short}_button_lockStatus_unlock_" dockey></a>
        </div>`,
    tick(cell, record) {
        cell.classes('wrapper', record.lock ? 'flexWrapper wren-lock-status' : 'flexWrapper');
        cell.swap(Boolean(record.lock), 'locked', 'open');
        cell.flag('locked', 'disabled', cell.isBarred);
        cell.flag('open', 'disabled', cell.isBarred);
    },
    click({ view, row, cell }, part) {
        const lock = part === 'open';
        cell.swap(lock, 'locked', 'open');
        wrentabledialog.setParamLock(rowKeys(view, row), lock);
    }
};

function connectionText(record) {
    return record.connected ? translated(textKey('Connected')) : translated(textKey('Not connected'));
}

COLUMNS.connectIcon = {
    caption: () => '',
    heading: () => translated(textKey('Connection')),
    size: '32px',
    align: 'left',
    needs: ['mobileSelected'],
    empty: isBatch,
    text: record => record.mobileSelected ? translated(textKey('Taken by a mobile device')) : connectionText(record),
    markup: '<div class="wren_connectIcon" part="icon" id="wren_{short}_connectIcon_" dockey></div>',
    tick(cell, record, status) {
        cell.attribute('icon', 'connected', record.mobileSelected ? 'mobile' : String(record.connected));
        cell.attribute('icon', 'cursorDisable', String(status.disabled));
    }
};

const hasNameButton = record => !isOffOrBatch(record) && isSteered(record);

COLUMNS.cameraName = {
    caption: () => translate('Camera name'),
    size: '20%',
    align: 'left',
    needs: ['cameraName'],
    text: record => record.cameraName,
    why: (record, status) => hasNameButton(record) ? reasonText(whyLocked(record), status.why) : '',
    markup: `<div class="flexWrapper wren-name-wrapper" dockey>
        <a class="wren_button_edit_camera_name" part="edit" role="button"
            id="wren_{short}_button_edit_camera_name_" dockey></a>
        <label class="wren_label_edit_camera_name" part="label" dockey></label>
        </div>`,
    rebuild(cell, record) {
        const edit = cell.parts.edit;
        const wanted = hasNameButton(record);
        if (wanted !== (edit.parentNode !== null)) {
            if (wanted) {
                cell.content.insertBefore(edit, cell.parts.label);
            } else {
                cell.content.removeChild(edit);
            }
        }
        cell.text('label', record.cameraName);
    },
    tick(cell, record, status) {
        cell.flag('edit', 'disabled', cell.isBarred);
        cell.attribute('label', 'cursorDisable', String(status.disabled));
    },
    click({ row }) {
        wrentabledialog_obj.recordiconClick = true;
        wrentabledialog.editDoc(row.key);
    },
    clickBatch: () => wrentabledialog_obj.selectAll()
};

// A picture that the style sheet chooses by the attributes of the element.
//   word         the last word of its class and id
//   needs        as of every kind
//   attributes   from a record to the attributes
//   text         as of every kind
function pictureColumn(options) {
    const names = Object.keys(options.attributes);
    return {
        caption: () => translate(options.caption),
        size: options.size,
        align: 'right',
        needs: options.needs,
        empty: options.empty,
        text: options.text,
        markup: `<div class="wren_${options.word}" part="image" id="wren_{short}_${options.word}_" dockey></div>`,
        tick(cell, record) {
            names.forEach(name => cell.attribute('image', name, options.attributes[name](record)));
        }
    };
}

COLUMNS.alert = pictureColumn({
    caption: textKey('Alert'),
    word: 'alert',
    size: '5%',
    needs: [],
    // A camera that does not even tell whether it is connected says why.
    empty: record => isBatch(record) || (isOff(record) && !record.alert),
    text: record => isBatch(record) ? '' : record.alert,
    attributes: { alert: record => String(record.alert !== ''), alerts: record => record.alert }
});

COLUMNS.cameraStatus = pictureColumn({
    caption: textKey('State of the camera'),
    word: 'cameraStatus',
    size: '10%',
    needs: ['cameraStatus'],
    empty: isOff,
    text: record => record.cameraStatus,
    attributes: { status: record => record.cameraStatus }
});

COLUMNS.sync = pictureColumn({
    caption: textKey('Sync signal input state'),
    word: 'sync',
    size: '10%',
    needs: ['syncStatus'],
    empty: isOff,
    text: record => record.syncStatus,
    attributes: { sync: record => record.syncStatus }
});

// A field whose text is shown as it stands.
function plainColumn(caption, field, plain) {
    const text = record => record[field] === undefined ? '' : record[field]; // the batch row may have none
    return {
        caption: () => translate(caption),
        size: '10%',
        align: 'left',
        needs: [field],
        markup: '<span class="wren_text" part="text" dockey></span>',
        rebuild(cell, record) {
            cell.text('text', text(record));
        },
        text,
        plain
    };
}

COLUMNS.ipAddress = Object.assign(plainColumn(textKey('IP address'), 'ipAddress'), { align: 'right' });
COLUMNS.externalSync = plainColumn(textKey('ExternalSync'), 'externalSync');
COLUMNS.triggerIn = plainColumn(textKey('TriggerIn'), 'triggerIn');
COLUMNS.triggerSwIn = plainColumn(textKey('TriggerSwIn'), 'triggerSwIn');
COLUMNS.irigTimeStamp = plainColumn(textKey('IRIG Time Stamp'), 'irigTimeStamp');
COLUMNS.irigSync = plainColumn(textKey('IRIG Sync'), 'irigSync');
