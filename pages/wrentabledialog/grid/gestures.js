// What the user does in the cells. One listener a kind of event stands on each grid's box, in the capture phase.
// The rows have no handler of their own, so nothing is bound anew when they are drawn.

const SLIDER_KEYS = [KEY.PAGE_UP, KEY.PAGE_DOWN, KEY.END, KEY.HOME, KEY.LEFT, KEY.UP, KEY.RIGHT, KEY.DOWN];

function listenToGrid(view) {
    const box = view.grid.box;
    box.addEventListener('click', event => onGridClick(view, event), true);
    box.addEventListener('keydown', event => onGridKey(view, event), true);
    box.addEventListener('dblclick', event => onGridDoubleClick(view, event), true);
    box.addEventListener('mousedown', event => onGridPress(view, event), true);
    box.addEventListener('mousemove', event => onGridMove(view, event), true);
    box.addEventListener('change', event => onGridChange(view, event), true);
    box.addEventListener('contextmenu', event => onGridMenu(view, event), true);
    box.addEventListener('input', event => onGridInput(event), true);
    box.addEventListener('focusin', event => onGridFocus(view, event), true);
    box.addEventListener('focusout', event => onGridBlur(event), true);
    box.addEventListener('mousemove', event => event.target.closest('.w2ui-head') && view.placeHandles(), true);
    box.tabIndex = 0; // the one stop of Tab
    box.setAttribute('role', 'grid');
    box.addEventListener('focus', () => view.cursor.mark());
}

// A click on a control ends here, so what closes on a click elsewhere is closed beforehand.
function onGridPress(view, event) {
    wrentabledialog_obj.isCursorDown = true;
    window.getSelection().removeAllRanges(); // what was marked elsewhere is not what Ctrl+C means now
    wrentabledialog_obj.beginPress(view, event);
    const place = placeUnder(view, event.target, 'td');
    if (place && place.cell) {
        view.cursor.put(place.row, place.cell);
    }
    wrentabledialog_obj.closeFloating();
    closeFilter();
    onGridMove(view, event);
    const slider = event.button === 0 && sliderUnder(view, event.target);
    if (slider) {
        lowLightSlider.hold(view, slider.row, slider.cell, event.target === slider.cell.parts.handle);
    }
    const number = event.button === 0 && numberBoxUnder(view, event.target);
    if (number) {
        numberBox.press(view, number.row, number.cell, event);
    }
}

// The row and cell of a low light slider that may be moved, or of a number box that may be changed; null when `element`
// belongs to none.
function sliderUnder(view, element) {
    return placeUnder(view, element, '.wren_slider_lowlight[dockey]:not([disabled])');
}

function numberBoxUnder(view, element) {
    return placeUnder(view, element, 'input.spinner[dockey]:not([disabled])');
}

function placeUnder(view, element, selector) {
    const row = element.closest(selector) && view.rowOf(element);
    return row ? { row, cell: row.cellOf(element) } : null;
}

// The button that went down on a number box is still to choose a place in the text, until it is released.
function onGridFocus(view, event) {
    if (!wrentabledialog_obj.isCursorDown) {
        holdNumber(view, event.target);
    }
}

function holdNumber(view, element) {
    const number = numberBoxUnder(view, element);
    if (number) {
        numberBox.hold(view, number.row, number.cell);
    }
}

// The widget has heard of it by then, and has handed out what was typed.
function onGridBlur(event) {
    if (numberBox.isInput(event.target) && !numberBox.isLeftByWindow()) {
        numberBox.finish();
        numberBox.drop();
    }
}

function onGridInput(event) {
    if (numberBox.isInput(event.target)) {
        numberBox.typed();
    }
}

function onGridChange(view, event) {
    const row = view.rowOf(event.target);
    const cell = row && row.cellOf(event.target);
    if (cell && cell.kind.change) {
        cell.forget();
        guarded(() => cell.kind.change(row.key, event.target));
    }
}

function onGridMenu(view, event) {
    const row = view.rowOf(event.target);
    const cell = row && row.cellOf(event.target);
    event.preventDefault();
    if (wrentabledialog_obj.gridLock || !view.status) {
        return;
    }
    guarded(() => {
        if (!cell || !cell.kind.menu || !cell.kind.menu(row.key, event.target, event)) {
            tableText.openMenu(view, event.clientX, event.clientY);
        }
    });
}

