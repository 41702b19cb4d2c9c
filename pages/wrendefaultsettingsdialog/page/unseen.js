// A number that was typed may be brought into its limits by the very press that uses it. Nobody has seen it then, so
// that press only shows it.
let isUnseen = false;

['mousedown', 'keydown', 'keyup'].forEach(type => document.addEventListener(type, () => { isUnseen = false; }, true));

// Answers whether there was one, which is seen from here on.
function wasUnseen() {
    const was = isUnseen;
    isUnseen = false;
    return was;
}

function onSeenPress(id, work) {
    onClick('#' + id, () => pressSeen(document.getElementById(id), work));
}

function pressSeen(button, work) {
    if (wasUnseen()) {
        refuse(button);
    } else {
        work();
    }
}

function refuse(button) {
    refusePress(button, button.textContent);
}
