// The column of the plug-in tabs: an icon for each image plug-in of the camera.
COLUMNS.plugin = {
    caption: () => translate('Plugin'),
    size: '50%',
    align: 'left',
    needs: ['plugins'],
    still: true,
    empty: isOff,
    text: record =>
        record.plugins.filter(plugin => plugin.effective).map(plugin => pluginTitle(plugin.name)).join(', '),
    why: (record, status) => status.whyBlocked, // armed cameras take them
    markup: `<div id="effects" dockey>
        <div class="flexWrapper wren_effect_icons" part="icons" id="wren_{short}_effect_icons_" dockey></div>
        </div>`,
    tick(cell, record, status) {
        const plugins = record.plugins || [];
        const list = JSON.stringify([record.key, plugins.map(plugin => [plugin.name, plugin.okpattern])]);
        if (cell.icons !== list) { // a touch by the user leaves them, and the keyboard in them
            drawIcons(cell, record.key, plugins);
            cell.icons = list;
        }
        plugins.forEach(plugin => {
            const icon = iconOf(plugin.name);
            cell.property('box ' + icon, 'checked', plugin.effective);
            cell.flag('box ' + icon, 'disabled', !plugin.enable);
            cell.barPart('item ' + icon, plugin.enable ? ''
                : translated(textKey('The camera does not take this plug-in now.')));
            cell.attribute('label ' + icon, 'cursorDisable', String(status.disabled));
        });
    },
    // The icons of the other plug-in tab have the same ids, so that a label would press whichever comes first.
    press(cell, event) {
        const label = event.target.closest('label[plgName]');
        if (label) {
            event.preventDefault();
            const box = cell.parts['box ' + label.getAttribute('plgName')];
            if (!box.disabled) {
                box.checked = !box.checked;
                box.dispatchEvent(new Event('change', { bubbles: true }));
            }
        }
    },
    enter: cell => iconBoxes(cell)[0],
    key(key, cell, event) {
        const boxes = iconBoxes(cell);
        const now = boxes.indexOf(event.target);
        const next = { [KEY.LEFT]: now - 1, [KEY.RIGHT]: now + 1, [KEY.HOME]: 0, [KEY.END]: boxes.length - 1 };
        if (next[event.keyCode] !== undefined) {
            (boxes[next[event.keyCode]] || event.target).focus();
        } else if (event.keyCode === KEY.ENTER) {
            event.target.click();
        } else if (isMenuKey(event)) {
            const { left, bottom } = event.target.parentNode.getBoundingClientRect();
            this.menu(key, event.target.nextElementSibling, {
                screenX: window.screenX + Math.round(left),
                screenY: window.screenY + Math.round(bottom)
            });
        } else {
            return false;
        }
        return true;
    },
    change(key, box) {
        if (wrentabledialog_obj.isBlocked()) {
            box.checked = !box.checked;
        } else {
            wrentabledialog.togglePlugin([key], pluginOf(box), box.checked);
        }
    },
    menu(key, element, event) {
        const label = element.closest('label[plgName]');
        if (label && !wrentabledialog_obj.isBlocked()) {
            wrentabledialog.effectContextMenu(key, pluginOf(label), event.screenX, event.screenY);
        }
        return label !== null;
    }
};

// Those that can be used.
function iconBoxes(cell) {
    return Array.from(cell.parts.icons.querySelectorAll('input:not([disabled])'));
}

function pluginTitle(name) {
    return translated('p_' + name);
}

function pluginOf(element) {
    return plugin_obj.getPluginName(element.getAttribute('plgName'));
}

// The name of a plug-in's picture; one that the host has no picture for goes by its own name.
function iconOf(name) {
    return Object.prototype.hasOwnProperty.call(pluginIcons, name) ? pluginIcons[name] : name;
}

function drawIcons(cell, key, plugins) {
    cell.forget();
    cell.parts.icons.textContent = '';
    cell.parts = { icons: cell.parts.icons };
    plugins.forEach(plugin => doAccept(cell, key, iconOf(plugin.name), plugin.name, plugin.okpattern));
    wrentabledialog_obj.iconsDrawn = true;
}

// Adds an icon to the cell that has it not yet.
function doAccept(cell, key, icon, name, isOkPat) {
    if (cell.parts['box ' + icon]) {
        return;
    }
    const id = `${icon}_${key}`;
    const box = cell.parts['box ' + icon] = iconPart('input',
        { type: 'checkbox', id, checked: '', tabindex: -1, plgName: icon, dockey: key });
    // Such a plug-in changes the images only when its dialog is left by OK.
    if (isOkPat) {
        box.setAttribute('plgPat', 'OK');
    }
    const label = cell.parts['label ' + icon] = iconPart('label',
        { class: 'localize', for: id, key: 'p_' + name, plgName: icon, dockey: key });
    label.title = label.textContent = pluginTitle(name);
    const item = cell.parts['item ' + icon] = iconPart('div', { class: 'item', dockey: key });
    item.appendChild(box);
    item.appendChild(label);
    cell.parts.icons.appendChild(item);
}

function iconPart(tag, attributes) {
    const element = document.createElement(tag);
    Object.keys(attributes).forEach(name => element.setAttribute(name, attributes[name]));
    return element;
}
