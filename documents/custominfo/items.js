// What an item of custom information may be, for every page in which one is typed.

const CUSTOM_TEXTS = ['name', 'value', 'unit'];
const MAX_CUSTOM_TEXT = 256;
// eslint-disable-next-line max-len -- a key stands in one piece
const WRONG_LENGTH = textKey('Input the Item name and the Value at range of 1-256 character.Input the Unit at range of 0-256 character.');
const HAS_TAG = textKey('Tags cannot be registered.');
const DOUBLED_NAME = textKey('Item name is duplicated. Please change to another item name.');

function isBlankItem(item) {
    return CUSTOM_TEXTS.every(field => item[field] === '');
}

// Why an item can't have that text there; empty when it can.
function faultOfText(field, text) {
    if (text.length > MAX_CUSTOM_TEXT || (field !== 'unit' && text === '')) {
        return WRONG_LENGTH;
    }
    return /<.*?>/.test(text) ? HAS_TAG : '';
}

// The first fault of an item among all of them, of which it may be one; empty when there is none.
function faultOfItem(item, items) {
    const faults = CUSTOM_TEXTS.map(field => faultOfText(field, item[field]));
    if (faults.includes(WRONG_LENGTH)) {
        return WRONG_LENGTH;
    }
    if (faults.includes(HAS_TAG)) {
        return HAS_TAG;
    }
    return items.some(other => other !== item && other.name === item.name) ? DOUBLED_NAME : '';
}
