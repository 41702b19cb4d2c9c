// Columns of the live control tab.

// A drop-down: a caption until it is opened, see `dropDown`.
//   word       the last word of the select's class and id
//   needs      as of every kind
//   list       the member with the list of a record
//   choiceOf   from its items to choices, objects with `value` and `name`, where they are none
//   value      the present value of a record
//   locked     as of every kind
//   why        why such a camera takes none, as text
//   unit       of the value, where a program reads it and not the name
//   compared   as of every kind, where it is not the value
//   send       the bridge call that takes the keys and the chosen value
function dropDownColumn(options) {
    const name = `wren_livecontrol_${options.word}`;
    const choices = record => options.choiceOf ? record[options.list].map(options.choiceOf) : record[options.list];
    return {
        caption: () => translate(options.caption),
        size: '150px',
        align: 'left',
        list: options.list,
        choices,
        value: options.value,
        compared: options.compared || (record => options.value(record) || ''),
        text(record) {
            const choice = choices(record).find(item => item.value === options.value(record));
            return choice ? choice.name : '';
        },
        unit: options.unit,
        plain: options.unit && options.value,
        locked: options.locked,
        why: (record, status) => reasonText(options.why(record), status.why),
        send: options.send,
        needs: options.needs,
        still: true,
        empty: isOff,
        markup: `<div class="SumoSelect compact" part="frame" role="combobox" dockey>
            <select class="${name} SumoUnder" part="select" id="${name}_" tabindex="-1" dockey>
            <option part="option" dockey></option></select>
            <p class="CaptionCont SelectBox ${name}" dockey><span part="text" dockey></span></p>
            </div>`,
        rebuild(cell, record) {
            cell.choices = choices(record);
            showChoice(cell, options.value(record), true);
        },
        tick(cell, record) {
            if (!lowLightSlider.isHeld(cell)) {
                showChoice(cell, options.value(record), false);
            }
            cell.classes('frame', cell.isBarred ? 'SumoSelect compact disabled' : 'SumoSelect compact');
            cell.flag('select', 'disabled', cell.isBarred);
        },
        leave: cell => dropDown.closeOf(cell),
        click: openList
    };
}

function openList({ view, row, cell }) {
    const up = row === view.batch || view.dropDownsBefore(row.index) >= 2;
    const keys = rowKeys(view, row);
    if (cell.choices.length > 0) {
        const offers = row === view.batch ? offersOf(view, cell) : null;
        dropDown.open(cell, up, value => guarded(() => cell.kind.send(keys, value)), offers);
    }
}

function onOffText(on) {
    const key = on ? textKey('ON') : textKey('OFF');
    return translate(key);
}

// Shows the choice of that value. One that is not in the list, or none, empties the caption at a full refresh only.
function showChoice(cell, value, full) {
    if (!full && (!value || !cell.differs('select', 'value', value))) {
        return;
    }
    const choice = cell.choices.find(item => item.value === value);
    if (!choice && !full) {
        return;
    }
    cell.differs('select', 'value', value);
    cell.text('text', choice ? choice.name : '');
    cell.text('option', choice ? choice.name : '');
    cell.attribute('option', 'value', choice ? choice.value : '');
}

COLUMNS.frameRate = dropDownColumn({
    caption: textKey('Frame rate'),
    word: 'framerate',
    needs: ['lock', 'frameRates', 'frameRate'],
    list: 'frameRates',
    value: record => record.frameRate,
    locked: isLockedOrLowLight,
    why: whyLockedOrLowLight,
    unit: 'fps',
    send: (keys, value) => wrentabledialog.setFrameRate(keys, value)
});

COLUMNS.shutterSpeed = dropDownColumn({
    caption: textKey('Shutter speed'),
    word: 'shutterSpeed',
    needs: ['lock', 'shutterSpeeds', 'shutterSpeed'],
    list: 'shutterSpeeds',
    value: record => record.shutterSpeed,
    locked: isLocked,
    why: whyLocked,
    unit: '1/s',
    send: (keys, value) => wrentabledialog.setShutterSpeed(keys, value)
});

COLUMNS.resolution = dropDownColumn({
    caption: textKey('Resolution'),
    word: 'resolution',
    needs: ['lock', 'resolutions', 'resolution'],
    list: 'resolutions',
    choiceOf: text => ({ value: text, name: text }),
    value: record => record.resolution,
    locked: isLockedOrLowLight,
    why: whyLockedOrLowLight,
    send: (keys, value) => wrentabledialog.setResolution(keys, value)
});

const TRIGGER_MANUAL = '4';

COLUMNS.trigger = dropDownColumn({
    caption: textKey('Trigger mode'),
    word: 'trigger',
    needs: ['lock', 'triggerModes', 'triggerMode'],
    list: 'triggerModes',
    value: record => record.triggerMode,
    // The manual mode has its frames in its name.
    compared: record => record.triggerMode === TRIGGER_MANUAL ? COLUMNS.trigger.text(record)
        : record.triggerMode || '',
    locked: isLockedOrLowLight,
    why: whyLockedOrLowLight,
    send: (keys, value) => wrentabledialog.setTriggerMode(keys, value)
});

