'use strict';

// The list of a drop-down box: the memory partitions of the current camera, or its channels of variable settings.
const selectbox = {
    // Pixels.
    rowHeight: 24,
    holdsPartitions: false,
    current: -1, // the row that the keyboard stands on

    initialize() {
        this.list = document.getElementById('items');
        this.hear('signalShowPartition', names => this.showPartitions(names));
        this.hear('signalShowVariable', json => this.showVariables(JSON.parse(json), false));
        this.hear('signalShowVariableRegist', json => this.showVariables(JSON.parse(json), true));
        this.hear('signalSetHeight', height => this.setRowHeight(height));
        this.hear('update', () => this.update());
        this.list.addEventListener('click', event => this.choose(this.rowOf(event.target)));
        document.addEventListener('keydown', event => this.onKey(event));
    },

    // An exception that left a function connected to a signal of the bridge would end the program. Anything can be
    // thrown, null too.
    hear(signal, work) {
        items[signal].connect(argument => {
            try {
                work(argument);
            } catch (error) {
                items.userOperationErrorLog(signal + ': ' + (error && error.message ? error.message : error));
            }
        });
    },

    // Nobody tells of the partitions of no camera, so those of the one that has gone must not stay.
    update() {
        this.applyStyle();
        if (this.holdsPartitions && items.getCurrentPartition() === 0) {
            this.holdsPartitions = false;
            this.show([]);
        }
    },

    applyStyle() {
        document.body.classList.toggle('dark', String(app.style).toLowerCase() === 'dark');
    },

    // In live mode an empty entry, which parts the partitions from what follows, and the way to the settings come last.
    showPartitions(names) {
        const current = items.getCurrentPartition();
        const count = items.isLiveMode() ? names.length - 2 : names.length;
        this.holdsPartitions = true;
        this.show(names.map((text, index) => ({
            text,
            isSelected: index + 1 === current,
            isDivider: index === count,
            choose: () => items.slotNotifyPartition(String(index + 1))
        })));
    },

    // A channel that can't be used can still be written to.
    showVariables(list, isRegistration) {
        this.holdsPartitions = false;
        this.show(list.ChannelInfos.map(channel => ({
            text: channel.VariableInfo ? channel.Value + ': ' + channel.VariableInfo : channel.Value,
            isSelected: channel.Value === list.SelectValue,
            isOff: !isRegistration && !channel.Settable,
            choose: () => {
                if (isRegistration) {
                    items.slotNotifyVariableRegist(channel.Value);
                } else {
                    items.slotNotifyVariable(channel.Value);
                }
            }
        })));
    },

    show(rows) {
        this.rows = rows;
        this.list.textContent = '';
        rows.forEach((row, index) => this.list.appendChild(this.rowElement(row, index)));
        this.setRowHeight(this.rowHeight);
        this.applyStyle();
        this.current = rows.findIndex(row => row.isSelected);
    },

    rowElement(row, index) {
        const entry = document.createElement('a');
        entry.textContent = row.text;
        entry.classList.toggle('selected', row.isSelected);
        entry.classList.toggle('off', Boolean(row.isOff));
        entry.classList.toggle('divider', Boolean(row.isDivider));
        entry.setAttribute('index', index);
        const item = document.createElement('li');
        item.appendChild(entry);
        return item;
    },

    setRowHeight(height) {
        this.rowHeight = height;
        Array.from(this.list.children).forEach(item => {
            item.style.height = height + 'px';
            item.style.lineHeight = height + 'px';
        });
    },

    rowOf(target) {
        return target.tagName === 'A' ? this.rows[Number(target.getAttribute('index'))] : undefined;
    },

    isFree: row => row !== undefined && !row.isOff && !row.isDivider,

    choose(row) {
        if (this.isFree(row)) {
            row.choose();
        }
    },

    // Arrows, Home and End go to the next free row, as far as there is one; Enter chooses.
    onKey(event) {
        const end = this.rows.length - 1;
        const ways = { 35: [end, -1], 36: [0, 1], 38: [this.current - 1, -1], 40: [this.current + 1, 1] };
        if (event.keyCode === 13) {
            this.choose(this.rows[this.current]);
        } else if (ways[event.keyCode]) {
            this.goTo(...ways[event.keyCode]);
            event.preventDefault();
        }
    },

    goTo(start, step) {
        let index = start;
        while (this.rows[index] && !this.isFree(this.rows[index])) {
            index += step;
        }
        if (!this.rows[index]) {
            return;
        }
        this.current = index;
        Array.from(this.list.children).forEach((item, at) => {
            item.firstElementChild.classList.toggle('current', at === index);
        });
        this.list.children[index].scrollIntoViewIfNeeded(false);
    }
};

document.addEventListener('DOMContentLoaded', () => selectbox.initialize());
