// Dialogs over the page, as large as what stands in them.

function dialogOptions(options) {
    return Object.assign({
        autoOpen: false,
        modal: true,
        resizable: false,
        draggable: false,
        width: 'auto',
        height: 'auto',
        closeText: translate('Close')
    }, options);
}

// `word` is what the style sheet knows it by.
function dialogButton(text, word, click) {
    return { text, class: 'ui-dialog-buttons ' + word, click };
}
