'use strict';

// Texts on their way to the page.

// Texts from cameras, files and users are text. Where one must pass through markup, it passes through here.
function escapeMarkup(text) {
    return String(text).replace(/[&<>"'`]/g, letter => `&#${letter.charCodeAt(0)};`);
}

// A key of the catalogues that is kept, or that another translates. It marks the text for `lupdate`.
function textKey(key) {
    return key;
}

// With a second key, whose text stands in place of the first one's `%1`.
function translate(...keys) {
    return bridge.translate(...keys);
}

// The data of a JSON reply; null when it is not an object.
function parseReply(text) {
    try {
        const data = JSON.parse(text);
        return typeof data === 'object' ? data : null;
    } catch (error) {
        return null;
    }
}
