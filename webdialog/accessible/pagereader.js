// Numbers the elements of the page for whom asks from outside, and tells what has changed. An element is known by its
// number for as long as it stands in the document; 0 is the document itself.
var pageReader = (function (facts) {
    'use strict';

    const Heard = ['focus', 'blur', 'input', 'change', 'click', 'keyup', 'load'];

    const root = facts.root;
    const elements = new Map([[0, root]]);
    const numbers = new WeakMap([[root, 0]]);
    let last = 0;
    // What was told of an element, by its number: only what someone has heard can change for him.
    const told = new Map();
    let touched = new Set();
    let removed = false;
    let focus = root;
    let announced = new WeakMap();

    function number(element) {
        if (!numbers.has(element)) {
            numbers.set(element, ++last);
            elements.set(last, element);
        }
        return numbers.get(element);
    }

    const Changing = {
        name: facts.name, description: facts.description, value: facts.value, states: facts.states,
        selection: facts.selection
    };
    const Lasting = {
        role: facts.role, range: facts.range, rect: facts.rect,
        children: element => facts.children(element).map(number),
        parent: element => number(facts.parent(element))
    };

    function ask(what, id) {
        const element = elements.get(id);
        if (!element || !root.contains(element)) {
            return undefined;
        }
        if (!(what in Changing)) {
            return Lasting[what](element);
        }
        const known = told.get(id) || {};
        known[what] = Changing[what](element);
        told.set(id, known);
        return known[what];
    }

    /** What was told of the element and is so no more, as [what, number, what was told, what is so]. */
    function changesOf(element) {
        const known = told.get(numbers.get(element)) || {};
        const before = Object.assign({}, known);
        return Object.keys(known).filter(what => ask(what, number(element)) !== before[what])
            .map(what => [what, number(element), before[what], known[what]]);
    }

    function forgetGone() {
        const gone = [];
        elements.forEach((element, id) => {
            if (!root.contains(element)) {
                gone.push(['gone', id]);
                elements.delete(id);
                numbers.delete(element);
                told.delete(id);
            }
        });
        return gone;
    }

    /** The texts of status lines that are others than at the last call. */
    function announcements() {
        const texts = new WeakMap();
        const fresh = Array.from(document.querySelectorAll('[role="status"], [role="alert"]')).filter(element => {
            texts.set(element, facts.shownText(element));
            return texts.get(element) !== (announced.get(element) || '') && texts.get(element) !== '';
        });
        announced = texts;
        return fresh.map(element => ['announce', number(element)]);
    }

    function takeFocus() {
        if (facts.focused() === focus) {
            return [];
        }
        focus = facts.focused();
        Object.keys(Changing).forEach(what => ask(what, number(focus)));
        return [['focus', number(focus)]];
    }

    /** What is to be told since the last call. */
    function changes() {
        const gone = removed ? forgetGone() : [];
        removed = false;
        const known = Array.from(touched.add(focus)).filter(element => numbers.has(element));
        touched = new Set();
        const moved = takeFocus();
        return gone.concat(...known.map(changesOf), moved, announcements());
    }

    function touch(node) {
        let element = facts.nearest(node.nodeType === Node.ELEMENT_NODE ? node : node.parentElement);
        for (; element !== root; element = facts.parent(element)) {
            touched.add(element);
        }
    }

    function happened(event) {
        facts.forget();
        if (event.target instanceof Node && event.target !== document) {
            touch(event.target);
        }
        pageReaderEvents.happened();
    }

    const observer = new MutationObserver(records => {
        facts.forget();
        records.forEach(record => {
            touch(record.target);
            removed = removed || record.removedNodes.length > 0;
            if (record.attributeName === 'why') {
                Array.from(record.target.querySelectorAll(facts.Candidates)).forEach(inside => touched.add(inside));
            }
        });
        pageReaderEvents.happened();
    });

    function stop() {
        observer.disconnect();
        Heard.forEach(kind => document.removeEventListener(kind, happened, true));
        window.removeEventListener('resize', happened);
    }

    observer.observe(document, { attributes: true, characterData: true, childList: true, subtree: true });
    Heard.forEach(kind => document.addEventListener(kind, happened, true));
    window.addEventListener('resize', happened);
    announcements();

    return {
        ask, changes, stop,
        focused: () => number(facts.focused()),
        at: (x, y) => number(facts.nearest(document.elementFromPoint(x, y))),
        // A combo box has a text too, in which nothing can be marked.
        select: (id, start, end) => {
            const element = elements.get(id);
            if (element && root.contains(element) && element.setSelectionRange) {
                element.setSelectionRange(start, end);
            }
        }
    };
}(readerFacts));
