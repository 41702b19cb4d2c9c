// The dialog in which a camera's comment is written, or that of all cameras at once.
Object.assign(wrentabledialog_obj, {
    initializeCommentDialog() {
        const box = document.getElementById('wren_comment_textarea');
        box.setAttribute('aria-label', translate('Comment'));
        // While it has the keyboard, the host's keys are letters.
        box.addEventListener('focus', () => wrentabledialog.setTextBoxFocusState(true));
        box.addEventListener('blur', () => wrentabledialog.setTextBoxFocusState(false));
        const button = (text, word, work) => dialogButton(text, word, () => this.leaveCommentDialog(work));
        commentDialog(dialogOptions({
            title: translate('Comment'),
            buttons: [
                dialogButton(translate('OK'), 'ok', () => this.acceptComment(box.value)),
                button(translate('Cancel'), 'close', () => undefined),
                button(translate('Batch setting'), 'caution', () => {
                    const keys = this.commentOf.view.grid.records.map(record => record.key);
                    wrentabledialog.setComment(keys, box.value);
                })
            ]
        }));
    },

    // What was typed stays as long as nobody has it.
    acceptComment(text) {
        const { view, key, name } = this.commentOf;
        if (view.newest.has(key)) {
            this.leaveCommentDialog(() => wrentabledialog.setComment([key], text));
        } else {
            bridge.alert(withValues(textKey('%1 is not in the list.'), oneLine(name)));
        }
    },

    leaveCommentDialog(work) {
        guarded(work);
        commentDialog('close');
    },

    editComment(view, key) {
        const record = view.newest.get(key);
        const isOpen = record && record.connected && record.lock === false && record.comments !== undefined;
        if (!isOpen || this.isBlocked()) {
            return;
        }
        closeTip();
        if (commentDialog('instance') === undefined) {
            this.initializeCommentDialog();
        }
        this.commentOf = { view, key, name: record.cameraName || key };
        document.getElementById('wren_comment_textarea').value = record.comments || '';
        commentDialog('open');
    }
});

function commentDialog(option) {
    return $('#wrentabledialog_comment_dialog').dialog(option);
}
