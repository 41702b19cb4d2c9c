'use strict';

// Number boxes with two arrows. `options.callback(value)` gets each new whole number: from `spinnerRealtimeFire` at
// every change, from `spinnerStopFire` when the change has come to rest (the arrow let go, the box left, Enter).
// `natural` true allows no number below zero; `decimal` true allows fractions.

(function ($) {
    const base = {
        options: { natural: true, decimal: false, callback: null },

        _parse: function (value) {
            const number = typeof value === 'number' ? value : parseFloat(String(value).replace(/,/g, ''));
            if (isNaN(number)) {
                return null;
            }
            const whole = this.options.decimal ? number : Math.trunc(number);
            return this.options.natural ? Math.max(0, whole) : whole;
        },

        // Hands out the value, once for each that differs from the last one handed out.
        _fire: function () {
            const value = this.value();
            if (value === null || value === this.fired) {
                return;
            }
            this.fired = value;
            if (this.options.callback) {
                this.options.callback.call(this.element[0], value);
            }
        },

        _create: function () {
            this._super();
            this.fired = this.value();
        }
    };

    $.widget('zeb.spinnerStopFire', $.ui.spinner, $.extend({}, base, {
        _stop: function (event) {
            this._super(event);
            this._fire();
        },
        _refresh: function () {
            this._super();
            this._fire();
        }
    }));

    $.widget('zeb.spinnerRealtimeFire', $.ui.spinner, $.extend({}, base, {
        _spin: function (step, event) {
            this._super(step, event);
            this._fire();
        },
        _refresh: function () {
            this._super();
            this._fire();
        }
    }));
})(jQuery);
