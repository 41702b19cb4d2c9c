'use strict';

// Fields of the page that stand for preferences of its family: `data-pref` tells the key behind the family. What else
// an element tells of itself: `data-if`, what must hold for it to be enabled; `data-in`, the families that have it;
// `data-format`, the formats that it belongs to; `data-name`, it takes what can stand in a name; `data-inverse`, it is
// ticked while the preference is off; `data-never`, it is without effect here.

const saveBridge = window[savefile.getParentWidgetName()];

// Letter of the family, as in `data-in`, and what its keys begin with.
const saveFamily = savefile.isLayoutMode() ? 'L' : savefile.isSnapMode() ? 'S' : savefile.isConvertMode() ? 'C' : 'E';
const SAVE_PREFIXES = { E: 'export/', C: 'convert/', S: 'snap/', L: 'layout/' };
const savePrefix = SAVE_PREFIXES[saveFamily];

const VIDEO_KINDS = ['avi', 'mov', 'mp4'];

function translate(key) {
    return saveBridge.translate(key);
}

const FORBIDDEN_IN_NAMES = /[\\/:*?"<>|%]/g;

// By a dialog of its own, or by what is no plain field.
const CHOSEN_ELSEWHERE = /^(filename|groupdir|subdir)addnumber.+|^multipath.+list$|^skip(unit|saveframe|savemsec)$/;

const saveOptions = {
    fields: [],
    // Called with the suffix of what the operator has changed.
    tell: null,

    // Parts that are alike are written once.
    build() {
        const part = (id, changes) => Object.keys(changes).reduce(
            (markup, name) => markup.split(name).join(changes[name]), byId(id).textContent);
        const group = textKey('Group folder');
        const sub = textKey('Subfolder');
        [['groupdir', 'GroupDir', group], ['subdir', 'SubDir', sub]].forEach(([directory, number, title]) => {
            byId(directory).innerHTML = part('directory_part', { DIRECTORY: directory, NUMBER: number });
            byId(directory).querySelector('.title').textContent = translate(title);
        });
        byId('video').innerHTML = VIDEO_KINDS.map(kind => part('video_part', {
            KIND: kind, LOSSY: kind === 'mp4' ? '!mp4/lossless' : ''
        })).join('');
        Array.from(byId('video').querySelectorAll('[data-kinds]'))
            .filter(label => !label.closest(`[data-format="${label.getAttribute('data-kinds')}"]`))
            .forEach(label => { label.parentNode.removeChild(label); });
    },

    begin(tell) {
        this.tell = tell;
        this.fields = Array.from(document.querySelectorAll('[data-pref]'));
        Array.from(document.querySelectorAll('[data-in]')).forEach(element => {
            element.hidden = element.getAttribute('data-in').indexOf(saveFamily) < 0;
        });
        this.fields.forEach(field => {
            field.addEventListener(field.type === 'text' ? 'input' : 'change', () => this.take(field));
        });
        this.read();
    },

    suffixOf(field) {
        return field.getAttribute('data-pref');
    },

    kindOf(field) {
        return field.type === 'checkbox' ? 'bool' : field.getAttribute('data-kind') || 'string';
    },

    field(suffix) {
        return this.fields.filter(field => this.suffixOf(field) === suffix)[0];
    },

    // The stored value of an option, of a field or not.
    stored(suffix, kind) {
        const key = savePrefix + suffix;
        switch (kind) {
        case 'bool': return saveBridge.getPrefBool(key);
        case 'int': return saveBridge.getPrefInt(key);
        case 'float': return Number(saveBridge.getPrefFloat(key).toFixed(4));
        default: return saveBridge.getPrefString(key);
        }
    },

    store(suffix, kind, value) {
        const key = savePrefix + suffix;
        switch (kind) {
        case 'bool': saveBridge.setPrefBool(key, value, false); break;
        case 'int': saveBridge.setPrefInt(key, value, false); break;
        case 'float': saveBridge.setPrefFloat(key, value, false); break;
        default: saveBridge.setPrefString(key, value, false);
        }
    },

    // Shows what is stored, but for what is being typed.
    read() {
        this.fields.filter(field => field !== document.activeElement || field.type !== 'text').forEach(field => {
            const value = this.stored(this.suffixOf(field), this.kindOf(field));
            if (field.type === 'checkbox') {
                field.checked = value !== field.hasAttribute('data-inverse');
            } else if (field.value !== String(value)) {
                field.value = value;
            }
            field.classList.remove('bad');
        });
        this.show();
    },

    // The value of a field; undefined while it holds none.
    valueOf(field) {
        if (field.type === 'checkbox') {
            return field.checked !== field.hasAttribute('data-inverse');
        }
        if (this.kindOf(field) === 'string') {
            return field.value;
        }
        const isNumber = this.kindOf(field) === 'int' ? /^-?\d{1,9}$/ : /^\d{1,6}(\.\d{0,4})?$/;
        const number = isNumber.test(field.value.trim()) ? Number(field.value) : NaN;
        const [least, most] = ['data-min', 'data-max'].map(name => Number(field.getAttribute(name)));
        const isIn = !field.hasAttribute('data-max') || (number >= least && number <= most);
        return isIn && !isNaN(number) ? number : undefined;
    },

    take(field) {
        if (field.hasAttribute('data-name')) {
            this.keepToNames(field);
        }
        const value = this.valueOf(field);
        field.classList.toggle('bad', value === undefined);
        if (value !== undefined) {
            this.store(this.suffixOf(field), this.kindOf(field), value);
        }
        if (this.suffixOf(field) === 'filenameusecustomfromtarget') {
            this.takeFirst(byId('custom_camera'));
        }
        this.tell(this.suffixOf(field));
    },

    // Of a list in which nothing is chosen yet.
    takeFirst(list) {
        if (list.selectedIndex < 0 && list.options.length > 0) {
            list.selectedIndex = 0;
            this.take(list);
        }
    },

    keepToNames(field) {
        const typed = field.value;
        const kept = typed.replace(FORBIDDEN_IN_NAMES, '');
        if (kept !== typed) {
            const caret = Math.max(0, field.selectionStart - (typed.length - kept.length));
            field.value = kept;
            field.setSelectionRange(caret, caret);
        }
        byId('note').textContent = kept === typed ? '' : translate('Not in names: \\ / : * ? " < > | %');
    },

    // Of an option as the page shows it.
    value(suffix) {
        const field = this.field(suffix);
        return field ? this.valueOf(field) : this.stored(suffix, 'string');
    },

    holds(condition) {
        const [, not, suffix, sign, values] = /^(!?)([^=~]+)(?:([=~])(.*))?$/.exec(condition);
        const value = this.value(suffix);
        const parts = sign === '~' ? String(value).split(',') : [String(value)];
        const isSo = sign ? values.split('|').some(one => parts.indexOf(one) >= 0) : Boolean(value);
        return isSo !== (not === '!');
    },

    // What is enabled and belongs to the chosen format.
    show() {
        const format = this.stored('format', 'string');
        Array.from(document.querySelectorAll('[data-format]')).forEach(element => {
            const isIn = !element.hasAttribute('data-in') || element.getAttribute('data-in').indexOf(saveFamily) >= 0;
            element.hidden = !isIn || element.getAttribute('data-format').split(' ').indexOf(format) < 0;
        });
        Array.from(document.querySelectorAll('[data-if], [data-never]')).forEach(element => {
            const conditions = (element.getAttribute('data-if') || '').split(' ').filter(text => text !== '');
            element.disabled = element.hasAttribute('data-never') || !conditions.every(text => this.holds(text));
        });
    },

    // Why what stands in the fields can't be saved by; empty when it can.
    fault() {
        if (!byId('dir').disabled && byId('dir').value.trim() === '') {
            return translate('A folder is needed.');
        }
        const isOwnFolder = field => field.hasAttribute('data-name') && !field.disabled && /^\.\.?$/.test(field.value);
        if (this.fields.some(isOwnFolder)) {
            return translate('"." and ".." are no names.');
        }
        const bad = this.fields.filter(field => field.classList.contains('bad') && !field.disabled)[0];
        if (!bad) {
            return '';
        }
        const text = translate('A number from %1 to %2 is needed.');
        return text.replace('%1', bad.getAttribute('data-min')).replace('%2', bad.getAttribute('data-max'));
    },

    // Answers why the option can't be chosen here.
    fill(suffix, value) {
        const field = this.field(suffix);
        if (!field && !CHOSEN_ELSEWHERE.test(suffix)) {
            return 'the page does not offer it';
        }
        if (!field) {
            const kinds = { boolean: 'bool', number: suffix === 'skipsavemsec' ? 'float' : 'int' };
            this.store(suffix, kinds[typeof value] || 'string', value);
            this.tell(suffix);
            return '';
        }
        const part = field.closest('[data-in]');
        if (field.disabled || (part && part.getAttribute('data-in').indexOf(saveFamily) < 0)) {
            return 'the page does not offer it';
        }
        if (field.type === 'checkbox') {
            field.checked = value !== field.hasAttribute('data-inverse');
        } else {
            field.value = value;
            const chosen = field.tagName === 'SELECT' ? field.options[field.selectedIndex] : null;
            if (chosen === undefined || (chosen && chosen.disabled)) {
                this.read();
                return 'the page does not offer that';
            }
        }
        this.take(field);
        return '';
    }
};
