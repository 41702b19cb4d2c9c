// A `choiceList` of recordings with a tick each, and a look at the chosen one. `own` says besides: `pictureOf(record)`
// in Base64, `factsOf(record)`, `isTickedAtFirst`, and what is to be done when the ticks have changed (`tickedAnew()`).
function recordingList(id, own) {
    const base = choiceList(id, own);
    return Object.assign({}, base, {
        otherTicks: new Set(), // names of those that are not as at first
        previewTimer: 0,
        page: null,

        beginList(page) {
            this.page = page;
            this.beginChoices(page);
            byId(id).addEventListener('change', event => page.guarded(() => this.tick(event.target)));
        },

        take(records) {
            const names = new Set(records.map(record => this.nameOf(record)));
            this.otherTicks = new Set(Array.from(this.otherTicks).filter(name => names.has(name)));
            base.take.call(this, records);
        },

        namedRow(record) {
            const row = base.namedRow.call(this, record);
            if (this.nameOf(record) !== null) {
                const tick = document.createElement('input');
                tick.type = 'checkbox';
                tick.tabIndex = -1;
                row.insertBefore(document.createElement('td'), row.firstChild).appendChild(tick);
                row.firstChild.className = 'tick';
            }
            return row;
        },

        isTicked(record) {
            return this.otherTicks.has(this.nameOf(record)) !== this.isTickedAtFirst;
        },

        ticked() {
            return this.choices().filter(record => this.isTicked(record));
        },

        // Ticks, and the row that is looked at.
        mark() {
            base.mark.call(this);
            const choices = this.choices();
            this.rows().forEach((row, index) => {
                row.querySelector('input').checked = this.isTicked(choices[index]);
            });
            byId('all').checked = choices.length > 0 && this.ticked().length === choices.length;
        },

        tick(box) {
            const row = box.closest('tbody tr');
            const names = row ? [row.getAttribute('data-name')] : this.choices().map(record => this.nameOf(record));
            names.forEach(name =>
                box.checked === this.isTickedAtFirst ? this.otherTicks.delete(name) : this.otherTicks.add(name));
            this.mark();
            this.tickedAnew();
        },

        choose(name) {
            base.choose.call(this, name);
            this.showPreviewSoon();
        },

        // Arrows choose, Space ticks.
        key(event) {
            const { row, isTaken } = this.step(event);
            if (!isTaken && row && event.keyCode === 32 && event.target.tagName !== 'INPUT') {
                event.preventDefault();
                const box = row.querySelector('input');
                box.checked = !box.checked;
                this.tick(box);
            }
        },

        // A recording is read only once it stays chosen.
        showPreviewSoon() {
            clearTimeout(this.previewTimer);
            this.previewTimer = setTimeout(() => this.page.logged(() => this.showPreview()), 150);
        },

        showPreview() {
            const record = this.chosen();
            const picture = record ? this.pictureOf(record) : '';
            byId('preview').src = picture === '' ? '' : `data:image/png;base64,${picture}`;
            byId('preview').hidden = picture === '';
            const list = byId('facts');
            list.textContent = '';
            (record ? this.factsOf(record) : []).filter(text => text).forEach(text => {
                const line = document.createElement('dd');
                line.textContent = text;
                list.appendChild(line);
            });
        }
    });
}
