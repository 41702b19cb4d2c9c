// The lines of the last result, over the table. They can be selected and copied; a name leads to its camera's row.
const resultList = {
    result: null,
    verdict: '', // the only one that is listed; empty for all

    initialize() {
        this.box().addEventListener('click', event => guarded(() => this.press(event.target)));
        document.addEventListener('keydown', event => {
            if (event.keyCode === KEY.ESCAPE && !event.target.matches('input, textarea')) {
                this.close();
            }
        });
    },

    box() {
        return document.getElementById('wren_results');
    },

    press(element) {
        const filter = element.closest('[verdict]');
        const name = element.closest('[rowkey]');
        if (filter) {
            this.filter(filter.getAttribute('verdict'));
        } else if (name) {
            this.lead(name.getAttribute('rowkey'));
        } else if (element.closest('.show-all')) {
            this.showMissing('');
            wrentabledialog_obj.listAllCameras();
        } else if (element.closest('.close')) {
            this.close();
        }
    },

    // A list that stands shows the newest.
    take(result) {
        Object.assign(this, { result, verdict: '' });
        if (result === null) {
            return;
        }
        const time = new Date().toTimeString().slice(0, 8); // what comes after it, as an undo, is not in it
        setText(this.box().querySelector('b'), `${actionText(result.action)}, ${time}`);
        this.box().querySelector('.verdicts').innerHTML = verdictCounts(result).map(({ verdict, count }) =>
            `<a verdict="${verdict}" tabindex="0">${escapeMarkup(verdictText(verdict))} ${count}</a>`).join('');
        this.showMissing('');
        this.drawRows();
        this.keepHeight();
    },

    // What did not come about stands first.
    drawRows() {
        const verdicts = this.verdict === '' ? Object.keys(VERDICTS) : [this.verdict];
        const rows = verdicts.map(verdict => this.result.rows.filter(row => row.verdict === verdict));
        this.box().querySelector('table').innerHTML =
            resultHeadMarkup() + [].concat(...rows).map(resultRowMarkup).join('');
    },

    // Of the cameras of the last result that did not become what was asked.
    oddKeys() {
        const rows = this.result ? this.result.rows : [];
        return new Set(rows.filter(row => row.verdict !== 'set').map(row => row.key));
    },

    toggle() {
        if (this.box().hidden) {
            showElement(this.box(), true);
            this.keepHeight();
        } else {
            this.close();
        }
    },

    close() {
        if (!this.box().hidden) {
            showElement(this.box(), false);
            views.filter(view => view.box).forEach(view => pointAt(view, null));
        }
    },

    filter(verdict) {
        this.verdict = this.verdict === verdict ? '' : verdict;
        Array.from(this.box().querySelectorAll('[verdict]')).forEach(link =>
            setClass(link, link.getAttribute('verdict') === this.verdict ? 'chosen' : ''));
        this.drawRows();
    },

    // It stands on its lower edge, and what has been pressed must stay under the pointer.
    keepHeight() {
        setStyle(this.box(), 'minHeight', '0px');
        setStyle(this.box(), 'minHeight', `${this.box().offsetHeight}px`);
    },

    // Another group or filter is shown only when the user asks for it.
    lead(key) {
        const row = this.result.rows.find(each => each.key === key);
        this.showMissing(pointAt(viewAt(wrentabledialog_obj.activeTab()), key) ? '' : row.name || key);
    },

    showMissing(name) {
        const place = this.box().querySelector('.missing');
        showElement(place, name !== '');
        setText(place.firstElementChild, withValues(textKey('%1 is not in the list.'), name));
    }
};

// Brings the row of that camera into view and marks it until another one is; false when it is not in the list.
function pointAt(view, key) {
    const line = view.grid.records.findIndex(record => record.key === key);
    view.pointed = key;
    if (line >= 0) {
        view.box.scrollTop = (line + 0.5) * view.grid.recordHeight - view.height / 2;
        alignFrame(view);
    }
    view.draw(false);
    return line >= 0;
}

function resultHeadMarkup() {
    const heads = ['', '', translate('asked for'), translate('had after it')].map(escapeMarkup);
    return `<tr role="row"><th role="columnheader">${heads.join('</th><th role="columnheader">')}</th></tr>`;
}

function resultRowMarkup(row) {
    const cells = [`<a rowkey="${escapeMarkup(row.key)}" tabindex="0">${escapeMarkup(row.name || row.key)}</a>`]
        .concat([verdictText(row.verdict), row.asked, row.got].map(escapeMarkup));
    const reason = row.reason
        ? `<tr role="row" class="reason"><td role="cell" colspan="4">${escapeMarkup(row.reason)}</td></tr>` : '';
    return `<tr role="row" verdict-of="${escapeMarkup(row.verdict)}">` +
        cells.map(cell => `<td role="cell">${cell}</td>`).join('') + `</tr>${reason}`;
}

Object.assign(wrentabledialog_obj, {
    // The group of all cameras, no filter, no view of its own; what can't be chosen now stays.
    listAllCameras() {
        const filter = document.getElementById('recordFilter');
        attention.on = false;
        const isFiltered = filter.value !== '0' && !filter.disabled;
        if (isFiltered) {
            zeb4func.selectItemSumoSelect('#recordFilter', 0);
        }
        const button = document.querySelector('.groupButton[groupkey=""]');
        if (button && !button.disabled) {
            this.chooseGroup(button);
        } else {
            this.preventSelect = false;
            this.update();
        }
        if (isFiltered) {
            this.selectAll(); // as after a choice by hand
        }
    }
});
