// Texts that are longer than their place stand whole in a tip.
const REST_MS = 400; // so long the pointer stays on what it is meant for
let tipOwner = null;
let tipText = () => '';

// `isAsked` tells of an element whether its text has to be asked for: then it is when the pointer rests on it.
function textTip(box, items, textOf, isAsked = () => false) {
    $(box).tooltip({
        items,
        content(respond) {
            if (!isAsked(this)) {
                return escapeMarkup(textOf(this));
            }
            window.setTimeout(() => {
                if ($(this).data('ui-tooltip-open')) {
                    respond(escapeMarkup(textOf(this)));
                }
            }, REST_MS);
            return '';
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
