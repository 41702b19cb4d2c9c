// Why what is greyed takes nothing: all reasons that hold, in the order of the control table. That of a control of a
// panel stands in its `title`, for one that is disabled hears no mouse and only the view's own tip comes to it.
const reasons = {
    on: new Set(), // names of the states that were on when the control table was last applied
    own: new Map(), // selector -> text of what the page greys by itself
    told: new Set(), // elements whose title tells a reason

    // To be called before the table is first applied.
    initialize() {
        Object.keys(controls).forEach(name => {
            const { func } = controls[name];
            controls[name].func = on => {
                this.on[on ? 'add' : 'delete'](name);
                if (func) {
                    func(on);
                }
            };
        });
    },

    // Greys what the control table does not know, and keeps the reason, a text.
    grey(selector, off, why) {
        zeb4func.disable(selector, off);
        if (off) {
            this.own.set(selector, why);
        } else {
            this.own.delete(selector);
        }
    },

    // The texts of those of the states that are on.
    of(names) {
        return Object.keys(controls).filter(name => names.includes(name)).map(name => translated(controls[name].why));
    },

    // Once a cycle. Nothing is written where the reasons are those of last time.
    show() {
        const texts = new Map();
        const add = text => element => texts.set(element, (texts.get(element) || []).concat(text));
        Object.keys(controls).filter(name => this.on.has(name) && controls[name].why).forEach(name => {
            const { why, disabled, greys } = controls[name];
            const selector = (disabled || []).concat(greys || []).join();
            Array.from(document.querySelectorAll(selector)).forEach(add(translated(why)));
        });
        this.own.forEach((text, selector) => Array.from(document.querySelectorAll(selector)).forEach(add(text)));
        const before = this.told;
        this.told = new Set();
        texts.forEach((all, element) => {
            titleHolders(element).filter(() => isGreyed(element)).forEach(holder => {
                this.told.add(holder);
                setMark(holder, 'title', Array.from(new Set(all)).join(' '));
            });
        });
        before.forEach(holder => this.told.has(holder) || holder.removeAttribute('title'));
    }
};

function isGreyed(element) {
    return element.hasAttribute('disabled') || element.classList.contains('ui-state-disabled');
}

// The list of a drop-down is hidden behind its caption. While a button that acts at the press is greyed, press and
// mouse fall on what is behind it.
function titleHolders(element) {
    const own = element.sumo ? element.sumo.CaptionCont.get(0) : element;
    return [own].concat(element.closest('.press-place') || []);
}

const knownTexts = {};

// A text that is wanted at each tick, asked for once. It is never empty, for some mean something by being there: where
// the host fails to give it, the key stands in its place.
function translated(key) {
    knownTexts[key] = knownTexts[key] || translate(key);
    return knownTexts[key] || key;
}
