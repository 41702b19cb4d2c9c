'use strict';

// How many digits the numbers in a name have.

const NUMBERS = ['camera', 'head', 'session'];
const MOST_DIGITS = 20;

const addNumberPage = Object.assign(dialogFrame(addnumberdialog), {
    key: '', // what the keys of the preferences begin with, if there is anything to store
    own: {}, // digits by number, as the user has chosen them

    initialize() {
        this.begin(() => this.applyStyle());
        this.key = addnumberdialog.getNumberKey();
        this.read();
        document.body.classList.toggle('file', addnumberdialog.isFileMode());
        NUMBERS.forEach(number => {
            this.fill(byId(number));
            byId(number).addEventListener('change', () => this.guarded(() => this.choose(number)));
        });
        ['auto', 'manual'].forEach(id => byId(id).addEventListener('change', () => this.guarded(() => this.show())));
        this.onClick('ok', () => this.accept());
        this.onClick('cancel', () => addnumberdialog.reject());
        document.addEventListener('keydown', event => this.guarded(() => this.press(event)));
        this.applyStyle();
        this.show();
        byId('session').focus();
    },

    // The digits that hold are the user's own unless the cameras have made them.
    read() {
        const isAuto = addnumberdialog.getPrefString(this.key + 'format') === 'auto';
        NUMBERS.forEach(number => {
            const digits = addnumberdialog.getPrefInt(this.key + number + 'nodigits');
            const own = isAuto ? addnumberdialog.getPrefInt(this.key + 'manual' + number + 'nodigits', digits) : digits;
            this.own[number] = Math.max(0, Math.min(own, MOST_DIGITS));
        });
        byId(isAuto ? 'auto' : 'manual').checked = true;
    },

    fill(list) {
        const none = textKey('None');
        for (let digits = 0; digits <= MOST_DIGITS; ++digits) {
            const option = document.createElement('option');
            option.value = digits;
            option.textContent = digits === 0 ? addnumberdialog.translate(none) : digits;
            list.appendChild(option);
        }
    },

    choose(number) {
        this.own[number] = Number(byId(number).value);
        this.show();
    },

    digits() {
        return byId('manual').checked ? this.own : Object.assign({}, this.own, {
            camera: addnumberdialog.getAutoDeviceDigits(), head: addnumberdialog.getAutoHeadDigits()
        });
    },

    show() {
        const digits = this.digits();
        NUMBERS.forEach(number => { byId(number).value = digits[number]; });
        byId('camera').disabled = byId('head').disabled = byId('auto').checked;
        byId('preview').textContent = addnumberdialog.preview(digits.camera, digits.head, digits.session);
    },

    // Enter means OK but on a button, which it presses.
    press(event) {
        if (event.keyCode === 27) {
            addnumberdialog.reject();
        } else if (event.keyCode === 13 && event.target.tagName !== 'BUTTON') {
            event.preventDefault();
            this.accept();
        }
    },

    accept() {
        if (this.key) {
            this.store();
        }
        addnumberdialog.accept();
    },

    store() {
        const isFile = addnumberdialog.isFileMode();
        const digits = this.digits();
        NUMBERS.slice(isFile ? 2 : 0).forEach(number => {
            addnumberdialog.setPrefInt(this.key + number + 'nodigits', digits[number]);
            addnumberdialog.setPrefInt(this.key + 'manual' + number + 'nodigits', this.own[number]);
        });
        if (!isFile) {
            addnumberdialog.setPrefString(this.key + 'format', byId('auto').checked ? 'auto' : 'manual');
        }
    }
});

document.addEventListener('DOMContentLoaded', () => addNumberPage.initialize());
