'use strict';

// Adds a camera, or edits one. For the name there are those of a list that the user keeps.

const MOST_HITS = 100;

// The names below their categories. What comes from the list is text.
$.widget('zeb.nameList', $.ui.autocomplete, {
    _create() {
        this._super();
        this.widget().menu('option', 'items', '> :not(.category, .more)');
        // A name of dashes is one too.
        this.widget().menu('instance')._isDivider = () => false;
        // Before the list's own handler.
        this.element.parent()[0].addEventListener('keydown', event => this._leaveTyped(event), true);
        this.menu.element[0].addEventListener('mousemove', () => { this.byArrows = false; });
    },

    // Only an entry that the arrows have reached takes the place of what is typed, none that the mouse rests on.
    _leaveTyped(event) {
        const ARROWS = [33, 34, 38, 40];
        const isListed = this.menu.element.is(':visible');
        if (ARROWS.indexOf(event.keyCode) >= 0) {
            this.byArrows = true;
        } else if (event.keyCode === 27 && isListed) {
            // The list would put back what it has searched for, which is behind a fast hand.
            event.stopImmediatePropagation();
            event.preventDefault();
            clearTimeout(this.searching);
            this.close();
        } else {
            const takes = event.keyCode === 13 && this.byArrows;
            this.byArrows = takes;
            if (!takes) {
                this.menu.active = null;
            }
        }
    },

    _renderMenu(list, hits) {
        let category = '';
        hits.forEach(hit => {
            if (hit.category !== category) {
                category = hit.category;
                $('<li class="category">').text(category).appendTo(list);
            }
            if (hit.more) {
                $('<li class="more">').text(hit.label).appendTo(list);
            } else {
                this._renderItemData(list, hit);
            }
        });
    }
});

const addDevicePage = Object.assign(dialogFrame(adddevice), {
    names: [],

    initialize() {
        this.begin(() => this.applyStyle());
        this.applyStyle();
        this.show(JSON.parse(adddevice.getDevice() || '{}'));
        this.onClick('ok', () => this.accept());
        this.onClick('cancel', () => adddevice.reject());
        document.addEventListener('keydown', event => this.guarded(() => this.press(event)));
        this.logged(() => adddeviceAutoCameraName.existsAutoCompleteFile() && this.offerNames());
    },

    show(device) {
        ['address', 'name', 'comment'].forEach(id => { byId(id).value = device[id] || ''; });
        byId('address').readOnly = !device.adds;
        const first = byId(device.adds ? 'address' : 'name');
        first.focus();
        first.select();
    },

    offerNames() {
        this.names = JSON.parse(adddeviceAutoCameraName.autoCompleteCameraList() || '[]');
        this.names.forEach(name => { name.key = name.label.toLowerCase(); });
        $('#name').nameList({
            delay: 0,
            minLength: 0,
            source: (request, answer) => this.logged(() => answer(this.hits(request.term.toLowerCase())))
        });
    },

    // A menu of all could not be shown in time.
    hits(typed) {
        const hits = this.names.filter(name => name.key.indexOf(typed) >= 0);
        const shown = hits.slice(0, MOST_HITS);
        if (hits.length > MOST_HITS) {
            const category = shown[MOST_HITS - 1].category;
            const more = textKey('and %1 more');
            const label = adddevice.translate(more).replace('%1', hits.length - MOST_HITS);
            shown.push({ label, category, more: true });
        }
        return shown;
    },

    // Enter means OK but where it begins a line, presses a button or, as Escape, belongs to the names.
    press(event) {
        if (event.defaultPrevented) {
            return;
        }
        if (event.keyCode === 27) {
            adddevice.reject();
        } else if (event.keyCode === 13 && event.target.tagName === 'INPUT') {
            event.preventDefault();
            this.accept();
        }
    },

    accept() {
        adddevice.ok(JSON.stringify({
            address: byId('address').value, name: byId('name').value, comment: byId('comment').value
        }));
    }
});

document.addEventListener('DOMContentLoaded', () => addDevicePage.initialize());
