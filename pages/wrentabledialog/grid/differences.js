// The batch row shows the values of one camera. Where the rows have others it is marked, and a tip tells who has what.
const MOST_NAMES = 5;

// The newest records that count: of connected cameras, with a value of that kind, as `compared` tells it.
function comparedRecords(view, kind) {
    return view.newestRecords.filter(record => record.connected && kind.compared(record) !== '');
}

// How many values they have.
function countValues(view, { compared }) {
    const values = new Set();
    const records = view.newestRecords;
    for (let index = 0; index < records.length; index++) {
        const value = records[index].connected ? compared(records[index]) : '';
        if (value !== '') {
            values.add(value);
        }
    }
    // It may be of a camera that is not among the rows.
    const shown = view.newestBatch ? compared(view.newestBatch) : '';
    return values.size > 0 && shown !== '' ? values.add(shown).size : values.size;
}

// Marks the cells of the batch row, whose rows may all be the same as last time.
function markDifferences(view) {
    if (!view.batch || view.markedRecords === view.newestRecords && view.markedBatch === view.batch) {
        return;
    }
    view.markedRecords = view.newestRecords;
    view.markedBatch = view.batch;
    view.batch.cells.filter(cell => cell.kind.compared).forEach(cell => {
        const count = cell.filled ? countValues(view, cell.kind) : 0;
        setMark(cell.box, 'differs', count > 1 ? String(count) : null);
        setMark(cell.box, 'barred', isBarred(view, cell) ? '' : null);
    });
}

// Whether the batch row's own camera, and not the whole table, takes no change of it.
function isBarred(view, { filled, kind }) {
    return Boolean(filled && kind.locked && view.newestBatch && kind.locked(view.newestBatch));
}

// A line for each value, with the cameras that have it, whose value stands, and which rows take a change where that one
// takes none.
function differencesText(view, box) {
    const cell = view.batch && view.batch.cells.find(each => each.box === box);
    if (!cell) {
        return '';
    }
    const shown = view.newest.get(attention.batchKey());
    return (box.hasAttribute('differs') ? valueLines(view, cell) : [])
        .concat(shown ? withValues(textKey('Shown: %1'), oneLine(shown.cameraName)) : [])
        .concat(isBarred(view, cell) ? freeRowsText(view, cell) : []).join('\n');
}

function valueLines(view, cell) {
    const names = new Map();
    comparedRecords(view, cell.kind).forEach(record => {
        const text = cell.kind.text(record) || cell.kind.compared(record);
        names.set(text, (names.get(text) || []).concat(oneLine(record.cameraName)));
    });
    return Array.from(names.keys()).map(text => `${text}: ${namesText(names.get(text))}`);
}

function freeRowsText(view, cell) {
    const names = comparedRecords(view, cell.kind).filter(record => cell.reads(record) && !cell.kind.locked(record))
        .map(record => oneLine(record.cameraName));
    return names.length === 0
        ? translate('No row can be changed.')
        : withValues(textKey('Can be changed on: %1'), namesText(names));
}

// A name must not make a line of its own.
function oneLine(text) {
    return text.replace(/\s+/g, ' ');
}

// As "3 (Gate, Ramp, Roof)"; of many only the first ones.
function namesText(names) {
    const first = names.slice(0, MOST_NAMES).join(', ');
    return `${names.length} (${first}${names.length > MOST_NAMES ? ', ...' : ''})`;
}

// What the connected rows offer of a list: how many of them offer a value, and the choices that the batch row's own
// camera has not. Many of them have one list, which is looked through once.
function offersOf(view, cell) {
    const { kind } = cell;
    const lists = new Map();
    let rows = 0;
    let last = null;
    view.newestRecords.filter(record => record.connected && cell.reads(record)).forEach(record => {
        const list = record[kind.list];
        if (last === null || last.list !== list) {
            last = lists.get(list) || { list, count: 0, choices: kind.choices(record) };
            lists.set(list, last);
        }
        last.count++;
        rows++;
    });
    const counts = new Map();
    const others = new Map();
    const own = new Set(cell.choices.map(choice => choice.value));
    lists.forEach(({ count, choices }) => choices.forEach(choice => {
        counts.set(choice.value, (counts.get(choice.value) || 0) + count);
        if (!own.has(choice.value)) {
            others.set(choice.value, choice);
        }
    }));
    return { counts, others: Array.from(others.values()), rows };
}
