// The keys of the table, by F1.
const F1 = 112;
const TABLE_KEYS = [
    [textKey('Arrows, Home, End, Page'), textKey('to another cell; with Ctrl to the first or last one')],
    [textKey('Space, Enter'), textKey('work the control of the cell, else select or unselect the row')],
    [textKey('F2'), textKey('into a number, a slider, a comment or the icons of plug-ins')],
    [textKey('Esc'), textKey('back to the cell; closes a list')],
    [textKey('Shift with arrows, Home, End, Page'), textKey('select rows')],
    [textKey('Shift+Space'), textKey('select or unselect the row')],
    [textKey('Ctrl+A'), textKey('select all connected rows that are listed')],
    [textKey('Ctrl+C'), textKey('copy the selected rows as text; all rows where none is selected')],
    [textKey('Menu key, Shift+F10'), textKey('what the right mouse button opens')],
    [textKey('Tab, Shift+Tab'), textKey('to the next button, or back')],
    [textKey('Space, Enter on Record or Cancel'), textKey('one press, until the key is let go')]
];

const keyHelp = {
    initialize() {
        document.addEventListener('keydown', event => {
            if (event.keyCode === F1) {
                event.preventDefault();
                guarded(() => this.open());
            }
        }, true);
    },

    open() {
        const box = $('#wren_keys');
        if (box.dialog('instance') === undefined) {
            box.html(`<table>${TABLE_KEYS.map(keyMarkup).join(' ')}</table>`);
            box.dialog(dialogOptions({
                title: translate('Keys of the table'),
                classes: { 'ui-dialog': 'keys' },
                buttons: [dialogButton(translate('Close'), 'close keys', () => box.dialog('close'))]
            }));
        }
        box.dialog('open');
    }
};

function keyMarkup([keys, what]) {
    const [head, text] = [translate(keys), translate(what)].map(escapeMarkup);
    return `<tr><th>${head}</th> <td>${text}.</td></tr>`;
}
