const groupsSetting = setting('groups');

// The groups and their cameras as data.
Object.assign(wrendefaultsettingsdialog_obj, {
    newItem(members) {
        return Object.assign({ dockey: this.sequence++, selected: '', select: 'none' }, members);
    },

    newGroup(groupname, addresses) {
        const cameras = addresses.map(ipaddress => this.newItem({ ipaddress }));
        return this.newItem({ groupname, groupopen: 'none', groupclose: 'block', cameras });
    },

    // A camera that a text made by hand names twice is taken once.
    parseGroups(text) {
        const known = new Set();
        const isNew = address => !known.has(address) && known.add(address);
        const parts = text === '' ? [] : text.split(':').map(part => part.split('|'));
        return parts.map(([name, ...addresses]) => this.newGroup(name, addresses.filter(isNew)));
    },

    concatGroups(groups) {
        return groups.map(group => [group.groupname].concat(group.cameras.map(camera => camera.ipaddress)).join('|'))
            .join(':');
    },

    groupByKey(key) {
        return this.cameraList.find(group => group.dockey === key);
    },

    groupOfCamera(key) {
        return this.cameraList.find(group => group.cameras.some(camera => camera.dockey === key));
    },

    selectedGroup() {
        return this.cameraList.find(group => group.selected !== '');
    },

    // A name is part of a text that ":" and "|" divide, and "*" stands for all cameras.
    isGroupName: name => !/[:|]/.test(name) && name !== '*',

    // Empty when all of them are in use.
    defaultGroupName() {
        const names = new Set(this.cameraList.map(group => group.groupname));
        const free = Array.from({ length: 99 }, (_, index) => `Group_${index + 1}`).find(name => !names.has(name));
        return free || '';
    },

    // Answers whether the name was taken.
    addGroup(name) {
        if (!this.isGroupName(name)) {
            if (name === '*') { // the others don't get into the field
                bridge.alert(textKey('group name contains characters that cannot be used.'));
            }
            return false;
        }
        if (this.isGroupUsed(name)) {
            return false;
        }
        this.cameraList.push(this.newGroup(name, []));
        this.groupsEdited();
        return true;
    },

    updateGroup(name, key) {
        const group = this.groupByKey(key);
        if (!this.isGroupName(name)) {
            bridge.alert(textKey('group name contains characters that cannot be used.'));
            return false;
        }
        if (this.isGroupUsed(name, group)) {
            return false;
        }
        if (this.last_select_group === group.groupname) {
            this.last_select_group = name;
        }
        group.groupname = name;
        this.groupsEdited();
        return true;
    },

    // Tells it when another group than `own` has the name.
    isGroupUsed(name, own) {
        const isUsed = this.cameraList.some(group => group !== own && group.groupname === name);
        if (isUsed) {
            bridge.alert(textKey('Duplicate group names.'));
        }
        return isUsed;
    },

    addCamera(groupname, ipaddress) {
        const selected = this.selectedGroup();
        const group = selected && selected.groupname === groupname ? selected
            : this.cameraList.find(other => other.groupname === groupname);
        if (!group || this.isCameraUsed(ipaddress)) {
            return false;
        }
        group.cameras.push(this.newItem({ ipaddress }));
        this.camerasEdited(group);
        return true;
    },

    updateCamera(group, ipaddress, key) {
        const camera = group.cameras.find(other => other.dockey === key);
        if (this.isCameraUsed(ipaddress, camera)) {
            return false;
        }
        camera.ipaddress = ipaddress;
        this.camerasEdited(group);
        return true;
    },

    isCameraUsed(ipaddress, own) {
        const isUsed = this.cameraList.some(group => group.cameras.some(camera => camera !== own &&
            camera.ipaddress === ipaddress));
        if (isUsed) {
            bridge.alert(textKey('Duplicate IPAddress.'));
        }
        return isUsed;
    },

    groupsEdited() {
        this.cameraList.sort(natsort);
        this.listEdited();
    },

    camerasEdited(group) {
        group.cameras.sort(zeb4func.ipSort);
        this.listEdited();
    },

    listEdited() {
        groupsSetting.touch();
        this.createGroupCameraList();
    }
});

// Orders groups by their names, runs of digits by their numbers. It goes by the letters' codes alone, so the order is
// the same in every language.
function natsort(a, b) {
    const [first, second] = [a, b].map(group => nameNumbers(group.groupname));
    const at = first.findIndex((number, index) => number !== (second[index] || 0));
    return at < 0 ? 0 : first[at] - (second[at] || 0);
}

function nameNumbers(name) {
    const pieces = name.split(/(\d+)/).map(piece => /^\d*$/.test(piece) ? [Number(piece)]
        : Array.from(piece, letter => letter.codePointAt(0)));
    return [].concat(...pieces);
}
