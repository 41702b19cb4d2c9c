// What the user does to a page, and what becomes of it: an action that fails is shown, a press that is not taken too.
const KEY = $.ui.keyCode;
const PRESSING_KEYS = [KEY.SPACE, KEY.ENTER];
const REFUSAL_MS = 800; // for so long a button shows that it did not take a press

// Runs an action of the user; what it throws is shown.
function guarded(action) {
    try {
        return action();
    } catch (error) {
        bridge.alert(textOfError(error));
        return undefined;
    }
}

// Runs `work` at a click on an element that is not disabled.
function onClick(selector, work) {
    $(selector).on('click', event => {
        if (!isDisabled(event.currentTarget)) {
            guarded(work);
        }
    });
}

// Links know no such state by themselves. The entries of a menu have that of the button that opens it.
function isDisabled(element) {
    const list = element.closest('.miscfuncs ul');
    return (list ? list.previousElementSibling : element).hasAttribute('disabled');
}

// Shows for a moment that a press was not taken. `text` is what the button showed then.
function refusePress(button, text) {
    logUnused('not taken', 'Button', button.id, text);
    button.setAttribute('refused', '');
    window.setTimeout(() => button.removeAttribute('refused'), REFUSAL_MS);
}

// Runs `work` with the element when the main button, Space or Enter goes down on it. The second press of a double click
// is refused: it may already meet another meaning of the element, which nobody has read yet. A key that is held comes
// here once.
function onPress(selector, work) {
    $(selector).on('mousedown', event => {
        const button = event.currentTarget;
        if (!event.button && event.detail > 1) {
            refusePress(button, button.textContent);
        } else if (!event.button) {
            button.focus(); // it may be greyed by the press, before the engine gives it the keyboard
            guarded(() => work(button));
        }
    });
    $(selector).on('keydown', event => {
        if (PRESSING_KEYS.includes(event.keyCode)) {
            event.preventDefault();
            if (!isDisabled(event.currentTarget)) { // a greyed button keeps the keyboard
                guarded(() => work(event.currentTarget));
            }
        }
    });
}

// Runs `work` with the new state of a box that the user has switched.
function onSwitch(selector, work) {
    $(selector).on('change', event => guarded(() => work(event.currentTarget.checked)));
}

// Runs what the back end asked for. An exception that left a function connected to a signal of the bridge would end the
// program.
function logged(action) {
    try {
        action();
    } catch (error) {
        const line = error && error.line ? ` (line ${error.line})` : '';
        bridge.userOperationErrorLog(textOfError(error) + line);
    }
}

// A line in the log for what the user did that came to nothing.
function logUnused(how, control, id, value) {
    bridge.userOperationLogWebView(document.URL, how, control, id, '', value);
}

// Anything can be thrown, null too.
function textOfError(error) {
    return error && error.message ? error.message : String(error);
}
