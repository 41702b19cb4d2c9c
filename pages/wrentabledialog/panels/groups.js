// Which cameras the table lists: the group box and the record filter.
Object.assign(wrentabledialog_obj, {
    initializeRecordFilter() {
        const filter = document.getElementById('recordFilter');
        filter.value = String(wrentabledialog.getFilter());
        this.whenPainted(() => {
            zeb4func.initSumoSelect('#recordFilter', 120, false, false, false, wrentabledialog);
            listenToListKeys(filter.sumo);
        });
        this.showFilter();
        filter.addEventListener('change', () => guarded(() => {
            this.preventSelect = false;
            this.update();
            this.selectAll();
        }));
    },

    showFilter() {
        this.whenPainted(() => zeb4func.selectItemSumoSelect('#recordFilter', wrentabledialog.getFilter()));
    },

    initializeGroupBox() {
        const box = document.getElementById('wrenGroupBox');
        box.textContent = '';
        const reply = parseReply(wrentabledialog.getGroups());
        const groups = Array.isArray(reply) ? reply : [];
        groups.forEach((group, index) => box.appendChild(this.groupButton(group, index)));
        const buttons = Array.from(box.children);
        const stored = wrentabledialog.getGroup();
        const chosen = buttons.find(button => button.getAttribute('groupkey') === stored) || buttons[0];
        buttons.forEach(button => showChosen(button, button === chosen));
        this.showGroupBlock();
    },

    groupButton(group, index) {
        const button = document.createElement('input');
        const attributes = { type: 'button', class: 'groupButton', id: 'group_button_' + index, groupkey: group.key,
            value: group.name, 'group-name': group.name, buttonselected: 'false' };
        Object.keys(attributes).forEach(name => button.setAttribute(name, attributes[name]));
        button.addEventListener('click', () => guarded(() => this.chooseGroup(button)));
        return button;
    },

    // The buttons stay disabled while the page shows the other group.
    chooseGroup(button) {
        this.preventSelectGroup = true;
        this.preventSelect = false;
        closeTip();
        Array.from(button.parentNode.children).forEach(other => {
            showChosen(other, other === button);
        });
        try {
            this.update();
        } finally {
            this.preventSelectGroup = false;
            zeb4func.disable('.groupButton', false);
        }
    },

    selectedGroup() {
        const button = document.querySelector('.groupButton[buttonselected="true"]');
        return button ? button.getAttribute('groupkey') : '';
    },

    showGroupBlock() {
        const filled = document.getElementById('wrenGroupBox').children.length > 0;
        showElement(document.getElementById('wrenGroupBlock'), filled);
    }
});

function showChosen(button, on) {
    setMark(button, 'buttonselected', String(on));
    setMark(button, 'aria-pressed', String(on));
}

// The list of the filter, which knows no click on the rows.
function closeFilter() {
    const { sumo } = document.getElementById('recordFilter');
    if (sumo) { // else the page has just come up
        sumo.hideOpts();
    }
}
