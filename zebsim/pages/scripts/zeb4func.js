'use strict';

// What every page of the host uses: style, translation, control states, drop-downs, the log of user operations.

// Name of a control state -> its member of `getControlStatus`.
const CONTROL_STATES = {
    'LIVE-MODE': 'IsLiveMode',
    'MEMORY-MODE': 'IsMemoryMode',
    'FILE-MODE': 'IsFileMode',
    CTSREADY: 'IsCTSReady',
    READY: 'IsReady',
    RECORDING: 'IsRecording',
    'NOT-RECORDING': 'IsNotRecording',
    'RECORDING-ERROR': 'IsRecordingError',
    'BACKGROUND-SAVING': 'IsBgSaving',
    'NONE-DOCUMENT': 'IsNoneDocument',
    'NONE-WINDOW': 'IsNoneWindow',
    'EXIST-LOWLIGHT': 'ExistLowlight',
    'ALL-LOWLIGHT-ON': 'IsAllLowlightON',
    'ALL-LOWLIGHT-OFF': 'IsAllLowlightOFF',
    'LENS-CALIBRATION': 'IsLensCalibration',
    'CONFLICT-PARTITION': 'IsConflictPartition',
    'DIRECT-SAVING': 'IsDirectSaving',
    'AUTO-EXPOSURE-SETTING': 'IsAutoExposureSetting',
    'HW-TRIGGER-SETTING': 'IsHwTriggerSetting',
    'VARIABLE-SETTING': 'IsVariableSetting',
    TRACKING: 'IsTracking',
    'NODECOMMAND-SENDING': 'IsSendingNodeCommand',
    'IMAGE-ADJUSTING': 'IsAdjustingImage',
    'PIXEL-DEFECT-DETECTING': 'IsDetectingPixelDefect',
    'IMAGETRIGGER-DETECTING': 'IsImageTriggerDetecting',
    'IMAGETRIGGER-CAPTURING': 'IsImageTriggerCapturing',
    'OTHER-PLUGIN-OPEN': 'IsOtherPluginOpen',
    'WREN-ALL-LOCK-DEVICE': 'IsAllWrenLockDevice',
    'HIDE-TRIGGER-TEST': 'HideTriggerTest'
};

// Buttons that act when they are pressed. By then they may be disabled, and get no click.
const ACTS_AT_PRESS = '#timeline_rec_exec, #timeline_rec_cancel';

