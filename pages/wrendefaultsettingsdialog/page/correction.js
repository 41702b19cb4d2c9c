// A number that was typed may be brought into its limits by the very press that uses it. Nobody has seen it then, so
// that press only shows it.
let isCorrected = false; // this press has corrected a number

['mousedown', 'keydown', 'keyup'].forEach(type => {
    document.addEventListener(type, () => { isCorrected = false; }, true);
});

function noteCorrection() {
    isCorrected = true;
}

// Answers whether there was a correction, which is seen from here on.
function takeCorrection() {
    const was = isCorrected;
    isCorrected = false;
    return was;
}

// Runs `work` at a click on the button of that id, unless the press has corrected a number.
function onFinalPress(id, work) {
    onClick('#' + id, () => workUnlessCorrected(document.getElementById(id), work));
}

function workUnlessCorrected(button, work) {
    if (takeCorrection()) {
        refuse(button);
    } else {
        work();
    }
}

function refuse(button) {
    refusePress(button, button.textContent);
}
