// Columns of the memory information tab. The record check stands on both memory tabs.
COLUMNS.recordedFrameRate = Object.assign(numberColumn(textKey('Frame rate'), 'frameRate'), { unit: 'fps' });
COLUMNS.originalStartFrameNo = numberColumn(textKey('Start frame'), 'originalStartFrameNo');
COLUMNS.originalEndFrameNo = numberColumn(textKey('End frame'), 'originalEndFrameNo');
COLUMNS.totalFrame = numberColumn(textKey('Save frame'), 'totalFrame');

// A whole number that comes with the grouping and minus of the user's locale, and maybe a unit.
function numberColumn(caption, field) {
    return plainColumn(caption, field, record =>
        String(record[field] || '').replace(/\u2212/g, '-').replace(/[^\d-]/g, ''));
}

COLUMNS.recordCheck = {
    caption: () => translate('recordCheck'),
    size: '10%',
    align: 'right',
    needs: ['check', 'totalFrame'],
    still: true,
    empty: record => isOffOrBatch(record) || record.totalFrame < 1,
    text: record => record.check ? translated(textKey('Checked')) : translated(textKey('Not checked')),
    // Only cameras that are selected can be checked.
    why: (record, status) => reasonText(status.why,
        !record.selected && translated(textKey('Only selected cameras can be checked.'))),
    markup: `<div class="flexWrapper" part="wrapper" dockey>
        <input type="checkbox" class="wren_checkbox_recordCheck" part="box" tabindex="-1"
            id="wren_{short}_recordCheck_" dockey>
        </div>`,
    tick(cell, record) {
        cell.flag('box', 'disabled', cell.isBarred);
        if (record.connected) {
            cell.property('box', 'checked', Boolean(record.check));
            cell.classes('wrapper', record.check ? 'flexWrapper wren-recordCheck-status' : 'flexWrapper');
        }
    },
    change: (key, box) => wrentabledialog.setRecordCheck([key], box.checked)
};

// A number box, see `numberBox`. Its widget takes `min` and `max` from the element.
//   word   the last word of the input's id, which the key follows directly
//   needs  as of every kind
//   min, max, value   from a record to the number as text
//   send   the bridge call that takes the keys and the new number
function spinnerColumn(options) {
    return {
        caption: () => translate(options.caption),
        size: '10%',
        align: 'left',
        send: options.send,
        compared: record => record.totalFrame ? comparedValue(options.value(record)) : '',
        text: record => String(options.value(record)),
        why: (record, status) => status.why,
        needs: options.needs.concat('totalFrame'),
        still: true,
        empty: record => isOff(record) || !record.totalFrame,
        markup: `<input type="text" class="spinner" tabindex="-1" part="input"
            id="wren_spinner_${options.word}" dockey>`,
        rebuild(cell, record) {
            showNumber(cell, options.value(record));
        },
        tick(cell, record) {
            if (cell.isBarred && numberBox.isHeld(cell)) {
                numberBox.drop();
            }
            cell.flag('input', 'disabled', cell.isBarred);
            if (record.connected && record.totalFrame) {
                const min = options.min(record);
                const max = options.max(record);
                cell.attribute('input', 'min', min);
                cell.attribute('input', 'max', max);
                if (cell.differs('input', 'limits', `${min} ${max}`)) {
                    numberBox.limit(cell, min, max);
                }
                if (cell.stale) {
                    showNumber(cell, options.value(record));
                }
            }
        },
        // A camera that is silent for a moment leaves the draft to the box that comes back.
        leave(cell) {
            if (numberBox.isHeld(cell)) {
                numberBox.drop();
            }
            if (cell.isRead) {
                numberBox.giveUp((draft, id) => id === cell.parts.input.id);
            }
        }
    };
}

// Start and end bound each other, so that they cannot cross.
COLUMNS.selectStartFrameNo = spinnerColumn({
    caption: textKey('selectStartFrameNo'),
    word: 'select_start_frameno',
    needs: ['selectStartMinFrameNo', 'selectStartFrameNo', 'selectEndFrameNo'],
    min: record => record.selectStartMinFrameNo,
    max: record => record.selectEndFrameNo,
    value: record => record.selectStartFrameNo,
    send: (keys, value) => wrentabledialog.setSelectStartFrameNo(keys, value)
});

COLUMNS.selectEndFrameNo = spinnerColumn({
    caption: textKey('selectEndFrameNo'),
    word: 'select_end_frameno',
    needs: ['selectStartFrameNo', 'selectEndFrameNo', 'selectEndMaxFrameNo'],
    min: record => record.selectStartFrameNo,
    max: record => record.selectEndMaxFrameNo,
    value: record => record.selectEndFrameNo,
    send: (keys, value) => wrentabledialog.setSelectEndFrameNo(keys, value)
});

COLUMNS.triggerOffset = spinnerColumn({
    caption: textKey('triggerOffset'),
    word: 'trigger_offset',
    needs: ['triggerOffset'],
    min: record => record.minTriggerOffset,
    max: record => record.maxTriggerOffset,
    value: record => record.triggerOffset,
    send: (keys, value) => wrentabledialog.setTriggerOffset(keys, value)
});
