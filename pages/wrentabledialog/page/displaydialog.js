const DISPLAY_LIST = 'wrentabledialog_displaySettings_list';

// The dialog in which the user chooses what the table shows. Each box acts at once; Cancel takes all of them back.
Object.assign(wrentabledialog_obj, {
    initializeDisplaySettings() {
        onClick('#wrentabledialog_displaySettings', () => {
            this.preventSelect = false;
            if (displayDialog('instance') === undefined) {
                this.createDisplayDialog();
            }
            this.refreshDisplayCheckBox();
            displayDialog('open');
        });
    },

    createDisplayDialog() {
        this.createDisplaySettingElement();
        displayDialog(dialogOptions({
            title: translate('WREN Display settings'),
            buttons: [
                dialogButton(translate('OK'), 'ok', () => {
                    this.displaySettingDialogResult = true;
                    displayDialog('close');
                }),
                dialogButton(translate('Cancel'), 'close', () => displayDialog('close')),
                dialogButton(translate('Reset'), 'caution', () => guarded(() => {
                    this.resetDisplaySettings();
                    this.refreshAllControls();
                }))
            ],
            open: () => {
                this.displaySettingDialogResult = false;
                this.tempDisplaySetting = DISPLAY.map(shows => wrentabledialog.getPrefBool(shows.key));
            },
            close: () => guarded(() => this.endDisplayDialog())
        }));
    },

    createDisplaySettingElement() {
        DISPLAY.forEach(({ id, group }) => {
            const line = document.createElement('li');
            const box = Object.assign(document.createElement('input'), { type: 'checkbox', id });
            const label = Object.assign(document.createElement('label'), { htmlFor: id, textContent: translate(id) });
            box.className = 'display_checkbox';
            line.appendChild(box);
            line.appendChild(label);
            document.getElementById(DISPLAY_LIST + (group ? '_' + group : '')).appendChild(line);
            onSwitch(box, on => {
                wrentabledialog.setPrefBool(displayKey(id), on, false);
                this.refreshAllControls();
            });
        });
    },

    endDisplayDialog() {
        if (!this.displaySettingDialogResult) {
            DISPLAY.forEach(({ key }, index) =>
                wrentabledialog.setPrefBool(key, this.tempDisplaySetting[index], false));
        }
        this.refreshAllControls();
    },

    // As the user does who cancels it.
    cancelDisplayDialog() {
        if (isDisplayDialogOpen()) {
            displayDialog('close');
        }
    },

    // Somebody else has changed a key.
    followDisplayDialog() {
        if (isDisplayDialogOpen()) {
            this.refreshDisplayCheckBox();
        }
    },

    refreshDisplayCheckBox() {
        DISPLAY.forEach(({ id, key }) => {
            document.getElementById(id).checked = wrentabledialog.getPrefBool(key);
        });
    },

    resetDisplaySettings() {
        DISPLAY.forEach(({ id, key }) => {
            wrentabledialog.setPrefBool(key, true, false);
            document.getElementById(id).checked = true;
        });
    },

    // The buttons of every dialog of the page but that of the keys, which changes nothing.
    disableDisplayCheckBox() {
        const elements = '.display_checkbox, .ui-dialog-buttons:not(.keys)';
        const off = wrentabledialog.isFileMode();
        reasons.grey(elements, off, translated(controls['FILE-MODE'].why));
        // Escape goes to what has the keyboard.
        if (off && document.activeElement.matches(elements)) {
            $(document.activeElement).closest('.ui-dialog').find('.ui-dialog-titlebar-close').trigger('focus');
        }
    }
});

function isDisplayDialogOpen() {
    return displayDialog('instance') !== undefined && displayDialog('isOpen');
}

function displayDialog(option) {
    return $('#wrentabledialog_displaySettings_dialog').dialog(option);
}
