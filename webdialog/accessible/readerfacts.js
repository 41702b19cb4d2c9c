// What a screen reader is told of an element of the page. The page may have an object `readerTexts` with functions
// `name(element)` and `description(element)`: their text comes first, an empty one leaves it to what is told here.
// `range(element)` may tell value, least, most and step of a slider, or null.
var readerFacts = (function () {
    'use strict';

    const Candidates = '[role], button, select, input, textarea, fieldset, a[tabindex]';
    const TagRoles = { button: 'button', textarea: 'textbox', fieldset: 'group', a: 'link' };
    const InputRoles = {
        button: 'button', submit: 'button', reset: 'button', image: 'button', checkbox: 'checkbox', radio: 'radio',
        range: 'slider', number: 'spinbutton', hidden: ''
    };
    // Their name is not what stands in them: that is their value, or their children's.
    const Containers = ['grid', 'table', 'row', 'combobox', 'listbox', 'textbox', 'slider', 'spinbutton', 'tablist',
        'tabpanel', 'menu', 'menubar', 'dialog', 'group', 'radiogroup', 'rowgroup', 'toolbar', 'region', 'progressbar'];
    // What a tip says into its log stands in a description already.
    const Silent = ['none', 'presentation', 'log'];
    const Checkable = ['checkbox', 'switch', 'radio', 'menuitemcheckbox', 'menuitemradio'];
    const Selectable = ['row', 'gridcell', 'option', 'tab'];

    const root = document.documentElement;
    let listed = new WeakMap();

    function plain(text) {
        return (text || '').replace(/\s+/g, ' ').trim();
    }

    function attribute(element, key) {
        return plain(element.getAttribute(key));
    }

    function isTrue(element, key) {
        return element.getAttribute(key) === 'true';
    }

    function impliedRole(element) {
        switch (element.localName) {
        case 'input':
            return element.type in InputRoles ? InputRoles[element.type] : 'textbox';
        case 'select':
            return element.multiple || element.size > 1 ? 'listbox' : 'combobox';
        case 'a':
            return element.hasAttribute('tabindex') && !element.closest('[role="tab"]') ? 'link' : '';
        default:
            return TagRoles[element.localName] || '';
        }
    }

    /** Empty for an element that has none: what stands in it belongs to the next one around it. */
    function role(element) {
        const own = attribute(element, 'role').split(' ')[0];
        return Silent.includes(own) ? '' : own || impliedRole(element);
    }

    /** The element itself, or the next one around it that has a role. */
    function nearest(element) {
        let at = element && element.closest(Candidates);
        while (at && !role(at)) {
            at = at.parentElement && at.parentElement.closest(Candidates);
        }
        return at || root;
    }

    function parent(element) {
        return nearest(element.parentElement);
    }

    function isShown(element) {
        return element.getClientRects().length > 0 && getComputedStyle(element).visibility !== 'hidden' &&
            !element.closest('[aria-hidden="true"]');
    }

    function children(element) {
        if (!listed.has(element)) {
            listed.set(element, Array.from(element.querySelectorAll(Candidates)).filter(candidate =>
                role(candidate) && parent(candidate) === element && isShown(candidate)));
        }
        return listed.get(element);
    }

    function shownText(element) {
        return isShown(element) ? plain(element.innerText) : '';
    }

    function ofPage(what, element) {
        const texts = window.readerTexts;
        if (!texts || !texts[what]) {
            return '';
        }
        try {
            return plain(texts[what](element));
        } catch (e) {
            console.error('readerTexts.' + what + ': ' + e);
            return '';
        }
    }

    function named(element, key) {
        return attribute(element, key).split(' ').map(id => document.getElementById(id)).filter(Boolean);
    }

    function joined(parts) {
        return plain(parts.map(part => part.textContent).join(' '));
    }

    function labelText(element) {
        const legends = Array.from(element.children).filter(child => child.localName === 'legend');
        return joined(named(element, 'aria-labelledby').concat(Array.from(element.labels || []), legends));
    }

    /** A tip that shows has taken the title away, and says what it said. */
    function tip(element) {
        return attribute(element, 'title') || joined(named(element, 'aria-describedby'));
    }

    function content(element) {
        if (element.localName === 'input') {
            return impliedRole(element) === 'button' ? plain(element.value) : '';
        }
        if (Containers.includes(role(element))) {
            return '';
        }
        return attribute(element, 'alt') || shownText(element) ||
            children(element).map(name).filter(Boolean).join(', ');
    }

    function name(element) {
        return ofPage('name', element) || attribute(element, 'aria-label') || labelText(element) || content(element) ||
            tip(element) || attribute(element, 'placeholder');
    }

    /** Why it is as it is: the element says so, or what is around it, up to its cell. */
    function why(element) {
        const cell = element.closest('td, th');
        const end = cell ? cell.parentElement : parent(element);
        for (let at = element; at && at !== end; at = at.parentElement) {
            if (at.hasAttribute('why')) {
                return attribute(at, 'why');
            }
        }
        return '';
    }

    function description(element) {
        const said = ofPage('description', element) || why(element) || tip(element);
        return said === name(element) ? '' : said;
    }

    function value(element) {
        if (toldRange(element)) {
            return String(toldRange(element)[0]);
        }
        if (element.localName === 'select') {
            return Array.from(element.selectedOptions).map(option => plain(option.text)).join(', ');
        }
        if (element.localName === 'input' || element.localName === 'textarea') {
            return ['textbox', 'spinbutton', 'slider'].includes(role(element)) && element.type !== 'password' ?
                element.value : '';
        }
        const own = attribute(element, 'aria-valuetext') || attribute(element, 'aria-valuenow');
        return own || (['combobox', 'textbox'].includes(role(element)) ? shownText(element) : '');
    }

    function toldRange(element) {
        const texts = window.readerTexts;
        return texts && texts.range ? texts.range(element) : null;
    }

    function range(element) {
        const told = toldRange(element);
        if (told) {
            return told;
        }
        const limit = (aria, own) => Number(attribute(element, aria) || attribute(element, own));
        return [Number(attribute(element, 'aria-valuenow') || element.value || 0), limit('aria-valuemin', 'min'),
            limit('aria-valuemax', 'max'), Number(attribute(element, 'step'))];
    }

    function checks(element) {
        const pressed = element.getAttribute('aria-checked') || element.getAttribute('aria-pressed');
        const native = element.localName === 'input' && ['checkbox', 'radio'].includes(element.type);
        return {
            checkable: native || pressed !== null || Checkable.includes(role(element)),
            checked: native ? element.checked : pressed === 'true',
            checkStateMixed: native ? element.indeterminate : pressed === 'mixed'
        };
    }

    function edits(element) {
        const isText = role(element) === 'textbox';
        const readOnly = element.readOnly === true || isTrue(element, 'aria-readonly');
        return {
            readOnly, editable: isText && !readOnly, multiLine: element.localName === 'textarea',
            passwordEdit: element.type === 'password'
        };
    }

    function places(element) {
        const box = element.getBoundingClientRect();
        return {
            invisible: !isShown(element),
            offscreen: box.right <= 0 || box.bottom <= 0 || box.left >= innerWidth || box.top >= innerHeight
        };
    }

    /** The element that has the keyboard: of one that marks a part of it as `current`, that part. */
    function focused() {
        const holder = document.activeElement;
        if (!document.hasFocus() || !holder || holder === document.body) {
            return root;
        }
        return nearest(holder.querySelector('[current]') || holder);
    }

    /** The names of its states, with blanks between. */
    function states(element) {
        const isSelected = ['row', 'gridcell'].includes(role(element)) && element.closest('.w2ui-selected') !== null;
        const is = Object.assign({
            disabled: element.hasAttribute('disabled') || element.classList.contains('disabled') ||
                isTrue(element, 'aria-disabled'),
            focusable: element.tabIndex >= 0 && !element.matches('[disabled], a:not([tabindex])') ||
                element.hasAttribute('current'),
            focused: element === focused(),
            selectable: Selectable.includes(role(element)) || element.hasAttribute('aria-selected'),
            selected: isTrue(element, 'aria-selected') || isSelected,
            expandable: element.hasAttribute('aria-expanded'),
            expanded: isTrue(element, 'aria-expanded'),
            collapsed: element.getAttribute('aria-expanded') === 'false',
            modal: isTrue(element, 'aria-modal')
        }, checks(element), edits(element), places(element));
        return Object.keys(is).filter(state => is[state]).join(' ');
    }

    function rect(element) {
        const box = element.getBoundingClientRect();
        return [box.left, box.top, box.width, box.height];
    }

    /** Where the marked part of a text begins and ends. A box that holds numbers has none. */
    function selection(element) {
        return ['text', 'search', 'url', 'tel', 'password', 'textarea'].includes(element.type) ?
            element.selectionStart + ' ' + element.selectionEnd : '0 0';
    }

    /** To be called when the page may have changed. */
    function forget() {
        listed = new WeakMap();
    }

    return {
        Candidates, root, nearest, parent, children, shownText, focused, forget,
        role, name, description, value, range, states, rect, selection
    };
}());
