const TYPING_MS = 1000; // what is typed sooner goes on with what was typed before

// Keys of an open drop-down that its widget does not know: the ends, a page, and what an entry begins with. A reader
// hears the entry that they have come to.
function listenToListKeys(sumo) {
    const { select, ul } = sumo;
    let typed = { text: '', when: 0 };
    const entries = () => ul.children('li.opt:not(.disabled)').get();
    const present = () => entries().findIndex(entry => entry.classList.contains('sel'));
    const follow = () => entries().forEach(entry =>
        setMark(entry, 'current', ul.is(':visible') && entry.classList.contains('sel') ? '' : null));
    const moveTo = line => {
        const entry = entries()[Math.max(0, Math.min(line, entries().length - 1))];
        ul.children('.sel').removeClass('sel');
        entry.classList.add('sel');
        ul.get(0).scrollTop = entry.offsetTop - ul.height() / 2;
    };
    ul.attr('role', 'listbox').children('li').attr('role', 'option');
    // The widget opens a list anew by the key that has chosen in it, and knows no space.
    let wasOpen = false;
    select.get(0).addEventListener('keydown', () => { wasOpen = sumo.is_opened; }, true);
    select.on('keydown', event => {
        const now = present();
        if (wasOpen && event.keyCode === KEY.SPACE) {
            ul.children('.sel').trigger('click');
        }
        if (wasOpen && PRESSING_KEYS.includes(event.keyCode)) {
            sumo.hideOpts();
        } else if (event.keyCode === KEY.SPACE) {
            sumo.setOnOpen();
        }
        const line = { [KEY.HOME]: 0, [KEY.END]: Infinity, [KEY.PAGE_UP]: now - 8, [KEY.PAGE_DOWN]: now + 8 };
        if ([KEY.UP, KEY.DOWN].includes(event.keyCode) || line[event.keyCode] !== undefined) {
            typed = { text: '', when: 0 }; // what is typed now begins anew
        }
        if (line[event.keyCode] !== undefined && now >= 0) {
            event.preventDefault();
            moveTo(line[event.keyCode]);
        }
        window.setTimeout(follow, 0);
    });
    select.on('keypress', event => {
        const letter = String.fromCharCode(event.which).toLowerCase();
        const text = event.timeStamp - typed.when < TYPING_MS ? typed.text + letter : letter;
        typed = { text, when: event.timeStamp };
        const line = entries().findIndex(entry => entry.textContent.trim().toLowerCase().startsWith(text));
        if (line >= 0) {
            moveTo(line);
            follow();
        }
    });
    window.setTimeout(follow, 0);
}
