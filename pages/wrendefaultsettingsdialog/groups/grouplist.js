// The groups and their cameras on the screen. Each change draws the whole list anew.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializeGroupList() {
        const list = document.getElementById('md_device_group_list');
        this.groupCursor = new ListCursor();
        this.groupTemplate = Hogan.compile(document.getElementById('md_device_group_template').textContent);
        list.addEventListener('mousedown', event => {
            list.focus();
            this.makeSelectable(event.target.closest('ul'));
        }, true);
        list.addEventListener('click', event => guarded(() => this.clickIcon(event.target)));
        list.addEventListener('keydown', event => guarded(() => this.onGroupKey(event)));
        textTip(list, '.name', name => name.scrollWidth > name.clientWidth ? name.textContent : '');
        // A message box keeps the release for itself.
        window.addEventListener('blur', () => this.endBand());
        onClick('#md_addgroup', () => this.openGroupDialog('add'));
        onClick('#md_addcamera', () => this.openCameraDialog('add'));
        onClick('#md_all_clear', () => {
            if (bridge.confirm(translate('Delete all Groups?'))) {
                this.cameraList = [];
                this.last_select_group = '';
                this.listEdited();
            }
        });
    },

    // While a rubber band is drawn, the list stays.
    createGroupCameraList() {
        if (this.groupSelecting) {
            return;
        }
        const list = document.getElementById('md_device_group_list');
        const top = list.scrollTop;
        closeTip();
        list.innerHTML = this.groupTemplate.render({ groups: this.cameraList });
        list.scrollTop = top;
        this.refreshGroupCameraList();
    },

    refreshGroupCameraList() {
        zeb4func.disable('#md_all_clear', this.cameraList.length === 0);
        zeb4func.disable('#md_addcamera', !this.selectedGroup());
    },

    // A list of the page gets its mouse handling when the mouse first goes down on it, for there may be thousands. By
    // the time it comes up a row may have gone.
    makeSelectable(list) {
        if (!list || $(list).selectable('instance')) {
            return;
        }
        const keyOf = element => Number(element.getAttribute('dockey'));
        $(list).selectable({
            filter: 'li',
            cancel: 'a.delete, a.edit, a.groupopen, a.groupclose',
            start: () => { this.groupSelecting = true; },
            selected: (event, ui) => this.selectItem(keyOf(ui.selected)),
            unselected: (event, ui) => this.unselectItem(keyOf(ui.unselected)),
            stop: () => {
                this.groupSelecting = false;
                this.createGroupCameraList();
            }
        });
    },

    endBand() {
        if (this.groupSelecting) {
            $(document).trigger('mouseup');
        }
    },

    // Selects a group, or a camera with its group, and nothing else.
    selectItem(key) {
        if (!this.groupByKey(key) && !this.groupOfCamera(key)) {
            return;
        }
        this.cameraList.forEach(group => {
            const isTouched = group.dockey === key || group.cameras.some(camera => camera.dockey === key);
            mark(group, isTouched);
            group.cameras.forEach(camera => mark(camera, camera.dockey === key));
            if (isTouched) {
                this.last_select_group = group.groupname;
            }
        });
        this.createGroupCameraList();
    },

    unselectItem(key) {
        const group = this.groupByKey(key);
        const owner = this.groupOfCamera(key);
        const items = group ? [group].concat(group.cameras)
            : owner ? owner.cameras.filter(camera => camera.dockey === key) : [];
        items.forEach(item => mark(item, false));
        this.createGroupCameraList();
    },

    clickIcon(target) {
        const icon = target.closest('a');
        const key = icon ? Number(icon.closest('li').getAttribute('dockey')) : -1;
        if (!icon) {
            return;
        }
        if (icon.matches('.edit')) {
            this.editItem(key);
        } else if (icon.matches('.delete')) {
            this.deleteItem(key);
        } else {
            this.openGroup(this.groupByKey(key), icon.matches('.groupopen'));
        }
    },

    openGroup(group, open) {
        group.groupopen = open ? 'none' : 'block';
        group.groupclose = open ? 'block' : 'none';
        this.createGroupCameraList();
    },

    editItem(key) {
        if (this.groupByKey(key)) {
            this.openGroupDialog(key);
        } else {
            this.openCameraDialog(key);
        }
    },

    deleteItem(key) {
        const group = this.groupByKey(key);
        const question = group ? textKey('Do you want to delete the group?') : textKey('Delete this Camera?');
        if (!bridge.confirm(translate(question))) {
            return;
        }
        if (group) {
            this.cameraList = this.cameraList.filter(other => other !== group);
        } else {
            const owner = this.groupOfCamera(key);
            owner.cameras = owner.cameras.filter(camera => camera.dockey !== key);
        }
        this.listEdited();
    },

    // The rows that are seen, from top to bottom.
    shownItems() {
        const items = [];
        this.cameraList.forEach(group => {
            items.push(group);
            if (group.groupclose !== 'none') {
                group.cameras.forEach(camera => items.push(camera));
            }
        });
        return items;
    },

    onGroupKey(event) {
        const items = this.shownItems();
        const selected = items.filter(item => item.selected !== '').pop(); // of a group and its camera the camera
        const cursor = this.groupCursor;
        cursor.place = selected ? items.indexOf(selected) : cursor.place;
        const place = cursor.target(event.keyCode, items.length, 10);
        if (place !== undefined) {
            this.selectByKey(items[place]);
        } else if (event.keyCode === KEY.SPACE) {
            this.toggleItem(selected, items[cursor.row]);
        } else if (!selected || !this.workByKey(event.keyCode, selected)) {
            return;
        }
        event.preventDefault();
    },

    selectByKey(item) {
        this.selectItem(item.dockey);
        const list = document.getElementById('md_device_group_list');
        list.querySelector(`li[dockey="${item.dockey}"]`).scrollIntoViewIfNeeded(false);
    },

    toggleItem(selected, item) {
        if (selected) {
            this.unselectItem(selected.dockey);
        } else if (item) {
            this.selectByKey(item);
        }
    },

    // What a key does to the row that is selected. Answers whether it does anything.
    workByKey(keyCode, item) {
        const group = item.cameras ? item : this.groupOfCamera(item.dockey);
        const works = {
            [KEY.DELETE]: () => {
                this.groupCursor.leave(this.groupCursor.place);
                this.deleteItem(item.dockey);
            },
            [KEY.ENTER]: () => this.editItem(item.dockey),
            [KEY_F2]: () => this.editItem(item.dockey),
            [KEY.LEFT]: () => item === group ? this.openGroup(group, false) : this.selectByKey(group),
            [KEY.RIGHT]: () => this.openGroup(group, true)
        };
        if (works[keyCode]) {
            works[keyCode]();
        }
        return Boolean(works[keyCode]);
    }
});

const KEY_F2 = 113;

function mark(item, isSelected) {
    item.selected = isSelected ? 'ui-selected' : '';
    item.select = isSelected ? 'block' : 'none';
}
