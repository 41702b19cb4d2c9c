// What keys do in a grid whose box has the keyboard.
const MENU_KEY = 93;
const F2 = 113;
const F10 = 121;
const CONTROLS = 'a[dockey]:not([hidden]), .SumoSelect[dockey], input[type="checkbox"], input.spinner';

const isMenuKey = ({ keyCode, shiftKey }) => keyCode === MENU_KEY || keyCode === F10 && shiftKey;

function onCursorKey(view, event) {
    const { cursor } = view;
    closeTip();
    cursor.forgetTold();
    cursor.mark();
    // A lock lies over the grid in file mode, and while cameras connect.
    if (cursor.key === null || event.altKey || event.metaKey || view.grid.box.querySelector('.w2ui-lock')) {
        return;
    }
    const keys = event.shiftKey ? shiftedKeys : plainKeys;
    const work = moveOf(view, event) ||
        (event.ctrlKey ? controlKeys[event.keyCode] : shownFirst(view, keys[event.keyCode]));
    if (work) {
        event.preventDefault();
        event.stopPropagation();
        guarded(() => work(view));
    }
}

// What a key works must be seen; where it was scrolled away the first press shows it. One that comes just after the
// keyboard was moved by no key was meant for another camera or button.
function shownFirst(view, work) {
    const { cursor } = view;
    const place = cursor.place();
    if (work && place && isOutOfSight(view, place.row)) {
        return () => cursor.reveal();
    }
    if (work && cursor.hasJustMoved()) {
        return () => tellWhy(view, cursor.shown);
    }
    return work;
}

// Where a key leads, as work; nothing for a key that leads nowhere.
function moveOf({ cursor, height, grid }, { keyCode, ctrlKey, shiftKey }) {
    const page = Math.max(1, Math.floor(height / grid.recordHeight) - 1);
    const last = cursor.lineCount() - 1;
    const end = cursor.columns().length - 1;
    const place = {
        [KEY.UP]: [ctrlKey ? 0 : cursor.line - 1, cursor.column],
        [KEY.DOWN]: [ctrlKey ? last : cursor.line + 1, cursor.column],
        [KEY.PAGE_UP]: [cursor.line - page, cursor.column],
        [KEY.PAGE_DOWN]: [cursor.line + page, cursor.column],
        [KEY.LEFT]: [cursor.line, ctrlKey ? 0 : cursor.column - 1],
        [KEY.RIGHT]: [cursor.line, ctrlKey ? end : cursor.column + 1],
        [KEY.HOME]: [ctrlKey ? 0 : cursor.line, 0],
        [KEY.END]: [ctrlKey ? last : cursor.line, end]
    }[keyCode];
    return place && (() => {
        cursor.movedAt = 0; // from here on it is where the user wants it
        cursor.anchor = shiftKey ? cursor.anchor || cursor.key : null;
        cursor.moveTo(...place);
        if (shiftKey && rowsTakeInput(cursor)) {
            cursor.selectTo();
        }
    });
}

const plainKeys = {
    [KEY.SPACE]: view => useCursor(view),
    [KEY.ENTER]: view => useCursor(view),
    [F2]: view => enterCell(view),
    [MENU_KEY]: view => openCellMenu(view)
};
const shiftedKeys = {
    [KEY.SPACE]: view => toggleRow(view),
    [F10]: view => openCellMenu(view)
};
const controlKeys = {
    65: ({ cursor }) => { // A
        if (rowsTakeInput(cursor)) {
            wrentabledialog_obj.preventSelect = false;
            wrentabledialog_obj.selectAll();
        }
    },
    67: view => { // C
        const marked = String(window.getSelection());
        if (marked) {
            wrentabledialog.copyTable(marked);
        } else {
            tableText.copy(view);
        }
    }
};

// While the rows take no input only moving goes on, and the rest says why not.
function rowsTakeInput(cursor) {
    return takesInput(cursor, cursor.view.status.disabled);
}

// The icons of plug-ins take it from armed cameras too.
function cellTakesInput(cursor) {
    const place = cursor.place();
    return takesInput(cursor, place && place.cell.kind.enter ? place.cell.isBarred : cursor.view.status.disabled);
}

function takesInput(cursor, barred) {
    const { view } = cursor;
    const place = cursor.place();
    if (!barred && place && !place.row.element.hasAttribute('unlisted')) {
        return true;
    }
    tellWhy(view, place && place.cell.box);
    return false;
}

// Works the control of the cell as a click does; without one it toggles the row's selection.
function useCursor(view) {
    const place = view.cursor.place();
    const control = place && controlOf(place.cell);
    if (!place || !(control ? cellTakesInput : rowsTakeInput)(view.cursor)) {
        return;
    }
    if (!control) {
        toggleRow(view);
    } else if (place.cell.kind.enter) {
        enterCell(view);
    } else if (control.matches('[disabled], .disabled')) {
        tellWhy(view, control);
    } else if (control.matches('input.spinner')) {
        enterCell(view);
    } else if (control.matches('input')) {
        control.click();
    } else {
        place.cell.forget();
        useControl(view, place.row, place.cell, control);
    }
}

function controlOf(cell) {
    return cell.filled ? cell.box.querySelector(CONTROLS) : null;
}

function toggleRow(view) {
    const { cursor, grid } = view;
    if (!rowsTakeInput(cursor)) {
        return;
    }
    if (isBatch(cursor)) {
        wrentabledialog_obj.preventSelect = false;
        wrentabledialog_obj.selectAll();
        return;
    }
    wrentabledialog_obj.pickRow(grid, cursor.line, { ctrlKey: true });
    wrentabledialog_obj.handGesture(view);
}

// Into what takes keys of its own: a number, a slider, the icons of plug-ins, or the dialog of a comment.
function enterCell(view) {
    const place = view.cursor.place();
    const { cell, row } = place || {};
    if (!place || !cell.filled || !cellTakesInput(view.cursor)) {
        return;
    }
    const inner = cell.kind.enter ? cell.kind.enter(cell) : cell.parts.input || cell.parts.handle;
    if (cell.kind.doubleClick && cell.isBarred) {
        tellWhy(view, cell.box);
    } else if (cell.kind.doubleClick) {
        cell.kind.doubleClick(view, row.key);
    } else if (!inner && cell.kind.enter) {
        tellWhy(view, cell.box.querySelector('[why]') || cell.box);
    } else if (!inner) {
        tellWhy(view, cell.box);
    } else if (inner.disabled || inner.parentNode.hasAttribute('disabled')) {
        tellWhy(view, inner);
    } else {
        inner.focus();
        if (inner.select && inner.type === 'text') {
            inner.select();
        }
    }
}

function openCellMenu(view) {
    const { left, bottom } = (view.cursor.shown || view.box).getBoundingClientRect();
    tableText.openMenu(view, left, bottom);
}

// The reason why a cell takes nothing, in the tip that the mouse gets.
function tellWhy(view, element) {
    const holder = element && (!view.cursor.hasJustMoved() && element.closest('[why]') || view.cursor.tell());
    if (holder && whyOf(view, holder)) {
        $(holder).trigger('mouseover');
    } else {
        logUnused('not taken', 'Cell', element ? element.id : '', '');
    }
}
