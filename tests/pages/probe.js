'use strict';

// What the tests of the page count and describe in it.
var probe = {
    grid: () => w2ui[TABS[$('#tabs').tabs('option', 'active')].gridName],
    drawn: () => Array.from(document.querySelectorAll(`#grid_${probe.grid().name}_records tr[recid]`)),
    batch: () => document.querySelector(`#grid_${probe.grid().name}_summary tr[recid]`),
    keyOf: row => row.querySelector('[dockey]').getAttribute('dockey'),
    elements: () => document.getElementsByTagName('*').length,

    // Where the document was written to: "key/field" in a row, an element anywhere else.
    writes(work) {
        const observer = new MutationObserver(() => undefined);
        observer.observe(document, { attributes: true, childList: true, characterData: true, subtree: true });
        try {
            work();
            return Array.from(new Set(observer.takeRecords().map(probe.place))).sort();
        } finally {
            observer.disconnect();
        }
    },

    place(record) {
        const element = record.target.closest ? record.target : record.target.parentNode;
        const row = element.closest('tr[recid]');
        if (!row) {
            return `${record.type} ${element.tagName}#${element.id}.${element.className}`;
        }
        const cell = element.closest('td[col]');
        return probe.keyOf(row) + '/' + (cell ? probe.grid().columns[cell.getAttribute('col')].field : 'row');
    },

    // The calls of the bridge while `work` runs or, without it, until `callsEnd`: [name, arguments].
    calls(work) {
        const made = probe.callsBegin();
        try {
            work();
        } finally {
            probe.callsEnd();
        }
        return made;
    },

    callsBegin() {
        const made = probe.made = [];
        const bridge = probe.bridge = window.wrentabledialog;
        const counting = {};
        for (const signature in bridge) {
            const name = signature.replace(/\(.*/, '');
            counting[name] = typeof bridge[name] !== 'function' ? bridge[name] : function () {
                made.push([name, Array.from(arguments)]);
                return bridge[name].apply(bridge, arguments);
            };
        }
        window.wrentabledialog = window.bridge = counting;
        return made;
    },

    callsEnd() {
        window.wrentabledialog = window.bridge = probe.bridge;
        return probe.made;
    },

    // From here on what is bound to the window and the document is counted, whoever binds it.
    watchHandlers() {
        probe.bound = [];
        [window, document, document.body].forEach(target => {
            const same = (type, handler, capture) => other => other.type === type && other.target === target &&
                other.handler === handler && other.capture === Boolean(capture);
            const add = target.addEventListener;
            const remove = target.removeEventListener;
            target.addEventListener = function (type, handler, capture) {
                if (!probe.bound.some(same(type, handler, capture))) {
                    probe.bound.push({ target, type, handler, capture: Boolean(capture) });
                }
                add.apply(target, arguments);
            };
            target.removeEventListener = function (type, handler, capture) {
                const gone = same(type, handler, capture);
                probe.bound = probe.bound.filter(other => !gone(other));
                remove.apply(target, arguments);
            };
        });
    },

    handlers() {
        return [window, document, document.body].reduce((sum, target) => {
            const events = $._data(target, 'events') || {};
            return Object.keys(events).reduce((total, type) => total + events[type].length, sum);
        }, probe.bound.length);
    },

    // An element with all below it as text. The order in which attributes were written does not count.
    shape(node) {
        if (node.nodeType !== 1) {
            return node.nodeValue;
        }
        const words = text => text.split(' ').filter(word => word).sort().join(' ');
        const attributes = Array.from(node.attributes)
            .map(one => `${one.name}="${one.name === 'class' ? words(one.value) : one.value}"`).sort();
        // What an input shows is none of its attributes.
        const shown = node.tagName === 'INPUT' ? [`shows ${node.type === 'checkbox' ? node.checked : node.value}`] : [];
        return `<${[node.tagName].concat(attributes, shown).join(' ')}>` +
            `${Array.from(node.childNodes).map(probe.shape).join('')}</>`;
    },

    // The cells as they stand, by "key/field"; what the row itself carries as "key/row".
    shapes() {
        const all = {};
        probe.drawn().concat(probe.batch()).forEach(row => {
            const key = probe.keyOf(row);
            all[key + '/row'] = probe.shape(row.cloneNode(false));
            Array.from(row.querySelectorAll('td[col]')).forEach(cell => {
                all[`${key}/${probe.grid().columns[cell.getAttribute('col')].field}`] = probe.shape(cell);
            });
        });
        return all;
    },

    scrollTo(top) {
        const box = document.getElementById(`grid_${probe.grid().name}_records`);
        box.scrollTop = top;
        probe.grid().last.scrollTop = box.scrollTop;
        probe.grid().scroll();
        return box.scrollTop;
    },

    captions: () => Array.from(document.querySelectorAll(`#grid_${probe.grid().name}_columns td.w2ui-head[col]`))
        .map(head => head.textContent.trim()),

    // What stands in the cells of a row, in their order: the first element of each that has a name of ours.
    cells: row => Array.from(row.querySelectorAll('td[col]')).map(cell => {
        const names = Array.from(cell.querySelectorAll('[class]')).map(element => element.getAttribute('class'));
        return (names.join(' ').match(/\bwren_\w+/) || [''])[0];
    }),

    selected: () => probe.drawn().filter(row => row.classList.contains('w2ui-selected')).map(probe.keyOf)
};
