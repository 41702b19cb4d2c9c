const defaultFrequency = setting('externalSyncSignal');

// The lists of what the table may offer. An entry is told from the others by its first `unique` columns, and their
// numbers give the order, from the lowest on or, with `descending`, from the highest. `word` names what must not come
// twice; with `needs` an empty box is told, by its name.
const VALUE_LISTS = [
    {
        name: 'framerate',
        columns: [{ field: 'framerate', caption: textKey('Shooting speed'), unit: '(fps)' }],
        boxes: [{ id: 'md_framerate', min: 1, max: 99999999, start: 1000 }],
        hasFiller: true,
        unique: 1,
        word: textKey('wren_display_frameRate')
    },
    {
        name: 'shutterspeed',
        columns: [{ field: 'shutterspeed', caption: textKey('Shutter speed'), unit: '(sec)' }],
        boxes: [{ id: 'md_shutterspeed', min: 1, max: 99999999, start: 1000 }],
        hasFiller: false,
        unique: 1,
        word: textKey('wren_display_shutterSpeed')
    },
    {
        name: 'resolution',
        columns: [
            { field: 'width', caption: textKey('Width'), unit: '' },
            { field: 'height', caption: textKey('Height'), unit: '' }
        ],
        boxes: [
            { id: 'md_resolution_w', min: 1, max: 99999, start: 1024 },
            { id: 'md_resolution_h', min: 1, max: 99999, start: 1024 }
        ],
        hasFiller: true,
        unique: 2,
        descending: true,
        word: textKey('wren_display_resolution')
    },
    {
        name: 'externalsyncsigfreq',
        columns: [{ field: 'frequency', caption: textKey('External sync signal freq'), unit: '(Hz)' }],
        boxes: [{ id: 'md_external_sync_sig_freq', min: 1, max: 999999, start: 1000 }],
        hasFiller: true,
        unique: 1,
        word: textKey('External sync signal freq')
    },
    {
        name: 'disp_range',
        columns: [
            { field: 'rangeframerate', caption: textKey('Shooting speed'), unit: '(fps)' },
            { field: 'rangestart', caption: textKey('Start frame'), unit: '' },
            { field: 'rangeend', caption: textKey('End frame'), unit: '' }
        ],
        boxes: [
            { id: 'md_range_framerate', min: 1, max: 99999999, start: 1000 },
            { id: 'md_range_start', min: -2147483647, max: 2147483647, start: 0 },
            { id: 'md_range_end', min: -2147483647, max: 2147483647, start: 0 }
        ],
        hasFiller: true,
        unique: 1,
        word: textKey('wren_display_frameRate'),
        needs: [
            textKey('wren_display_recordedFrameRate'),
            textKey('wren_display_recordedStartFrame'),
            textKey('wren_display_recordedEndFrame')
        ],
        fault: ([, start, end]) => start > end ? textKey('End frame must always be greater than the Start frame.') : ''
    }
];

Object.assign(wrendefaultsettingsdialog_obj, {
    initializeLists() {
        VALUE_LISTS.forEach(spec => {
            const list = new GridList({
                name: spec.name,
                columns: spec.columns.map(column => (
                    { field: column.field, caption: translate(column.caption) + column.unit })),
                hasHeader: true,
                hasFiller: spec.hasFiller
            });
            const boxes = spec.boxes.map(box => new NumberBox(box.id, Object.assign({ mayBeEmpty: true }, box)));
            const add = () => this.addEntry(spec, list, boxes);
            onFinalPress(`md_add_${spec.name}`, add);
            boxes.forEach(box => box.input.addEventListener('keydown', event => {
                if (event.keyCode === KEY.ENTER) {
                    guarded(() => workUnlessCorrected(document.getElementById(`md_add_${spec.name}`), add));
                }
            }));
            this.initializeListButtons(list);
        });
        this.initializeDefaultFrequency();
    },

    initializeListButtons(list) {
        onClick(`#md_delete_${list.name}`, () => list.removeSelected());
        onClick(`#md_clear_${list.name}`, () => {
            if (bridge.confirm(translate('Clear the list. Is it OK?'))) {
                list.clear();
            }
        });
    },

    addEntry(spec, list, boxes) {
        boxes.forEach(box => box.settle());
        const numbers = boxes.map(box => box.number);
        const parts = numbers.map(String);
        const empty = numbers.indexOf(null);
        const fault = spec.fault && spec.fault(numbers);
        if (takeCorrection() || (empty >= 0 && !spec.needs)) {
            refuse(document.getElementById(`md_add_${spec.name}`));
        } else if (empty >= 0) {
            bridge.alert(translate(NEEDS, spec.needs[empty]));
        } else if (fault) {
            bridge.alert(fault);
        } else if (list.rows.some(row => isSameEntry(row.parts, parts, spec))) {
            bridge.alert(translate(TWICE, spec.word));
        } else {
            list.add(parts, (a, b) => compareEntries(a.parts, b.parts, spec));
            boxes.forEach(box => box.show(box.options.start));
        }
    },

    // The default frequency is one of the list, and goes when that does.
    initializeDefaultFrequency() {
        const list = gridLists.externalsyncsigfreq;
        const box = document.getElementById('md_default_value');
        const isDefault = text => box.value !== '' && isFrequency(text) && Number(text) === Number(box.value);
        const button = document.getElementById('md_default_externalsyncsigfreq');
        onClick('#md_default_externalsyncsigfreq', () => {
            if (isFrequency(list.selected().frequency)) {
                this.putDefaultFrequency(String(Number(list.selected().frequency)));
            } else {
                refuse(button);
            }
        });
        list.onEdit((gone, isCleared) => {
            if (isCleared || gone.some(row => isDefault(row.frequency))) {
                this.putDefaultFrequency('');
            }
        });
    },

    putDefaultFrequency(text) {
        document.getElementById('md_default_value').value = text;
        defaultFrequency.touch();
    }
});

const NEEDS = textKey('input %1');
const TWICE = textKey('Cannot add because there is a duplicate %1.');

function isSameEntry(a, b, { unique }) {
    return a.slice(0, unique).join('|') === b.slice(0, unique).join('|');
}

// What is no number comes last.
function compareEntries(a, b, { unique, descending }) {
    const number = text => /^-?\d+$/.test(text) ? Number(text) : descending ? -Infinity : Infinity;
    const orders = a.slice(0, unique).map((text, index) => (number(text) > number(b[index])) -
        (number(text) < number(b[index])));
    const order = orders.find(one => one !== 0) || 0;
    return descending ? -order : order;
}

function isFrequency(text) {
    return /^\d+$/.test(text) && Number(text) <= 0x7fffffff;
}
