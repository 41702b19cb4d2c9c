// A box for a number, with arrows. Its number is the last one that was finished, so a half-typed text is none.
//
// A number beyond the limits goes to the nearer one when the box is left; one that was only shown stays. A text that is
// no number gives way to the last one, or, in a box that `mayBeEmpty`, stays and is no number.
class NumberBox {
    constructor(id, options) {
        this.input = document.getElementById(id);
        this.options = options;
        this.widget = options.widget || 'spinnerStopFire';
        this.hearers = [];
        $(this.input)[this.widget]({
            min: options.min,
            max: options.max,
            step: options.step || 1,
            natural: options.min >= 0,
            decimal: options.step < 1,
            callback: () => this.settle()
        });
        $(this.input)[this.widget]('instance')._format = value => value === '' ? '' : this.textOf(value);
        this.show(options.start);
        this.input.addEventListener('blur', () => this.settle());
        this.input.addEventListener('keydown', event => {
            if (event.keyCode === KEY.ENTER) {
                this.settle();
            }
        });
    }

    onChange(hear) {
        this.hearers.push(hear);
    }

    show(number) {
        this.number = number;
        this.input.value = this.textOf(number);
        this.input.classList.remove('md-wrong');
    }

    textOf(number) {
        return Number.isNaN(number) ? '' : this.options.step < 1 ? number.toFixed(2) : String(number);
    }

    disable(flag) {
        $(this.input)[this.widget]('option', 'disabled', flag);
    }

    // Takes what stands in the box.
    settle() {
        if (this.number !== null && this.input.value === this.textOf(this.number)) {
            return;
        }
        const typed = $(this.input)[this.widget]('value');
        if (typed === null) {
            this.settleNoNumber();
            return;
        }
        const { min, max } = this.options;
        const text = this.input.value;
        this.show(Number(this.textOf(Math.min(max, Math.max(min, typed)))));
        if (Number(text.replace(/,/g, '')) !== this.number) {
            noteCorrection();
        }
        this.hearers.forEach(hear => hear(this.number));
    }

    settleNoNumber() {
        if (this.options.mayBeEmpty) {
            this.number = null;
            this.input.classList.toggle('md-wrong', this.input.value !== '');
        } else {
            noteCorrection();
            this.show(this.number);
        }
    }
}