COLUMNS.reduce = {
    caption: () => translate('Live speed'),
    size: '60px',
    align: 'center',
    needs: ['lock', 'reduceModeSupported', 'reduceMode'],
    still: true,
    empty: record => isOff(record) || record.reduceModeSupported === false,
    locked: isLocked,
    compared: record => record.reduceModeSupported ? comparedValue(record.reduceMode) : '',
    text: record => onOffText(record.reduceMode),
    // Cameras that are locked or armed are asked nothing more.
    why: (record, status) => reasonText(whyLocked(record), status.why) ||
        (wrentabledialog.isSuspendReduceMode(record.key)
            ? translated(textKey('The camera keeps its live speed for now.')) : ''),
    markup() {
        const priority = escapeMarkup(translate('_Priority'));
        return `<div class="flexWrapper" part="wrapper" dockey>
        <a class="wren_button_reduce reduceON" part="on" role="switch" aria-checked="true"
            id="wren_button_reduce_on_" dockey>${priority}</a>
        <a class="wren_button_reduce reduceOFF" part="off" role="switch" aria-checked="false"
            id="wren_button_reduce_off_" dockey>${priority}</a>
        </div>`;
    },
    tick(cell, record) {
        cell.classes('wrapper', record.reduceMode ? 'flexWrapper wren-reduce-status' : 'flexWrapper');
        cell.swap(Boolean(record.reduceMode), 'on', 'off');
        cell.flag('on', 'disabled', cell.isBarred);
        cell.flag('off', 'disabled', cell.isBarred);
    },
    click(place, part) {
        const on = part === 'off';
        withConnected(place, keys => {
            place.cell.swap(on, 'on', 'off');
            wrentabledialog.setReduceMode(keys, on);
        });
    }
};

// A change of the cameras of a row that are connected. To the bridge no keys would be all cameras, those of other
// groups too.
function withConnected({ view, row }, change) {
    const keys = row === view.batch ? connectedKeys(view) : [row.key];
    if (keys.length > 0) {
        change(keys);
    }
}

// The container is no `div`: for one of those the library asks for the element before it, and so the engine would work
// out everything in it again whenever a button before it changes.
COLUMNS.lowlight = {
    caption: () => translate('Lowlight'),
    size: '200px',
    align: 'left',
    needs: ['lock', 'lowLightMode', 'lowLightType', 'shutterSpeeds', 'shutterSpeed'],
    still: true,
    empty: isOff,
    locked: isLocked,
    compared: record => record.lowLightModeSupported ? comparedValue(record.lowLightMode) : '',
    text: record => onOffText(record.lowLightMode),
    why: (record, status) => reasonText(whyLocked(record), status.why),
    markup() {
        const [on, dark, bright] = [translate('ON'), translate('dark'), translate('bright')].map(escapeMarkup);
        return `<div class="flexWrapper" part="wrapper" dockey>
        <a class="wren_button_lowlight lowlightON" part="on" role="switch" aria-checked="false"
            id="wren_button_lowlight_on_" dockey>${on}</a>
        <a class="wren_button_lowlight lowlightOFF" part="off" role="switch" aria-checked="true"
            id="wren_button_lowlight_off_" dockey>${on}</a>
        <span class="wren-slider-container" dockey><label dockey>${dark}</label>
        <div class="wren_slider_lowlight ui-slider ui-slider-horizontal ui-widget ui-widget-content ui-corner-all"
            part="slider" role="slider" id="wren_slider_lowlight_" dockey
            ><span class="ui-slider-handle ui-state-default ui-corner-all" part="handle" tabindex="-1"
            dockey></span></div>
        <label dockey>${bright}</label><span class="slider-result" part="result" dockey>0</span></span>
        </div>`;
    },
    rebuild(cell, record) {
        placeSlider(cell, record);
    },
    tick(cell, record) {
        const still = cell.isBarred || !record.lowLightMode;
        if (still && lowLightSlider.isHeld(cell)) {
            lowLightSlider.letGo();
        }
        const free = record.lowLightMode && !lowLightSlider.isHeld(cell);
        if (free && cell.differs('slider', 'speed', record.shutterSpeed)) {
            placeSlider(cell, record);
        }
        cell.classes('wrapper', record.lowLightMode ? 'flexWrapper wren-lowlight-status' : 'flexWrapper');
        cell.swap(!record.lowLightMode, 'on', 'off');
        cell.flag('on', 'disabled', cell.isBarred);
        cell.flag('off', 'disabled', cell.isBarred);
        cell.flag('slider', 'disabled', still);
        cell.barPart('slider', record.lowLightMode ? '' : translated(textKey('Only in low light mode.')));
    },
    // The button that stands says what a click makes of it: the first one while the mode is off.
    click(place, part) {
        const on = part === 'on';
        withConnected(place, keys => {
            place.cell.swap(!on, 'on', 'off');
            wrentabledialog.setLowLight(keys, on);
        });
    }
};

function placeSlider(cell, record) {
    cell.differs('slider', 'speed', record.shutterSpeed);
    showSlider(cell, sliderValue(record), sliderMax(record));
}
