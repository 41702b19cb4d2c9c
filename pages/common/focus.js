// Where the keyboard is in the page, and in a text; and where the mouse is.

// A widget moves the element that it is made of, or is taken from, and the engine then takes the keyboard away from it.
function keepingFocus(element, work) {
    const focused = document.activeElement === element;
    const caret = caretOf(element);
    work();
    if (focused && document.activeElement !== element) {
        element.focus();
        placeCaret(element, caret);
    }
}

// Where the caret of a text box stands; null for other elements.
function caretOf(element) {
    return element.matches('input[type="text"]') ? [element.selectionStart, element.selectionEnd] : null;
}

function placeCaret(element, caret) {
    if (caret) {
        element.setSelectionRange(caret[0], caret[1]);
    }
}

// The engine remembers the element under the mouse without keeping it: once that has been thrown away and collected,
// the program ends. So it is kept until the mouse is over another one.
const pointer = { over: null };
document.addEventListener('mouseover', event => { pointer.over = event.target; }, true);
