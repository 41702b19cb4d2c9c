// What the user does in the list of custom information.
const CUSTOM_PAGE = 4; // rows of a page

function listenToCustomList() {
    const { box } = customList;
    box.tabIndex = 0;
    box.addEventListener('mousedown', event => onCustomPress(event), true);
    box.addEventListener('dblclick', event => onCustomDoubleClick(event), true);
    box.addEventListener('keydown', event => onCustomKey(event), true);
    box.addEventListener('keypress', event => onCustomLetter(event), true);
    box.addEventListener('contextmenu', event => onCustomMenu(event), true);
    textTip(box, '.wren_text', text => text.scrollWidth > text.clientWidth ? text.textContent : '');
}

// w2ui would begin a rubber band.
function onCustomPress(event) {
    const place = customList.placeOf(event.target);
    if (!place) {
        return;
    }
    event.stopPropagation();
    if (event.target === customEditor.input) {
        return;
    }
    event.preventDefault();
    const isTaken = customEditor.commit();
    customList.box.focus();
    const selected = customList.selected().map(item => item.recid);
    if (event.button !== 0) {
        customList.choose(selected.includes(place.recid) ? selected : [place.recid], place);
    } else if (event.shiftKey) {
        customList.extend(place);
    } else if (!event.ctrlKey && !event.metaKey) {
        customList.choose([place.recid], place);
    } else {
        const others = selected.filter(recid => recid !== place.recid);
        customList.choose(others.length < selected.length ? others : selected.concat(place.recid), place);
    }
    // The end of an edit may have drawn the rows anew; then no click comes.
    if (isTaken && event.button === 0 && event.target.type === 'checkbox') {
        toggleCustomItem();
    }
}

function onCustomDoubleClick(event) {
    const place = customList.placeOf(event.target);
    if (place && event.target !== customEditor.input && CUSTOM_COLUMNS[place.column] !== 'display') {
        customEditor.open(place);
    }
}

// A letter in the list begins a new text in the current cell.
function onCustomLetter(event) {
    const letter = event.charCode >= 32 && !event.ctrlKey && !event.altKey && !event.metaKey;
    if (event.target === customList.box && letter && CUSTOM_COLUMNS[customList.current.column] !== 'display') {
        event.preventDefault();
        customEditor.open(customList.current, String.fromCodePoint(event.charCode));
    }
}

function onCustomKey(event) {
    if (event.target === customEditor.input) {
        onCustomEditorKey(event);
    } else if (event.target === customList.box && customEditor.isOfRefusedText()) {
        logUnused('not taken', 'TextBox', 'wren_custom_editor', event.key);
        event.preventDefault();
        event.stopPropagation();
    } else if (event.target === customList.box && !wrentabledialog_obj.gridLock) {
        const work = customListKey(event);
        if (work) {
            event.preventDefault();
            event.stopPropagation();
            guarded(work);
        }
    }
}

// What a key does in the list; nothing for another one.
function customListKey(event) {
    const { current } = customList;
    const isSwitch = CUSTOM_COLUMNS[current.column] === 'display';
    const step = customStep(event.keyCode);
    if (step) {
        return () => moveInCustomList(step, event.shiftKey);
    }
    return {
        [KEY.ENTER]: isSwitch ? toggleCustomItem : editCustomItem,
        [F2]: isSwitch ? toggleCustomItem : editCustomItem,
        [KEY.SPACE]: isSwitch && toggleCustomItem,
        [KEY.DELETE]: deleteCustomItems,
        [MENU_KEY]: openCustomMenu,
        [F10]: event.shiftKey && openCustomMenu,
        65: event.ctrlKey && selectAllCustomItems
    }[event.keyCode];
}

function editCustomItem() {
    customEditor.open(customList.current);
}

function deleteCustomItems() {
    if (wrentabledialog.getPrefBool(PREF_KEY_WREN_DISPLAY_CUSTOM_SETTINGS)) {
        wrentabledialog_obj.deleteCustomInfoRecord();
    }
}

function openCustomMenu() {
    customMenu.openAt(customList.current.recid);
}

function selectAllCustomItems() {
    customList.choose(customList.records().map(item => item.recid), customList.current);
}

// Rows and columns from the current cell; null for a key that does not move.
function customStep(key) {
    const end = customList.records().length;
    return {
        [KEY.UP]: [-1, 0],
        [KEY.DOWN]: [1, 0],
        [KEY.PAGE_UP]: [-CUSTOM_PAGE, 0],
        [KEY.PAGE_DOWN]: [CUSTOM_PAGE, 0],
        [KEY.HOME]: [-end, 0],
        [KEY.END]: [end, 0],
        [KEY.LEFT]: [0, -1],
        [KEY.RIGHT]: [0, 1]
    }[key] || null;
}

function moveInCustomList([rows, columns], extend) {
    const records = customList.records();
    const line = Math.max(0, Math.min(customList.indexOf(customList.current.recid) + rows, records.length - 1));
    const column = Math.max(0, Math.min(customList.current.column + columns, CUSTOM_COLUMNS.length - 1));
    const { recid } = records[line];
    if (extend) {
        customList.extend({ recid, column });
    } else {
        customList.choose([recid], { recid, column });
    }
    customList.bringIntoView(recid);
}

function toggleCustomItem() {
    const { recid, column } = customList.current;
    const item = customList.item(recid);
    item.display = !item.display;
    customList.drawCell(recid, column);
}

function onCustomEditorKey(event) {
    const { recid, column } = customEditor.place;
    const back = event.shiftKey ? -1 : 1;
    const moves = {
        [KEY.TAB]: () => nextCustomCell(recid, column, back),
        [KEY.ENTER]: () => customCellBeside(recid, column, back),
        [KEY.UP]: () => customCellBeside(recid, column, -1),
        [KEY.DOWN]: () => customCellBeside(recid, column, 1)
    };
    if (event.keyCode === KEY.ESCAPE) {
        customEditor.cancel();
    } else if (event.keyCode === 65 && event.ctrlKey) { // the grid keeps texts from being marked
        customEditor.input.select();
    } else if (moves[event.keyCode]) {
        const isTaken = guarded(() => customEditor.commit());
        const next = isTaken && moves[event.keyCode]();
        if (next) {
            customEditor.open(next);
        } else if (isTaken && event.keyCode === KEY.TAB) {
            return; // the key leaves the list
        }
    } else {
        return;
    }
    event.preventDefault();
    event.stopPropagation();
}

// The next text, or the one before, in the order of reading; null at the ends of the list.
function nextCustomCell(recid, column, step) {
    const next = column + step;
    if (next >= 0 && next < CUSTOM_TEXTS.length) {
        return { recid, column: next };
    }
    return customCellBeside(recid, step > 0 ? 0 : CUSTOM_TEXTS.length - 1, step);
}

function customCellBeside(recid, column, step) {
    const item = customList.records()[customList.indexOf(recid) + step];
    return item ? { recid: item.recid, column } : null;
}

function onCustomMenu(event) {
    const place = customList.placeOf(event.target);
    if (place && event.target !== customEditor.input) {
        event.preventDefault();
        customMenu.open(place.recid, event.clientX, event.clientY);
    }
}
