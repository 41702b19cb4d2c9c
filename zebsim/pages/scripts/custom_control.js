'use strict';

// Number boxes with two arrows. `options.callback(value)` gets each new whole number. `spinnerRealtimeFire` hands out
// every step of the arrows, `spinnerStopFire` the last one, when the arrow is let go. A number that was typed is handed
// out when it is finished, by Enter or by leaving the box, even when it is the one that stood there before; it may lie
// beyond `min` and `max`, which bound the arrows. A text that is no number is not handed out, and the arrows do not
// count on from it; nor is leaving the window leaving the box. What a script writes to the box is never handed out.
// `natural` true allows no number below zero; `decimal` true allows fractions.

(function ($) {
    const events = $.ui.spinner.prototype._events;

    const base = {
        options: { natural: true, decimal: false, callback: null },

        _events: $.extend({}, events, {
            input: function () {
                this.typed = true;
            },
            keydown: function (event) {
                if (event.keyCode === $.ui.keyCode.ENTER) {
                    this._finish();
                }
                return events.keydown.call(this, event);
            },
            blur: function (event) {
                const stays = this.cancelBlur || document.activeElement === this.element[0];
                events.blur.call(this, event);
                if (!stays) {
                    this._finish();
                }
            }
        }),

        // A message box keeps the release of a button or a key for itself.
        _create: function () {
            this._super();
            this._on(this.window, { blur: '_stop' });
        },

        _parse: function (value) {
            const text = String(value).replace(/,/g, '').trim();
            if (!/^[+-]?\d+(\.\d*)?$/.test(text)) {
                return null;
            }
            const number = Number(text);
            const whole = this.options.decimal ? number : Math.trunc(number);
            return this.options.natural ? Math.max(0, whole) : whole;
        },

        _finish: function () {
            if (this.typed) {
                this._fire();
            }
        },

        _fire: function () {
            const value = this.value();
            if (value !== null) {
                this.typed = false;
                if (this.options.callback) {
                    this.options.callback.call(this.element[0], value);
                }
            }
        },

        _spin: function (step, event) {
            const before = this.value();
            if (before === null) {
                return;
            }
            this._super(step, event);
            if (this.value() !== before) {
                this._stepped();
            }
        },

        // The next step is not due before this one has been taken, which may last, and see the arrow let go or the box
        // made plain.
        _repeat: function (delay, steps, event) {
            clearTimeout(this.timer);
            this._spin(steps * this.options.step, event);
            if (this.spinning) {
                this.timer = this._delay(function () { this._repeat(40, steps, event); }, delay || 500);
            }
        },

        // An arrow that is still down would go on for ever.
        _destroy: function () {
            this.spinning = false;
            clearTimeout(this.timer);
            clearTimeout(this.mousewheelTimer);
            this._super();
        }
    };

    $.widget('zeb.spinnerStopFire', $.ui.spinner, $.extend({}, base, {
        _stepped: function () {
            this.moved = true;
        },
        _stop: function (event) {
            this._super(event);
            if (this.moved) {
                this.moved = false;
                this._fire();
            }
        }
    }));

    $.widget('zeb.spinnerRealtimeFire', $.ui.spinner, $.extend({}, base, {
        _stepped: function () {
            this._fire();
        }
    }));
})(jQuery);
