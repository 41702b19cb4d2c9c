// Writes to elements that other code writes too: only where the element differs.
function showElement(element, shown) {
    if (element.hidden === shown) {
        element.hidden = !shown;
    }
}

function setText(node, text) {
    if (node.textContent !== text) {
        node.textContent = text;
    }
}

function setClass(element, names) {
    if (element.className !== names) {
        element.className = names;
    }
}

function setStyle(element, name, value) {
    if (element.style[name] !== value) {
        element.style[name] = value;
    }
}

// Null takes the attribute away.
function setMark(element, name, value) {
    if (value === null) {
        element.removeAttribute(name);
    } else if (element.getAttribute(name) !== value) {
        element.setAttribute(name, value);
    }
}

// None of the options is chosen when `value` is not among them.
function chooseOption(select, value) {
    const index = Array.from(select.options).findIndex(option => option.value === value);
    if (select.selectedIndex !== index) {
        select.selectedIndex = index;
    }
}