function onGridClick(view, event) {
    const row = view.rowOf(event.target);
    if (!row) {
        return;
    }
    const cell = row.cellOf(event.target);
    if (cell && cell.kind.press) {
        cell.kind.press(cell, event);
    }
    const control = event.target.closest('a[dockey], .SumoSelect[dockey]');
    if (control && cell) {
        event.stopPropagation();
        cell.forget();
        // The second click of a double click would take back what the first has done.
        if (!control.matches('[disabled], .disabled') && !(event.detail > 1 && control.matches('a'))) {
            useControl(view, row, cell, control);
        }
    } else if (row === view.batch) {
        if (cell && cell.kind.clickBatch) {
            cell.kind.clickBatch();
        }
    } else {
        view.grid.click(row.recid, event);
    }
}

function useControl(view, row, cell, control) {
    const part = Object.keys(cell.parts).find(name => cell.parts[name] === control);
    if (part && cell.kind.click) {
        guarded(() => cell.kind.click({ view, row, cell }, part));
    }
}

// A slider knows its keys by itself, as some kinds of cell do.
function onGridKey(view, event) {
    if (event.target === view.grid.box) {
        onCursorKey(view, event);
        return;
    }
    if (event.keyCode === KEY.ESCAPE && !numberBox.isInput(event.target)) {
        view.cursor.focus();
        return;
    }
    const row = view.rowOf(event.target);
    const cell = row && row.cellOf(event.target);
    if (cell && cell.kind.key && guarded(() => cell.kind.key(row.key, cell, event))) {
        event.preventDefault();
        event.stopPropagation();
        return;
    }
    const slider = SLIDER_KEYS.includes(event.keyCode) && sliderUnder(view, event.target);
    if (slider) {
        lowLightSlider.hold(view, slider.row, slider.cell, false);
        return;
    }
    holdNumber(view, event.target);
    if (numberBox.isInput(event.target)) {
        onNumberKey(event);
    }
}

// They would change a camera that nobody sees. The first one shows it.
const UNSEEN_KEYS = [KEY.ENTER, KEY.PAGE_UP, KEY.PAGE_DOWN, KEY.UP, KEY.DOWN];

// The widget does the rest. The engine takes Escape for a letter, so that the box would count as typed in once more.
function onNumberKey(event) {
    const { view, row } = numberBox.held;
    if (isOutOfSight(view, row)) {
        row.element.scrollIntoViewIfNeeded(true);
        if (UNSEEN_KEYS.includes(event.keyCode)) {
            event.preventDefault();
            event.stopPropagation();
            return;
        }
    }
    if (event.keyCode === KEY.ENTER) {
        numberBox.finish();
    } else if (event.keyCode === KEY.ESCAPE) {
        event.preventDefault();
        numberBox.revert();
        view.cursor.focus();
    } else if (event.keyCode === 65 && event.ctrlKey) { // the grid keeps texts from being marked
        event.preventDefault();
        event.target.select();
    }
}

// A drag over a control must not select rows.
function onGridMove(view, event) {
    if (!wrentabledialog_obj.isCursorDown || wrentabledialog_obj.preventSelect) {
        return;
    }
    const row = view.rowOf(event.target);
    const cell = row && row.cellOf(event.target);
    // w2ui takes the batch row for the first one.
    if (cell && (row === view.batch || cell.kind.still)) {
        wrentabledialog_obj.preventSelect = true;
    }
}

function rowKeys(view, row) {
    return row === view.batch ? view.grid.records.map(record => record.key) : [row.key];
}

// Of the rows that stand, those of cameras that are connected by now.
function connectedKeys(view) {
    return view.grid.records.map(record => record.key)
        .filter(key => view.newest.has(key) && view.newest.get(key).connected);
}

function onGridDoubleClick(view, event) {
    if (numberBox.isInput(event.target)) {
        event.target.select(); // with its sign, which is no part of the word that the engine marks
    }
    const row = view.rowOf(event.target);
    const cell = row && row.cellOf(event.target);
    if (cell && cell.kind.doubleClick) {
        guarded(() => cell.kind.doubleClick(view, row.key));
    }
}
