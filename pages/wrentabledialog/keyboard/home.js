// Who has the keyboard when nobody else has it: the grid. What has lost it because it was greyed or hidden gets it back
// when it stands again, unless the user has pressed something meanwhile.
const keyboardHome = {
    last: null, // the element that had it
    owed: null, // the one that is to get it back

    initialize() {
        document.addEventListener('focusin', event => {
            if (event.target !== this.grid()) {
                this.last = event.target;
            }
        });
        document.addEventListener('focusout', () => window.setTimeout(() => logged(() => this.keep()), 0));
        ['keydown', 'mousedown'].forEach(type => document.addEventListener(type, () => {
            this.owed = null;
            setMark(document.body, 'keys', type === 'keydown' ? '' : null); // only then the focus is drawn
        }, true));
        document.addEventListener('keydown', event => this.pressLink(event));
        this.keep();
    },

    grid() {
        return viewAt(wrentabledialog_obj.activeTab()).grid.box;
    },

    // To be called when elements may have changed.
    keep() {
        const active = document.activeElement;
        if (this.owed && active === this.grid() && this.canHave(this.owed)) {
            this.owed.focus();
            this.owed = null;
        } else if (!active || active === document.body) {
            this.owed = this.last && document.contains(this.last) && !this.canHave(this.last) ? this.last : null;
            const { cursor } = viewAt(wrentabledialog_obj.activeTab());
            keepingSelection(() => cursor.focus());
            cursor.movedAt = this.owed ? Date.now() : cursor.movedAt; // its element was taken away
        }
    },

    canHave(element) {
        return document.contains(element) && !element.disabled && element.offsetWidth > 0;
    },

    // The engine makes no click of a key on a link without an address.
    pressLink(event) {
        const link = event.target.closest('a[tabindex="0"]');
        if (link && PRESSING_KEYS.includes(event.keyCode)) {
            event.preventDefault();
            link.click();
        }
    }
};

// A text that the user has marked stays so, to be copied.
function keepingSelection(work) {
    const selection = window.getSelection();
    const range = selection.isCollapsed ? null : selection.getRangeAt(0);
    work();
    if (range) {
        selection.removeAllRanges();
        selection.addRange(range);
    }
}
