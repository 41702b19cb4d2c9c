// What files are called: the parts that are typed, and the whole for the chosen camera.

const DETAILS = ['name', 'number', 'text'];

const saveNames = {
    folder: '', // of the chosen recording

    begin() {
        this.fillDetails();
        savePage.onClick('browse', () => this.browse());
        savePage.onClick('custom', () => this.open(() => savefile.editCustom(false)));
        Array.from(document.querySelectorAll('[data-digits]')).forEach(button => {
            const slot = `numberSetting4${button.getAttribute('data-digits')}`;
            button.addEventListener('click', () => savePage.guarded(() => this.open(() => savefile[slot]())));
        });
    },

    // All orders of some of them.
    fillDetails() {
        const labels = {
            name: translate('Name'), number: translate('Number'),
            text: translate('Own text')
        };
        const orders = rest => [[]].concat(...rest.map(one =>
            orders(rest.filter(other => other !== one)).map(order => [one].concat(order))));
        orders(DETAILS).filter(order => order.length > 0).forEach(order => {
            const option = document.createElement('option');
            option.value = order.join(',');
            option.textContent = order.map(detail => labels[detail]).join(', ');
            byId('details').appendChild(option);
        });
    },

    // The cameras whose custom information can stand in the names of all.
    update() {
        const list = byId('custom_camera');
        const cameras = saveBridge.getDeviceInfoList(false).map(device => [device.key, device.cameraname]);
        if (list.getAttribute('data-cameras') === JSON.stringify(cameras)) {
            return;
        }
        list.setAttribute('data-cameras', JSON.stringify(cameras));
        list.textContent = '';
        cameras.forEach(([key, name]) => {
            const option = document.createElement('option');
            option.value = key;
            option.textContent = name;
            list.appendChild(option);
        });
        list.value = saveOptions.stored('filenameusecustomfromtargetkey', 'int');
    },

    open(dialog) {
        dialog();
        savePage.update();
    },

    browse() {
        const folder = savefile.selectFolder(saveOptions.stored('dir', 'string'));
        if (folder !== '') {
            saveOptions.fill('dir', folder);
        }
    },

    show() {
        ['GroupDir', 'SubDir', 'FileName'].forEach(name => {
            Array.from(document.querySelectorAll(`[data-number="${name}"]`)).forEach(element => {
                element.textContent = savefile[`addNumber4${name}`]();
            });
        });
        Array.from(document.querySelectorAll('[data-time]')).forEach(element => {
            const format = saveOptions.value(element.getAttribute('data-time'));
            element.textContent = format === '' ? '' : savefile.addDateTime(format);
        });
        byId('path').textContent = this.path();
        byId('free').textContent = savefile.getFreeSpace(this.folder || saveOptions.stored('dir', 'string'));
    },

    // Of the first file of the chosen recording; the number of its frame is left open.
    path() {
        const target = saveTargets.named();
        if (saveTargets.isThere && !target) {
            return '';
        }
        if (target) {
            saveBridge.setSelectDocKey(target.dockey);
            saveBridge.setSelectPartitionNo(target.partitionno);
        }
        const group =
            saveBridge.getExportGroupDir(saveBridge.getSelectDocKey(), saveBridge.getSelectPartitionNo());
        const folders = [saveBridge.getExportPath(), group, saveBridge.getExportSubDir()].filter(part => part !== '');
        this.folder = saveBridge.getPrefString('save/substitutefolder') || folders.join('/');
        const folder = this.folder === '' ? '' : `${this.folder}/`.replace(/\/\/+/g, '/');
        return folder + saveBridge.getExportFile() + this.ending();
    },

    ending() {
        const format = saveOptions.value('format');
        const suffix = { jpeg: 'jpg', tiff: 'tif' }[format] || format;
        const isOneFile = VIDEO_KINDS.indexOf(format) >= 0 || saveFamily === 'S' ||
            (format === 'tiff' && saveOptions.value('tiff/multipage') === true);
        const digits = saveOptions.stored('filenameseqdigits', 'int');
        return (isOneFile ? '' : `_${'#'.repeat(digits)}`) + `.${suffix}`;
    }
};
