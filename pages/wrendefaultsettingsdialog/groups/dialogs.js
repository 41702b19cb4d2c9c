// The dialogs in which a group or a camera is added or edited. `typeofkey` of a dialog tells which.
Object.assign(wrendefaultsettingsdialog_obj, {
    initializeGroupDialogs() {
        makeDialog('#add_group_dialog', 150, () => this.acceptGroup());
        makeDialog('#add_camera_dialog', 160, () => this.acceptCamera());
        const name = document.getElementById('md_groupname');
        const isForbidden = text => /[:|]/.test(text);
        name.addEventListener('keypress', event => {
            if (isForbidden(String.fromCharCode(event.charCode))) {
                event.preventDefault();
            }
        });
        name.addEventListener('paste', event => {
            if (isForbidden(event.clipboardData.getData('text'))) {
                event.preventDefault();
            }
        });
        document.getElementById('md_dummy').addEventListener('change', event => {
            this.setIp('md_camera', event.currentTarget.checked ? Array(3).fill(DUMMY_NUM).join('.') : '');
            this.lockDummy();
        });
    },

    openGroupDialog(key) {
        const group = this.groupByKey(key);
        const name = document.getElementById('md_groupname');
        name.value = group ? group.groupname : this.defaultGroupName();
        openDialog('#add_group_dialog', key, group ? translate('Edit group') : translate('Add Groups'));
        name.select();
    },

    acceptGroup() {
        const name = document.getElementById('md_groupname').value.trim();
        const key = keyOfDialog('#add_group_dialog');
        if (name === '') {
            bridge.alert(textKey('Enter a group name.'));
        } else if (key === 'add' ? this.addGroup(name) : this.updateGroup(name, key)) {
            $('#add_group_dialog').dialog('close');
        }
    },

    openCameraDialog(key) {
        const group = this.groupOfCamera(key);
        const shown = group ? group.cameras.find(camera => camera.dockey === key).ipaddress : this.nextAddress();
        this.setIp('md_camera', shown);
        document.getElementById('md_dummy').checked = Boolean(group) && shown.split('.')[0] === DUMMY_NUM;
        this.lockDummy();
        openDialog('#add_camera_dialog', key, group ? translate('Edit Device') : translate('Add Device'));
        octetsOf('md_camera').find(octet => !octet.disabled).select();
    },

    // In the network that was last searched.
    nextAddress() {
        const parts = bridge.getPrefString('cameraconnection/SearchIP').split('.').concat('', '');
        return parts.slice(0, 3).concat('10').join('.');
    },

    lockDummy() {
        const isDummy = document.getElementById('md_dummy').checked;
        octetsOf('md_camera').slice(0, 3).forEach(octet => { octet.disabled = isDummy; });
    },

    acceptCamera() {
        const ipaddress = this.concatIp('md_camera', document.getElementById('md_dummy').checked);
        const key = keyOfDialog('#add_camera_dialog');
        if (ipaddress === '') {
            bridge.alert(textKey('Input IPAddress'));
        } else if (key === 'add' ? this.addCamera(this.last_select_group, ipaddress)
            : this.updateCamera(this.groupOfCamera(key), ipaddress, key)) {
            $('#add_camera_dialog').dialog('close');
        }
    }
});

// Enter in a field of the dialog is its OK.
function makeDialog(selector, height, work) {
    const accept = () => workUnlessCorrected($(selector).dialog('widget').find('.ok').get(0), work);
    const button = (text, word, click) => ({ text, class: 'ui-dialog-buttons ' + word, click: () => guarded(click) });
    $(selector).dialog({
        autoOpen: false,
        modal: true,
        resizable: false,
        closeOnEscape: false,
        width: 400,
        height,
        buttons: [
            button(translate('OK'), 'ok', accept),
            button(translate('Cancel'), 'close', () => $(selector).dialog('close'))
        ]
    }).on('keydown', event => {
        if (event.keyCode === KEY.ENTER && event.target.tagName === 'INPUT') {
            event.preventDefault();
            guarded(accept);
        }
    });
}

function openDialog(selector, key, title) {
    $(selector).attr('typeofkey', key).dialog('option', 'title', title).dialog('open');
}

// 'add', or the key of what is edited.
function keyOfDialog(selector) {
    const key = $(selector).attr('typeofkey');
    return key === 'add' ? key : Number(key);
}
