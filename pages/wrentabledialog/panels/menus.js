// The drop-down menus of the snapshot and save buttons, and the box of partitions, which is a window of its own. While
// one is open an overlay lies over the page, and takes the click that closes it.
Object.assign(wrentabledialog_obj, {
    initializeMenus() {
        $('.miscfuncs > button, #recording_partition_span_button').attr('aria-label', translate('More choices'));
        $('#wren-root-block').on('click', '.dummy', () => guarded(() => this.hideSelectBox()));
        $('.funcs-button li a').on('click', () => guarded(() => this.hideSelectBox()));
        $('#btn-save li a').on('click', event => {
            window.setTimeout(() => event.currentTarget.classList.remove('active'), 10);
        });
        $('.miscfuncs > button').on('click', event => guarded(() => this.toggleMenu(event.currentTarget)));
        document.addEventListener('keydown', event => guarded(() => this.onMenuKey(event)), true);
        $('#btn-recording_partition').on('click', event => guarded(() => this.showPartitions(event.currentTarget)));
    },

    toggleMenu(button) {
        const group = button.closest('.funcs-button');
        const list = button.nextElementSibling;
        const open = list.hidden;
        showElement(list, open);
        $(group).find('a.snapshot-file, a.save-files').removeClass('active');
        if (group.id === 'btn-snapshot') {
            this.isSnapshotListShown = open;
        }
        if (open) {
            this.appendDummy();
        } else {
            zeb4func.removeDummy();
        }
    },

    // The keyboard in an open menu. The box of partitions knows its keys by itself.
    onMenuKey(event) {
        const list = document.querySelector('.miscfuncs ul:not([hidden])');
        const entries = list ? Array.from(list.querySelectorAll('a')) : [];
        const now = entries.indexOf(document.activeElement);
        const next = {
            [KEY.END]: entries.length - 1,
            [KEY.HOME]: 0,
            [KEY.UP]: Math.max(now, 0) - 1,
            [KEY.DOWN]: now + 1
        }[event.keyCode];
        if (list && next !== undefined) {
            const entry = entries[(next + entries.length) % entries.length];
            entry.tabIndex = -1; // so that it can have the focus
            entry.focus();
        } else if (now >= 0 && event.keyCode === KEY.ENTER) {
            list.previousElementSibling.focus();
            entries[now].click();
        } else if (event.keyCode === KEY.ESCAPE && document.querySelector('p.dummy')) {
            if (list) {
                list.previousElementSibling.focus();
            }
            this.hideSelectBox();
        } else {
            return;
        }
        event.preventDefault();
        event.stopPropagation();
    },

    showPartitions(group) {
        if (group.querySelector('button').hasAttribute('disabled')) {
            return;
        }
        this.hideSelectBox();
        this.appendDummy();
        const spot = group.getBoundingClientRect();
        wrentabledialog.showLivePartition(Math.round(spot.left), Math.round(spot.top), Math.round(spot.width),
            Math.round(spot.height));
    },

    hideSelectBox() {
        wrentabledialog.hideSelectBox();
        Array.from(document.querySelectorAll('.miscfuncs ul')).forEach(list => showElement(list, false));
        this.isSnapshotListShown = false;
        zeb4func.removeDummy();
    },

    isShownSelectBox() {
        return this.isSnapshotListShown || wrentabledialog.isShownSelectBox();
    },

    // A menu does not outlast its button, which a state of the application or another mode takes away.
    closeLostMenus() {
        const lists = Array.from(document.querySelectorAll('.miscfuncs ul:not([hidden])'));
        const isLost = lists.some(list => isDisabled(list) || list.offsetWidth === 0);
        const partitions = document.getElementById('btn-recording_partition');
        if (isLost || (document.querySelector('p.dummy') && lists.length === 0 && partitions.offsetWidth === 0)) {
            this.hideSelectBox();
        }
    },

    // The box of partitions hides by itself too.
    removeIdleDummy() {
        if (!this.isShownSelectBox()) {
            zeb4func.removeDummy();
        }
    },

    appendDummy() {
        zeb4func.removeDummy();
        const dummy = document.createElement('p');
        dummy.className = 'dummy';
        document.getElementById('wren-root-block').appendChild(dummy);
    }
});
