// The slider of a low light cell. It is plain markup until it is touched, and is so again when it is let go. It runs
// against the list of shutter speeds, and while it is moved the drop-down of speeds beside it follows.
const lowLightSlider = {
    held: null, // what is being moved: its cell, the keys it stands for, the list of speeds

    isHeld(cell) {
        return this.held !== null && (this.held.cell === cell || this.held.shutter === cell);
    },

    // To be called when a button or a key goes down on a slider, before the slider hears of it.
    hold(view, row, cell, byMouse) {
        if (this.isHeld(cell)) {
            return;
        }
        this.letGo();
        const batch = row === view.batch;
        const record = view.recordOf(row);
        if (!record) {
            return;
        }
        this.held = {
            view,
            cell,
            batch,
            keys: batch ? connectedKeys(view) : [row.key],
            speeds: record.shutterSpeeds || [],
            shutter: row.cells.find(other => other.field === 'shutterSpeed') || null,
            moving: false
        };
        // A press on the handle is no wish to move it.
        cell.parts.handle.classList.toggle('ui-state-hover', byMouse);
        $(cell.parts.slider).slider(Object.assign(SliderProperty(0), {
            disabled: false,
            min: 0,
            max: sliderMax(record),
            step: 1,
            value: sliderValue(record),
            start: () => this.start(),
            slide: (event, ui) => this.follow(ui.value),
            stop: (event, ui) => guarded(() => this.finish(ui.value))
        }));
        cell.parts.handle.tabIndex = -1; // the widget makes it a stop of Tab
    },

    start() {
        this.held.moving = true;
        wrentabledialog.stopAutoUpdate();
    },

    follow(value) {
        const { cell, shutter, speeds } = this.held;
        showSlider(cell, value, speeds.length - 1);
        if (shutter) {
            showChoice(shutter, speedAt(speeds, value), false);
        }
    },

    finish(value) {
        const held = this.held;
        held.moving = false;
        try {
            this.letGo();
            const speed = speedAt(held.batch ? this.batchSpeeds(held.view) : held.speeds, value);
            if (speed) {
                wrentabledialog.setShutterSpeed(held.keys, speed);
            }
        } finally {
            wrentabledialog.startAutoUpdate();
        }
    },

    // Of the camera that the batch row stands for.
    batchSpeeds(view) {
        const record = view.newest.get(attention.batchKey());
        return record ? record.shutterSpeeds : [];
    },

    // Makes the slider plain again. One that is let go while it moves is cut off: nothing is sent.
    letGo() {
        const held = this.held;
        if (!held) {
            return;
        }
        this.held = null;
        try {
            makePlain(held.cell);
            if (held.shutter) {
                held.shutter.forget();
            }
        } finally {
            if (held.moving) {
                wrentabledialog.startAutoUpdate();
            }
        }
    }
};

// Takes the widget away, and with it what it wrote to the elements. It takes its handle along.
function makePlain(cell) {
    const { slider, handle } = cell.parts;
    const { content, parts } = templateOf(cell.kind, cell.short);
    const plain = content.getElementsByTagName('*');
    keepingFocus(handle, () => {
        $(slider).slider('destroy');
        slider.className = plain[parts.slider].className;
        handle.className = plain[parts.handle].className;
        slider.appendChild(handle);
    });
    cell.forget();
}

// When the keyboard goes elsewhere, or the whole window loses it, the end of a move would never be heard of.
window.addEventListener('blur', event => {
    const held = lowLightSlider.held;
    if (held && (event.target === window || event.target === held.cell.parts.handle)) {
        logged(() => lowLightSlider.letGo());
    }
}, true);

function sliderMax(record) {
    return Math.max((record.shutterSpeeds || []).length - 1, 0);
}

// A speed that is not in the list leaves the slider at its right end.
function sliderValue(record) {
    const values = (record.shutterSpeeds || []).map(speed => speed.value);
    return Math.min(sliderMax(record) - values.lastIndexOf(record.shutterSpeed), sliderMax(record));
}

function speedAt(speeds, value) {
    const speed = speeds[speeds.length - 1 - value];
    return speed ? speed.value : '';
}

function showSlider(cell, value, max) {
    cell.text('result', String(value));
    cell.attribute('handle', 'style', `margin-left: calc(${max > 0 ? value * 100 / max : 0}% - 5px)`);
}
