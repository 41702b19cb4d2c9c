// How a kind of preference is read and written.
const ACCESS = {
    bool: ['getPrefBool', 'setPrefBool'],
    bit: ['getPrefBool', 'setPrefInt'], // a boolean that is stored as 0 or 1
    int: ['getPrefInt', 'setPrefInt'],
    float: ['getPrefFloat', 'setPrefFloat'],
    text: ['getPrefString', 'setPrefString'],
    groups: ['getPrefString', 'setPrefDQString']
};

// A preference and the control that shows it. The control has `show(value)` and `value()`. It may have `listen(touch)`,
// which calls `touch` whenever the user changes it (where it has none, the page touches the setting), and
// `isUnknown()`: what it shows says nothing of the preference.
//
// The store may hold what the control can't show: an entry made by hand, a number beyond the limits, a camera that is
// not there today. So what nobody has touched goes back as it came.
class Setting {
    constructor(key, kind, makeControl) {
        this.key = key;
        [this.getter, this.setter] = ACCESS[kind];
        this.makeControl = makeControl;
    }

    // To be called once the page's elements and boxes are there.
    bind(page) {
        this.control = this.makeControl(page);
        if (this.control.listen) {
            this.control.listen(() => this.touch());
        }
    }

    load() {
        this.stored = this.read();
        this.isTouched = false;
        this.isForced = false;
        this.control.show(this.stored);
    }

    read() {
        return bridge[this.getter](this.key);
    }

    touch() {
        this.isTouched = true;
    }

    // A rule of the page has given the control another value. `byUser`: the user has changed what the rule follows
    // from. Else it goes out only when the user accepts what he sees.
    force(byUser) {
        this.isForced = true;
        this.isTouched = this.isTouched || byUser;
    }

    accept() {
        this.isTouched = this.isTouched || this.isForced;
    }

    // What is to be stored; undefined for nothing.
    gather() {
        if (this.control.isUnknown && this.control.isUnknown()) {
            return undefined;
        }
        return this.isTouched ? this.control.value() : this.stored;
    }

    // What stands in the store already is not written again, for it may stand there in a form that no call writes.
    store(value) {
        const isStored = !this.isTouched && Object.is(this.read(), value);
        if (value !== undefined && !Number.isNaN(value) && !isStored) {
            bridge[this.setter](this.key, value, false);
        }
    }
}
