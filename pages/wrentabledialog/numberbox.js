const MAX_NUMBER = 0x7fffffff; // the bridge takes no longer ones

// The number box of a cell. It is a plain input until it is touched: then the widget with its two arrows stands around
// it, until the keyboard goes elsewhere. What is being typed belongs to the user; refreshes leave it alone.
const numberBox = {
    held: null, // the box that has the widget: its view, row and cell, and whether the user is typing in it

    isHeld(cell) {
        return this.held !== null && this.held.cell === cell;
    },

    isTyped(cell) {
        return this.isHeld(cell) && this.held.typed;
    },

    // To be called when the keyboard comes to a box, or a button goes down on it, before the box hears of that.
    hold(view, row, cell) {
        if (this.isHeld(cell)) {
            return;
        }
        this.letGo();
        const input = cell.parts.input;
        keepingFocus(input, () => {
            $(input).spinnerRealtimeFire({ natural: false, decimal: false, callback: value => this.send(value) });
            this.held = { view, row, cell, typed: false };
        });
    },

    // Where the press fell on the picture of an arrow, there is an arrow now, which takes it over. It must not when the
    // number of the box before brought up a message: the button was let go over that, and the arrow would never stop.
    press(view, row, cell, event) {
        if (this.isHeld(cell)) {
            return;
        }
        this.hold(view, row, cell);
        const target = document.elementFromPoint(event.clientX, event.clientY);
        if (wrentabledialog_obj.isCursorDown && target && target !== event.target) {
            event.preventDefault();
            event.stopPropagation();
            target.dispatchEvent(new MouseEvent('mousedown', { bubbles: true, cancelable: true }));
        }
    },

    limit(cell, min, max) {
        if (this.isHeld(cell)) {
            $(cell.parts.input).spinnerRealtimeFire('option', { min, max });
        }
    },

    // What the camera makes of the number is shown by the next refresh. A widget that goes may call too.
    send(value) {
        if (!this.held) {
            return;
        }
        const { view, row, cell } = this.held;
        this.settle();
        if (!wrentabledialog_obj.isRebuilding) {
            const number = Math.max(-MAX_NUMBER, Math.min(value, MAX_NUMBER));
            guarded(() => cell.kind.send(rowKeys(view, row), number));
        }
    },

    // The user has done with the text; it may be none that was sent.
    settle() {
        this.held.typed = false;
        this.held.cell.stale = true;
    },

    // Takes back what was being typed.
    revert() {
        const { view, row, cell } = this.held;
        keepingFocus(cell.parts.input, () => {
            this.drop();
            view.tickRow(row);
            this.hold(view, row, cell);
        });
    },

    // Makes the box plain. Answers what brings back the text that was being typed, once the box has the keyboard again.
    pause() {
        const { cell, typed } = this.held || {};
        const text = typed ? cell.parts.input.value : '';
        this.drop();
        return () => {
            if (typed && this.isHeld(cell)) {
                cell.parts.input.value = text;
                cell.parts.input.dispatchEvent(new Event('input', { bubbles: true }));
            }
        };
    },

    // Sends what was typed, as when the user leaves the box.
    letGo() {
        if (this.held) {
            this.held.cell.parts.input.blur();
            this.drop();
        }
    },

    // Makes the box plain again; nothing is sent. The widget takes along what it wrote to the input, and more.
    drop() {
        if (this.held) {
            const cell = this.held.cell;
            this.held = null;
            $(cell.parts.input).spinnerRealtimeFire('destroy');
            cell.forget();
            cell.stale = true;
        }
    }
};

function showNumber(cell, text) {
    if (numberBox.isTyped(cell)) {
        return;
    }
    cell.stale = false;
    if (cell.parts.input.value !== text) {
        cell.parts.input.value = text;
    }
}

// A widget moves the element that it is made of, or is taken from, and the engine then takes the keyboard away from it.
function keepingFocus(element, work) {
    const focused = document.activeElement === element;
    work();
    if (focused && document.activeElement !== element) {
        element.focus();
    }
}
