const MAX_NUMBER = 0x7fffffff; // the bridge takes no longer ones
const ARROW_WIDTH = 20; // of the picture of the arrows, at the right end of a box

// The number box of a cell. It is a plain input until it is touched: then the widget with its two arrows stands around
// it, until the keyboard goes elsewhere.
//
// What was typed is a draft. It belongs to the camera's box, not to an element of the page: refreshes, scrolling and
// another window leave it alone. It goes out by Enter or when the user leaves the box for another place of the page,
// and by nothing else. One that is no number stays and shows that, until it is corrected or taken back; one that can't
// go out because another call waits for its end goes out after that.
const numberBox = {
    held: null, // the box that has the widget: its view, row and cell
    drafts: new Map(), // id of the input -> { key, text, isWrong, send }; `send` only when it is due to go out

    isHeld(cell) {
        return this.held !== null && this.held.cell === cell;
    },

    isInput(element) {
        return this.held !== null && this.held.cell.parts.input === element;
    },

    isIn(row) {
        return this.held !== null && this.held.row === row;
    },

    draftOf(cell) {
        return this.drafts.get(cell.parts.input.id);
    },

    setDraft(cell, draft) {
        const { input } = cell.parts;
        if (draft) {
            this.drafts.set(input.id, draft);
        } else {
            this.drafts.delete(input.id);
        }
        markNumber(input, draft);
    },

    // To be called when the keyboard comes to a box, before the box hears of that.
    hold(view, row, cell) {
        if (this.isHeld(cell)) {
            return;
        }
        this.letGo();
        const input = cell.parts.input;
        const draft = this.draftOf(cell);
        keepingFocus(input, () => {
            $(input).spinnerRealtimeFire({ natural: false, decimal: false, callback: value => this.send(value) });
            $(input).siblings('a').attr('data-id', input.id); // for the log
            this.held = { view, row, cell };
            if (draft) {
                input.value = draft.text; // the widget tidies what it finds
                input.dispatchEvent(new Event('input', { bubbles: true }));
            }
        });
    },

    // A press on the picture of an arrow is one on the arrow, which takes it over. It must not when the number of the
    // box before brought up a message: the button was let go over that, and the arrow would never stop. A press on the
    // text puts the caret there first: `hold` moves the element, which would undo that.
    press(view, row, cell, event) {
        const isOnArrow = event.offsetX >= cell.parts.input.clientWidth - ARROW_WIDTH;
        if (this.isHeld(cell) || !isOnArrow) {
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

    typed() {
        const { row, cell } = this.held;
        const { value } = cell.parts.input;
        const before = this.draftOf(cell);
        const isWrong = before !== undefined && before.text === value && before.isWrong;
        this.setDraft(cell, { key: row.key, text: value, isWrong, send: null });
    },

    // The user has finished what he typed. The widget hands it out by itself, unless it is no number.
    finish() {
        const draft = this.draftOf(this.held.cell);
        const input = this.held.cell.parts.input;
        if (draft && $(input).spinnerRealtimeFire('value') === null) {
            draft.isWrong = true;
            markNumber(input, draft);
        }
    },

    // A key of the host is to be done: what is being typed goes out before, and the typing goes on where it was.
    finishTyping() {
        const input = document.activeElement;
        if (this.isInput(input)) {
            const caret = caretOf(input);
            input.blur();
            input.focus();
            placeCaret(input, caret);
        }
    },

    // Takes a number from the widget. What the camera makes of it is shown by the next refresh.
    send(value) {
        if (!this.held || wrentabledialog_obj.isRebuilding || this.isLeftByWindow()) {
            return;
        }
        const { view, row, cell } = this.held;
        const input = cell.parts.input;
        const number = Math.max(-MAX_NUMBER, Math.min(value, MAX_NUMBER));
        const keys = rowKeys(view, row);
        const send = () => guarded(() => cell.kind.send(keys, number));
        if (wrentabledialog.inCall) {
            this.setDraft(cell, { key: row.key, text: input.value, isWrong: false, send });
            return;
        }
        this.setDraft(cell, undefined);
        cell.stale = true;
        send();
    },

    // Whether the keyboard has left the window and not the box.
    isLeftByWindow() {
        return this.isInput(document.activeElement) && !document.hasFocus();
    },

    // Numbers that were refused while another call waited.
    sendDue() {
        if (this.drafts.size === 0 || wrentabledialog.inCall) {
            return;
        }
        this.drafts.forEach((draft, id) => {
            if (draft.send) {
                this.drafts.delete(id);
                draft.send();
            }
        });
    },

    // Takes back what was being typed.
    revert() {
        const { view, row, cell } = this.held;
        this.setDraft(cell, undefined);
        keepingFocus(cell.parts.input, () => {
            this.drop();
            view.tickRow(row);
            this.hold(view, row, cell);
        });
    },

    // Ends the box as when the user leaves it.
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
    },

    // Gives up the drafts of those boxes that are no more, each with a line in the log.
    giveUp(isGone) {
        this.drafts.forEach((draft, id) => {
            if (isGone(draft, id)) {
                this.drafts.delete(id);
                logUnused('not sent', 'TextBox', id, draft.text);
            }
        });
    },

    giveUpAll() {
        this.drop();
        this.giveUp(() => true);
    }
};

// What was typed last, else the camera's number.
function showNumber(cell, number) {
    const { input } = cell.parts;
    const draft = numberBox.draftOf(cell);
    const text = draft ? draft.text : number;
    cell.stale = false;
    markNumber(input, draft);
    if (input.value !== text) {
        input.value = text;
    }
}

function markNumber(input, draft) {
    ['wren-typed', 'wren-wrong'].forEach((name, index) => {
        const on = draft !== undefined && draft.isWrong === (index === 1);
        if (input.classList.contains(name) !== on) {
            input.classList.toggle(name, on);
        }
    });
}
