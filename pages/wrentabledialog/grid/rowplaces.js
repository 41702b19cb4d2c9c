// Which lines of a grid are drawn, and how the drawn rows lie in its table.
const OVERSCAN = 4; // rows drawn beyond each edge, against a glimpse of nothing while scrolling

// The lines in sight, counted from 0, and that of the row with the keyboard, which stays with its camera out of sight
// too.
function linesToDraw(view) {
    const { start, end } = linesInSight(view);
    const lines = [];
    for (let line = start; line < end; line++) {
        lines.push(line);
    }
    const key = view.focusedKey || view.keyWithFocus();
    const kept = key === null ? -1 : view.grid.records.findIndex(record => record.key === key);
    if (kept >= end) {
        lines.push(kept);
    } else if (kept >= 0 && kept < start) {
        lines.unshift(kept);
    }
    return lines;
}

// The last one not included.
function linesInSight(view) {
    const total = view.grid.records.length;
    const rowHeight = view.grid.recordHeight;
    const beyond = wrentabledialog_obj.initialize ? 0 : OVERSCAN;
    const count = Math.min(total, Math.ceil(view.height / rowHeight) + 1 + 2 * beyond);
    const first = Math.floor(view.grid.last.scrollTop / rowHeight) - beyond;
    const start = Math.max(0, Math.min(first, total - count));
    return { start, end: view.height > 0 ? start + count : start };
}

function isOutOfSight(view, row) {
    const [box, place] = [view.box, row.element].map(element => element.getBoundingClientRect());
    return row !== view.batch && (place.bottom <= box.top || place.top >= box.bottom);
}

// Puts the rows in their order around the one with the keyboard, which would lose that if it moved.
function placeRows(view) {
    const elements = view.rows.map(row => row.element);
    const hole = view.rows.findIndex((row, index) => index > 0 && row.index > view.rows[index - 1].index + 1);
    elements.splice(hole < 0 ? elements.length : hole, 0, view.gap);
    const still = elements.findIndex(element => element.parentNode === view.body &&
        element.contains(document.activeElement));
    for (let index = still - 1; index >= 0; index--) {
        putBefore(elements[index], elements[index + 1]);
    }
    for (let index = still + 1; index < elements.length; index++) {
        putBefore(elements[index], (index > 0 ? elements[index - 1] : view.top).nextSibling);
    }
    spaceRows(view, hole);
}

function putBefore(element, next) {
    if (element !== next && element.nextSibling !== next) {
        next.parentNode.insertBefore(element, next);
    }
}

// Gives the lines that are not drawn their height; `hole` is the row before which some of them lie, -1 when none do.
function spaceRows(view, hole) {
    const [first, last] = [view.rows[0], view.rows[view.rows.length - 1]];
    const lines = {
        top: first ? first.index : 0,
        gap: hole < 0 ? 0 : view.rows[hole].index - view.rows[hole - 1].index - 1,
        bottom: view.grid.records.length - (last ? last.index + 1 : 0)
    };
    Object.keys(lines).forEach(name => {
        setStyle(view[name], 'height', `${lines[name] * view.grid.recordHeight}px`);
    });
}

// The places of the records that have one of the keys. This and its like run over every camera at every refresh, and
// iterators are slow in this engine.
function indexesOf(records, keys) {
    const indexes = [];
    for (let index = 0; keys.size > 0 && index < records.length; index++) {
        if (keys.has(records[index].key)) {
            indexes.push(index);
        }
    }
    return indexes;
}
