const TYPING_PAUSE = 400; // ms

// The editor in a cell of the list of custom information. One cell's is closed and the next one's opened in the same
// event, so that no letter of a fast typist, or of a scanner, goes elsewhere.
const customEditor = {
    place: null, // the row and the column of the open one
    input: null,
    shown: '', // what it showed at first; a text box can't show a line feed
    refusedUntil: 0, // time of the last key that belonged to a text that was refused, and a pause

    // `text`: what is typed already, in place of the item's.
    open(place, text) {
        if (!this.commit() || wrentabledialog_obj.gridLock || wrentabledialog.isFileMode()) {
            return;
        }
        const item = customList.item(place.recid);
        const cell = customList.cell(place.recid, place.column);
        if (!item || !cell || cell.offsetWidth === 0) {
            return;
        }
        customList.choose([place.recid], place);
        customList.bringIntoView(place.recid);
        const input = document.createElement('input');
        input.type = 'text';
        input.id = 'wren_custom_editor';
        input.style.textAlign = cell.style.textAlign;
        input.value = item[CUSTOM_COLUMNS[place.column]];
        this.shown = input.value;
        // While it has the keyboard, the host's keys are letters.
        input.addEventListener('focus', () => wrentabledialog.setTextBoxFocusState(true));
        input.addEventListener('blur', () => this.left());
        this.place = place;
        this.input = input;
        cell.firstElementChild.textContent = '';
        cell.firstElementChild.appendChild(input);
        input.focus();
        input.select();
        if (text !== undefined) {
            input.value = text;
        }
    },

    // Where the window has lost the keyboard the editor stands, and goes on when it is back.
    left() {
        wrentabledialog.setTextBoxFocusState(false);
        if (this.input && document.activeElement !== this.input) {
            guarded(() => this.commit());
        }
    },

    // Takes what was typed into the list. A text that can't be taken is told, and the cell has its old one again.
    // Answers whether the list is as the user wants it.
    commit() {
        return this.input === null || this.take(fault => {
            wrentabledialog.alert(fault);
            this.refusedUntil = Date.now() + TYPING_PAUSE;
        });
    },

    // Whether a key goes on with a text that was refused. Without a pause its sender has not seen the box, and what
    // was meant for the cells that follow must not fall into others.
    isOfRefusedText() {
        const now = Date.now();
        const isOf = now < this.refusedUntil;
        this.refusedUntil = isOf ? now + TYPING_PAUSE : 0;
        return isOf;
    },

    // As `commit`, where nobody can be asked: a text that can't be taken leaves a line in the log.
    end() {
        if (this.input) {
            const text = this.input.value;
            this.take(() => logUnused('not taken', 'TextBox', 'wren_custom_editor', text));
        }
    },

    take(refuse) {
        const { recid, column } = this.place;
        const field = CUSTOM_COLUMNS[column];
        const text = this.input.value;
        const isChanged = text !== this.shown;
        this.close();
        const item = customList.item(recid);
        const fault = isChanged && item ? faultOfText(field, text) : '';
        const isTaken = isChanged && item && !fault;
        if (isTaken) {
            item[field] = text;
        }
        customList.drawCell(recid, column);
        if (fault) {
            refuse(fault);
        } else if (isTaken) {
            customList.keepBlankRow();
        }
        return !fault;
    },

    cancel() {
        const { recid, column } = this.place;
        this.close();
        customList.drawCell(recid, column);
    },

    // The engine tells nobody of the focus of an element that goes.
    close() {
        const hadFocus = document.activeElement === this.input;
        this.input = null;
        this.place = null;
        wrentabledialog.setTextBoxFocusState(false);
        if (hadFocus) {
            customList.box.focus();
        }
    }
};
