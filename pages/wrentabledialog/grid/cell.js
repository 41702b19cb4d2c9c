// One cell of a drawn row: its elements, and what they were last given to show.
//
// What a cell may show is told by its kind, one a column:
//   markup          the elements. `part` names one for the writers below, `dockey` and an `id` that begins with
//                   `wren_` are completed by the row's key, `{short}` is the tab's short name.
//   needs           the members of a record without which the cell has no elements either: the camera did not tell
//                   them. Every kind has it, be it empty
//   empty(record)   whether the cell has no elements at all; asked when the row is rebuilt
//   rebuild(...)    what only a full refresh brings
//   tick(...)       what every refresh brings; a full refresh runs it after `rebuild`
//   leave(cell)     before the elements go
//   caption(), heading()    the column's name in its head, and where nothing but text tells of it, if that is another
//   text(record)    what the cell shows, as the user reads it; `plain(record)` is the same for a program, where it is
//                   another one: a number in `unit`, without grouping. See `textOfCell`
//   why(record, status)    why the controls of the cell take nothing, as a text, '' while they do. By this they are
//                   greyed: before `tick` it is in `cell.isBarred` and in the `why` of the cell
//   compared(record)       the value by which rows are the same or differ, as text, '' for none. Of kinds whose batch
//                   row tells so
//   locked(record)  whether the camera itself takes no change of it, beyond what holds for the whole list
//   still           whether a click or a drag on it leaves the selection as it is
//   click(place, part)     what a click on a link or a list of the cell does; `place` is view, row and cell
//   clickBatch()           what a click on the batch row does that meets no control
//   doubleClick(view, key)
//   press(cell, event)     what a click on a control does that no `click` takes
//   change(key, element)   what a change by the user does
//   enter(cell)     which of several controls gets the keyboard when it enters the cell; null for none
//   key(key, cell, event)   what a key in such a control does; answers whether it was one of its own
//   menu(key, element, event)   what the right button does on it, if it answers true
// The first two get the cell, the record and the list's status, and write through the cell, which leaves out what the
// elements show already.
class Cell {
    constructor(box, kind, short, field) {
        this.box = box; // the element that w2ui pads
        this.kind = kind;
        this.short = short;
        this.field = field;
        this.content = null; // the root of the markup, made when the cell is first filled
        this.filled = false;
        this.isRead = true; // the record of the last rebuild told what the cell shows
        this.key = null; // the key that the elements carry
        this.parts = {};
        this.shown = {}; // `part@what` -> value last written
        this.stale = false; // the user has touched a number that only a full refresh would write
        this.why = ''; // why its controls take nothing
        this.isBarred = false; // they take nothing
    }

    rebuild(record, status) {
        this.isRead = this.reads(record);
        const empty = !this.isRead || (this.kind.empty !== undefined && this.kind.empty(record));
        if (empty) {
            this.clear();
            return;
        }
        this.fill();
        this.bind(record.key);
        if (this.kind.rebuild) {
            this.kind.rebuild(this, record, status);
        }
        this.tick(record, status);
    }

    reads(record) {
        return isTold(this.kind, record);
    }

    tick(record, status) {
        if (!this.filled) {
            return;
        }
        if (this.kind.why) {
            this.bar(this.kind.why(record, status));
        }
        if (this.kind.tick) {
            this.kind.tick(this, record, status);
        }
    }

    bar(why) {
        if (this.why !== why) {
            this.why = why;
            this.isBarred = why !== '';
            setMark(this.box, 'why', why || null);
        }
    }

    // Why that part alone takes nothing.
    barPart(part, why) {
        if (this.differs(part, 'why', why)) {
            setMark(this.parts[part], 'why', why || null);
        }
    }

    clear() {
        if (this.filled) {
            if (this.kind.leave) {
                this.kind.leave(this);
            }
            this.bar('');
            this.box.removeChild(this.content);
            this.filled = false;
        }
    }

    fill() {
        if (this.filled) {
            return;
        }
        if (!this.content) {
            this.make();
        }
        this.box.appendChild(this.content);
        this.filled = true;
    }

    make() {
        const template = templateOf(this.kind, this.short);
        this.content = template.content.cloneNode(true);
        const inner = this.content.getElementsByTagName('*');
        const at = place => place < 0 ? this.content : inner[place];
        Object.keys(template.parts).forEach(part => { this.parts[part] = at(template.parts[part]); });
        this.bound = template.bound.map(at);
        this.prefixes = template.prefixes;
    }

    bind(key) {
        if (this.key === key) {
            return;
        }
        this.key = key;
        this.bound.forEach((element, index) => {
            element.setAttribute('dockey', key);
            if (this.prefixes[index]) {
                element.id = this.prefixes[index] + key;
            }
        });
    }

    // After the user's touch the elements may show something else.
    forget() {
        this.shown = {};
    }

    differs(part, what, value) {
        const slot = part + '@' + what;
        if (this.shown[slot] === value) {
            return false;
        }
        this.shown[slot] = value;
        return true;
    }

    // A text that stays one node keeps what the engine knows of it, and is laid out sooner.
    text(part, value) {
        if (!this.differs(part, 'text', value)) {
            return;
        }
        const element = this.parts[part];
        if (element.firstChild) {
            element.firstChild.data = value;
        } else {
            element.appendChild(document.createTextNode(value));
        }
    }

    attribute(part, name, value) {
        if (this.differs(part, name, value)) {
            this.parts[part].setAttribute(name, value);
        }
    }

    // What an input shows, which the user can change, is no attribute.
    property(part, name, value) {
        if (this.differs(part, name, value)) {
            this.parts[part][name] = value;
        }
    }

    flag(part, name, on) {
        if (!this.differs(part, name, on)) {
            return;
        }
        if (on) {
            this.parts[part].setAttribute(name, '');
        } else {
            this.parts[part].removeAttribute(name);
        }
    }

    classes(part, names) {
        if (this.differs(part, 'class', names)) {
            this.parts[part].className = names;
        }
    }

    // One of the two stands in the cell, the other is hidden.
    swap(on, first, second) {
        this.flag(first, 'hidden', !on);
        this.flag(second, 'hidden', on);
    }
}

// Whether the record tells what a cell of that kind shows.
function isTold(kind, record) {
    return kind.needs.every(name => record[name] !== undefined);
}

// What such a cell shows, as text; '' where it is empty.
function textOfCell(kind, record) {
    return isTold(kind, record) && !(kind.empty && kind.empty(record)) ? kind.text(record) : '';
}

// The elements of a kind, made once a tab, and the places of those that have a name or carry the key: in the order of
// the document, -1 for the root.
function templateOf(kind, short) {
    const made = kind.made || (kind.made = {});
    if (!made[short]) {
        const box = document.createElement('div');
        const markup = typeof kind.markup === 'function' ? kind.markup() : kind.markup;
        box.innerHTML = markup.replace(/\s*\n\s*/g, ' ').replace(/ ?([<>]) ?/g, '$1').replace(/\{short\}/g, short);
        const elements = Array.from(box.getElementsByTagName('*'));
        const template = made[short] = { content: elements[0], parts: {}, bound: [], prefixes: [] };
        elements.forEach((element, index) => {
            if (element.hasAttribute('part')) {
                template.parts[element.getAttribute('part')] = index - 1;
                element.removeAttribute('part');
            }
            if (element.hasAttribute('dockey')) {
                template.bound.push(index - 1);
                template.prefixes.push(element.id.startsWith('wren_') ? element.id : '');
            }
        });
    }
    return made[short];
}
