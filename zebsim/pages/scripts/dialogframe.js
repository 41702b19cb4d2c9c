'use strict';

// What the pages of the host's own dialogs share.

function byId(id) {
    return document.getElementById(id);
}

// It marks the text for `lupdate`.
function textKey(key) {
    return key;
}

// `bridge` is that of the dialog. What is thrown, which can be null too, is a line of the log or a box.
function dialogFrame(bridge) {
    const textOf = error => error && error.message ? error.message : String(error);
    return {
        begin(update) {
            bridge.update.connect(() => this.logged(update));
            zeb4func.disableDefaultShortcut();
            zeb4func.localize(bridge);
        },

        // An exception that left a function connected to a signal of the bridge would end the program.
        logged(work) {
            try {
                work();
            } catch (error) {
                bridge.userOperationErrorLog(textOf(error));
            }
        },

        guarded(work) {
            try {
                work();
            } catch (error) {
                bridge.alert(textOf(error));
            }
        },

        onClick(id, work) {
            byId(id).addEventListener('click', () => this.guarded(work));
        },

        applyStyle() {
            zeb4func.applyStyle(bridge);
            document.body.classList.toggle('dark', bridge.getStyle() === 'dark');
        }
    };
}
