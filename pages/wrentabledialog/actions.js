// What the user does in the cells. One listener a kind of event stands on each grid's box, in the capture phase.
// The rows have no handler of their own, so nothing is bound anew when they are drawn.

// class of a control -> what a click on it does; `keys` are those of the row, or of all rows for the batch row, and
// `connected` those of connected rows only.
const CLICKS = {
    wren_button_connection_connect: (row, cell, keys) => wrentabledialog_obj.disconnectRows(cell, keys),
    wren_button_connection_disconnect: (row, cell, keys) => wrentabledialog_obj.connectRows(cell, keys),
    wren_button_lockStatus_lock: (row, cell, keys) => wrentabledialog_obj.lockRow(cell, keys, false),
    wren_button_lockStatus_unlock: (row, cell, keys) => wrentabledialog_obj.lockRow(cell, keys, true),
    wren_button_edit_camera_name: row => wrentabledialog_obj.editCamera(row.key),
    reduceON: (row, cell, keys, connected) => wrentabledialog_obj.switchReduceMode(cell, connected, false),
    reduceOFF: (row, cell, keys, connected) => wrentabledialog_obj.switchReduceMode(cell, connected, true),
    lowlightON: (row, cell, keys, connected) => wrentabledialog_obj.switchLowLight(cell, connected, true),
    lowlightOFF: (row, cell, keys, connected) => wrentabledialog_obj.switchLowLight(cell, connected, false)
};

const SLIDER_KEYS = [33, 34, 35, 36, 37, 38, 39, 40]; // page up and down, end, home, arrows
const PAINT_MS = 20; // by then the page has drawn what was changed

function listenToGrid(view) {
    const box = view.grid.box;
    box.addEventListener('click', event => onGridClick(view, event), true);
    box.addEventListener('keydown', event => onGridKey(view, event), true);
    box.addEventListener('dblclick', event => onGridDoubleClick(view, event), true);
    box.addEventListener('mousedown', event => onGridPress(view, event), true);
    box.addEventListener('mousemove', event => onGridMove(view, event), true);
    box.addEventListener('change', event => onGridChange(view, event), true);
    box.addEventListener('input', event => onGridInput(event), true);
    box.addEventListener('focusin', event => onGridFocus(view, event), true);
    box.addEventListener('focusout', event => onGridBlur(event), true);
}

// A click on a control ends here, so what closes on a click elsewhere is closed beforehand.
function onGridPress(view, event) {
    wrentabledialog_obj.isCursorDown = true;
    wrentabledialog_obj.beginPress(view, event);
    wrentabledialog_obj.closeFloating();
    document.getElementById('recordFilter').sumo.hideOpts();
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

function onGridClick(view, event) {
    const row = view.rowOf(event.target);
    if (!row) {
        return;
    }
    const cell = row.cellOf(event.target);
    const control = event.target.closest('a[dockey], .SumoSelect[dockey]');
    if (control && cell) {
        event.stopPropagation();
        cell.forget();
        // The second click of a double click would take back what the first has done.
        if (!control.matches('[disabled], .disabled') && !(event.detail > 1 && control.matches('a'))) {
            useControl(view, row, cell, control);
        }
    } else if (row === view.batch) {
        if (cell && cell.field === 'cameraName') {
            wrentabledialog_obj.selectAll();
        }
    } else {
        view.grid.click(row.recid, event);
    }
}

function useControl(view, row, cell, control) {
    if (control.classList.contains('SumoSelect')) {
        if (cell.choices.length > 0) {
            openList(view, row, cell);
        }
        return;
    }
    const name = Array.from(control.classList).find(word => CLICKS[word]);
    if (name) {
        const connected = row === view.batch ? connectedKeys(view) : [row.key];
        // To the bridge no keys would be all cameras, those of other groups too.
        if (connected.length > 0 || !/reduce|lowlight/.test(name)) {
            guarded(() => CLICKS[name](row, cell, rowKeys(view, row), connected));
        }
    }
}

function openList(view, row, cell) {
    const up = row === view.batch || view.dropDownsBefore(row.index) >= 2;
    const keys = rowKeys(view, row);
    dropDown.open(cell, up, value => guarded(() => cell.kind.send(keys, value)));
}

// Space, Enter and the arrows open the list of the drop-down that has the focus. A slider knows its keys by itself.
function onGridKey(view, event) {
    const slider = SLIDER_KEYS.includes(event.keyCode) && sliderUnder(view, event.target);
    if (slider) {
        lowLightSlider.hold(view, slider.row, slider.cell, false);
        return;
    }
    holdNumber(view, event.target);
    if (numberBox.isInput(event.target)) {
        onNumberKey(event);
        return;
    }
    const row = view.rowOf(event.target);
    const cell = row && row.cellOf(event.target);
    const closed = event.target.matches('.SumoSelect[dockey]:not(.disabled)');
    if (cell && closed && [13, 32, 38, 40].includes(event.keyCode)) {
        event.preventDefault();
        useControl(view, row, cell, event.target);
    }
}

// Enter, Page Up and Down and the arrows: they would change a camera that nobody sees. The first one shows it.
const UNSEEN_KEYS = [13, 33, 34, 38, 40];

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
    if (event.keyCode === 13) {
        numberBox.finish();
    } else if (event.keyCode === 27) {
        event.preventDefault();
        numberBox.revert();
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
    if (cell && (row === view.batch || view.tab.still.includes(cell.field))) {
        wrentabledialog_obj.preventSelect = true;
    }
}

// The grid's own `lock` waits for a timer and fades in, and a call that blocks the page comes before both.
function lockAtOnce(grid, message) {
    const box = grid.box.firstElementChild;
    w2utils.lock(box, { msg: escapeMarkup(message), spinner: true });
    $(box).find('.w2ui-lock, .w2ui-lock-msg').finish();
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
    if (cell && cell.field === 'comment') {
        guarded(() => wrentabledialog_obj.editComment(view, row.key));
    }
}

Object.assign(wrentabledialog_obj, {
    disconnectRows(cell, keys) {
        if (wrentabledialog.confirmDisconnect(keys)) {
            this.changeConnection(cell, keys, false, textKey('Disconnecting'));
        }
    },

    connectRows(cell, keys) {
        this.changeConnection(cell, keys, true, textKey('Connecting'));
    },

    changeConnection(cell, keys, connect, message) {
        const grid = this.activeGrid();
        const key = cell.key;
        lockAtOnce(grid, translate(message));
        window.setTimeout(() => {
            try {
                guarded(() => {
                    wrentabledialog.connect(keys, connect);
                    if (cell.key === key) {
                        cell.swap(connect, 'on', 'off');
                    }
                });
            } finally {
                this.releaseGrid(grid);
            }
        }, PAINT_MS);
    },

    // The grid unlocks from a timer of its own, so clicks that came while the page stood still meet the lock yet.
    releaseGrid(grid) {
        if (!this.gridLock) {
            grid.unlock();
        }
    },

    lockRow(cell, keys, lock) {
        cell.swap(lock, 'locked', 'open');
        wrentabledialog.setParamLock(keys, lock);
    },

    switchReduceMode(cell, keys, on) {
        cell.swap(on, 'on', 'off');
        wrentabledialog.setReduceMode(keys, on);
    },

    // The anchor that stands says what a click makes of it: the first one while the mode is off.
    switchLowLight(cell, keys, on) {
        cell.swap(!on, 'on', 'off');
        wrentabledialog.setLowLight(keys, on);
    },

    editCamera(key) {
        this.recordiconClick = true;
        wrentabledialog.editDoc(key);
    }
});
