// Texts that are longer than their place stand whole in a tip.
let tipOwner = null;
let tipText = () => '';

function textTip(box, items, textOf) {
    $(box).tooltip({
        items,
        content() {
            return escapeMarkup(textOf(this));
        },
        open: event => {
            tipOwner = event.originalEvent.target.closest(items);
            tipText = textOf;
        },
        close: () => { tipOwner = null; },
        hide: false
    });
}

// Shows the text as it is by now.
function followTip() {
    const shown = document.querySelector('.ui-tooltip-content');
    const text = shown && document.contains(tipOwner) ? tipText(tipOwner) : '';
    if (text !== '') {
        setText(shown, text);
    } else {
        closeTip();
    }
}

function closeTip() {
    if (tipOwner) {
        $(tipOwner).trigger('mouseleave');
    }
}
