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
