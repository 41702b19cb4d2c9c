// Enter that is held is one press, or it would accept and open a dialog in turn. The engine's `repeat` is not reliable,
// and a message box keeps the release for itself.
let isEnterDown = false;

document.addEventListener('keydown', event => {
    if (event.keyCode === KEY.ENTER && isEnterDown) {
        event.preventDefault();
        event.stopPropagation();
    }
    isEnterDown = isEnterDown || event.keyCode === KEY.ENTER;
}, true);
document.addEventListener('keyup', event => { isEnterDown = isEnterDown && event.keyCode !== KEY.ENTER; }, true);
window.addEventListener('blur', () => { isEnterDown = false; });