var zeb4func = {
    // element -> { state, own }: who wants it disabled, a control state or the page itself.
    disabledBy: new WeakMap(),
    // While control states are applied: element -> disabled, as the states so far have it.
    openStates: null,
    logMediator: null,
    loggedRoots: [],

    elementsOf: function (elements) {
        if (typeof elements !== 'string') {
            return $(elements).get();
        }
        if (/^#[\w-]+$/.test(elements)) {
            const element = document.getElementById(elements.slice(1));
            return element ? [element] : [];
        }
        return Array.from(document.querySelectorAll(elements));
    },

    applyStyle: function (mediator) {
        const dark = mediator.getStyle() === 'dark';
        const sheet = document.getElementById('ui-style');
        if (dark === (sheet !== null)) {
            return;
        }
        if (dark) {
            const link = document.createElement('link');
            link.id = 'ui-style';
            link.rel = 'stylesheet';
            link.href = 'qrc:/ui-core-dark.css';
            document.head.appendChild(link);
        } else {
            sheet.parentNode.removeChild(sheet);
        }
    },

    // Applies a table of control states, { NAME: { disabled, hidden, func } }, in the table's order: an element that a
    // state that is on lists is disabled or hidden, and stands enabled and shown otherwise. What a `func` disables or
    // enables overrides the states up to its own, not those that follow.
    setDisable: function (mediator, controls) {
        let status;
        try {
            status = JSON.parse(mediator.getControlStatus()) || {};
        } catch (error) {
            return;
        }
        const states = Object.keys(controls).map(function (name) {
            return Object.assign({ on: Boolean(status[CONTROL_STATES[name]]) }, controls[name]);
        });
        const elements = this.elementsOnce();
        const hidden = new Map();
        states.forEach(function (state) { zeb4func.list(hidden, elements, state.hidden, state.on); });
        hidden.forEach(function (hide, element) {
            if (element.classList.contains('zeb-hidden') !== hide) {
                element.classList.toggle('zeb-hidden', hide);
            }
        });
        const outer = this.openStates;
        const disabled = this.openStates = new Map();
        try {
            states.forEach(function (state) {
                zeb4func.list(disabled, elements, state.disabled, state.on);
                if (state.func) {
                    state.func(state.on);
                }
            });
        } finally {
            this.openStates = outer;
        }
        disabled.forEach(function (flag, element) { zeb4func.mark(element, 'state', flag); });
    },

    // Many states list the same selectors; each is looked up once.
    elementsOnce: function () {
        const found = new Map();
        return function (selector) {
            if (!found.has(selector)) {
                found.set(selector, zeb4func.elementsOf(selector));
            }
            return found.get(selector);
        };
    },

    // Adds what a state says of the elements it lists to `flags`.
    list: function (flags, elements, selectors, on) {
        (selectors || []).forEach(function (selector) {
            elements(selector).forEach(function (element) {
                if (on || !flags.has(element)) {
                    flags.set(element, on);
                }
            });
        });
    },

    // Disables or enables elements. One that a control state disables stays disabled.
    disable: function (elements, flag) {
        this.elementsOf(elements).forEach(function (element) {
            if (zeb4func.openStates) {
                zeb4func.openStates.set(element, flag);
            } else {
                zeb4func.mark(element, 'own', flag);
            }
        });
    },

    mark: function (element, who, flag) {
        const by = this.disabledBy.get(element) || { state: false, own: false };
        by[who] = flag;
        this.disabledBy.set(element, by);
        const disabled = by.state || by.own;
        if (element.hasAttribute('disabled') === disabled) {
            return;
        }
        if (disabled) {
            element.setAttribute('disabled', 'disabled');
        } else {
            element.removeAttribute('disabled');
        }
        if (element.sumo) {
            element.sumo.toggSumo(disabled);
        }
    },

    // Keys that the web view would take for itself: reload, back, print, and the like.
    disableDefaultShortcut: function () {
        document.addEventListener('keydown', function (event) {
            const typing = /^(INPUT|TEXTAREA)$/.test(event.target.tagName);
            const browserKey = event.keyCode >= 112 && event.keyCode <= 123;
            const browserChord = (event.ctrlKey || event.metaKey) && 'rpsnwfgu'.indexOf(event.key) >= 0;
            const arrow = event.keyCode === 37 || event.keyCode === 39;
            const back = event.keyCode === 8 && !typing || event.altKey && arrow;
            if (browserKey || browserChord || back) {
                event.preventDefault();
            }
        }, true);
    },

    localize: function (mediator) {
        this.elementsOf('.localize').forEach(function (element) {
            for (let node = element.firstChild; node; node = node.nextSibling) {
                const text = node.nodeType === Node.TEXT_NODE ? node.nodeValue.trim() : '';
                if (text) {
                    node.nodeValue = mediator.translate(text);
                }
            }
            if (element.getAttribute('title')) {
                element.title = mediator.translate(element.title);
            }
            if (element.tagName === 'INPUT' && element.value) {
                element.value = mediator.translate(element.value);
            }
        });
    },

    removeDummy: function () {
        this.elementsOf('.dummy').forEach(function (element) { element.parentNode.removeChild(element); });
    },

    // A line in the log of the page that has its operations logged.
    log: function (text) {
        if (this.logMediator) {
            this.logMediator.infoLog(text);
        }
    },

    // Writes a line for each operation of the user below the root, and one for each error of the page's scripts.
    enableUserOperationLog: function (mediator, rootSelector) {
        this.logMediator = mediator;
        this.updateUserOperationLogHandler(rootSelector);
        window.addEventListener('error', function (event) {
            mediator.userOperationErrorLog(event.message + ' (' + event.filename + ':' + event.lineno + ')');
        });
    },

    // Controls that come later are below the same root, so a root needs its listeners once.
    updateUserOperationLogHandler: function (rootSelector) {
        this.elementsOf(rootSelector).forEach(function (root) {
            const logged = zeb4func.loggedRoots.some(function (other) { return other.contains(root); });
            if (zeb4func.logMediator && !logged) {
                zeb4func.loggedRoots.push(root);
                ['mousedown', 'click', 'change'].forEach(function (type) {
                    root.addEventListener(type, function (event) { zeb4func.logOperation(event); }, true);
                });
            }
        });
    },

    logOperation: function (event) {
        const element = event.target.closest('a, button, input, select, textarea');
        if (!element) {
            return;
        }
        const control = zeb4func.controlName(element);
        const valued = /^(CheckBox|Radio|TextBox|ComboBox)$/.test(control);
        const done = valued ? 'change' : element.matches(ACTS_AT_PRESS) ? 'mousedown' : 'click';
        if (event.type !== done || event.button > 0) {
            return;
        }
        const checked = control === 'CheckBox' || control === 'Radio';
        const value = valued ? (checked ? element.checked : element.value) : '';
        // What stands in for an element names it so, as the open list of a drop-down.
        const id = element.id || element.getAttribute('data-id') || '';
        zeb4func.logMediator.userOperationLogWebView(document.URL, valued ? 'changed' : 'clicked', control, id,
            element.className, value);
    },

    controlName: function (element) {
        const kinds = { A: 'Link', BUTTON: 'Button', SELECT: 'ComboBox', TEXTAREA: 'TextBox' };
        const inputs = { button: 'Button', submit: 'Button', checkbox: 'CheckBox', radio: 'Radio' };
        return kinds[element.tagName] || inputs[element.type] || 'TextBox';
    },

    // Whether `text` is what one octet of an address may be.
    ipCheck: function (text) {
        return /^\d{1,3}$/.test(text) && Number(text) <= 255;
    },

    // Whether `text` is what one field of an address may hold: an octet or, with `dummy`, what stands in the fields of
    // the address of a camera that is none.
    inputIpCheck: function (text, dummy) {
        return this.ipCheck(text) || (dummy && text === '999');
    },

    // Puts objects in the order of the numbers in their `ipaddress`; what is no number comes first.
    ipSort: function (a, b) {
        const [first, second] = [a, b].map(function (item) {
            return item.ipaddress.split('.').map(function (part) { return /^\d+$/.test(part) ? Number(part) : -1; });
        });
        const at = first.findIndex(function (number, index) { return number !== second[index]; });
        return at < 0 ? first.length - second.length : at < second.length ? first[at] - second[at] : 1;
    },

    // The same data with the members of each object in the order of their names.
    hashSort: function (data) {
        if (Array.isArray(data)) {
            return data.map(function (item) { return zeb4func.hashSort(item); });
        }
        if (data === null || typeof data !== 'object') {
            return data;
        }
        const sorted = {};
        Object.keys(data).sort().forEach(function (name) { sorted[name] = zeb4func.hashSort(data[name]); });
        return sorted;
    }
};
