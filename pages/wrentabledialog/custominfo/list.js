// The list of custom information: a scratch pad of the page, which belongs to no camera. w2ui gives the frame and the
// header; the keyboard, the selection and the editing in a cell are the list's own.
const CUSTOM_ROW_HEIGHT = 24;
const CUSTOM_COLUMNS = CUSTOM_TEXTS.concat('display');

const customList = {
    grid: null,
    box: null, // it has the keyboard only while it has the focus
    current: { recid: 0, column: 0 },
    anchor: 0, // recid of the row from which Shift selects

    create(box) {
        this.box = box;
        const column = (field, caption, size, align) => ({
            field,
            caption: escapeMarkup(caption),
            size,
            style: align ? 'text-align: ' + align : '',
            editable: { type: field === 'display' ? 'checkbox' : 'text' },
            render: item => this.cellMarkup(item, field)
        });
        this.grid = $().w2grid({
            name: 'wren-custom-data-list',
            columns: [
                column('name', translate('Item name'), '38%', 'left'),
                column('value', translate('Value'), '22%', 'right'),
                column('unit', translate('Unit'), '22%', 'left'),
                column('display', translate('Show info'), '12%')
            ],
            keyboard: false,
            multiSelect: true,
            recordHeight: CUSTOM_ROW_HEIGHT,
            show: { emptyRecords: false },
            menu: [{ id: 1, text: translate('Delete') }]
        });
        // What w2ui's rows call.
        Object.assign(this.grid, {
            click: () => undefined,
            dblClick: () => undefined,
            contextMenu: () => undefined
        });
        this.wrapRefresh();
        this.appendRecordEnd();
    },

    // A refresh throws the cells away, and loses the place to which the list was scrolled.
    wrapRefresh() {
        const { grid } = this;
        const refresh = grid.refresh;
        grid.refresh = () => {
            customEditor.end();
            wrentabledialog_obj.refreshCustomInfoContainer();
            if (!grid.box) {
                return 0;
            }
            const place = this.body() ? this.body().scrollTop : 0;
            const took = refresh.call(grid);
            this.body().scrollTop = place;
            this.showSelection();
            return took;
        };
    },

    // Laid out once there is room for it.
    show() {
        if (!this.grid.box) {
            this.grid.render(this.box);
            listenToCustomList();
            if (wrentabledialog_obj.gridLock) {
                this.grid.lock('');
            }
        }
        this.grid.resize();
        this.grid.refresh();
    },

    body() {
        return document.getElementById(`grid_${this.grid.name}_records`);
    },

    cellMarkup(item, field) {
        if (field !== 'display') {
            return `<div class="wren_text">${escapeMarkup(item[field])}</div>`;
        }
        const id = `wren_custom_display_${Number(item.recid)}`;
        return `<div><input type="checkbox" id="${id}" tabindex="-1"${item.display ? ' checked' : ''}></div>`;
    },

    // The cell of a row that is drawn; null without one.
    cell(recid, column) {
        return document.querySelector(`#grid_${this.grid.name}_rec_${recid} > td[col="${column}"]`);
    },

    // The row and the column that an element stands in; null outside the rows.
    placeOf(element) {
        const cell = element.closest('.w2ui-grid-records tr[recid] > td');
        return cell && {
            recid: Number(cell.parentNode.getAttribute('recid')),
            column: Math.min(Number(cell.getAttribute('col') || 0), CUSTOM_COLUMNS.length - 1)
        };
    },

    // None as long as the page comes up.
    records() {
        return this.grid ? this.grid.records : [];
    },

    indexOf(recid) {
        return this.records().findIndex(item => item.recid === recid);
    },

    item(recid) {
        return this.records()[this.indexOf(recid)];
    },

    drawCell(recid, column) {
        const cell = this.cell(recid, column);
        if (cell) {
            cell.innerHTML = this.cellMarkup(this.item(recid), CUSTOM_COLUMNS[column]);
        }
    },

    setItems(items) {
        customEditor.end();
        this.grid.records = items;
        this.grid.total = items.length;
        this.choose([], { recid: items.length > 0 ? items[0].recid : 0, column: 0 });
        this.grid.refresh();
    },

    appendRecordEnd() {
        const { records } = this.grid;
        if (records.length < wrentabledialog_const_obj.CUSTOM_MAX) {
            const recid = records.length > 0 ? records[records.length - 1].recid + 1 : 0;
            records.push({ recid, name: '', value: '', unit: '', display: true });
            this.grid.total = records.length;
            this.grid.refresh();
        }
    },

    // The blank row at the end, where there is room for one.
    keepBlankRow() {
        const { records } = this.grid;
        if (records.length === 0 || !isBlankItem(records[records.length - 1])) {
            this.appendRecordEnd();
        }
    },

    // The items that have been typed: all rows but a blank one at the end.
    items() {
        const records = this.records();
        return records.filter((item, index) => index < records.length - 1 || !isBlankItem(item));
    },

    choose(recids, current) {
        this.current = current;
        this.anchor = current.recid;
        this.select(recids);
    },

    // All rows from the anchor to this one.
    extend(current) {
        const [from, to] = [this.anchor, current.recid].map(recid => Math.max(0, this.indexOf(recid)));
        this.current = current;
        this.select(this.grid.records.slice(Math.min(from, to), Math.max(from, to) + 1).map(item => item.recid));
    },

    select(recids) {
        this.grid.last.selection.indexes = recids.map(recid => this.indexOf(recid)).filter(index => index >= 0);
        this.showSelection();
    },

    selected() {
        return this.grid.last.selection.indexes.map(index => this.grid.records[index]).filter(Boolean);
    },

    // What is deleted: the selected rows or, where there are none, the current one.
    meant() {
        const current = this.item(this.current.recid);
        const selected = this.selected();
        return selected.length > 0 || !current || isBlankItem(current) ? selected : [current];
    },

    showSelection() {
        const selected = new Set(this.grid.last.selection.indexes);
        Array.from(this.box.querySelectorAll('.w2ui-grid-records tr[recid]')).forEach(row => {
            const recid = Number(row.getAttribute('recid'));
            row.classList.toggle('w2ui-selected', selected.has(this.indexOf(recid)));
            Array.from(row.children).forEach((cell, column) => cell.classList.toggle('wren-current',
                recid === this.current.recid && column === this.current.column));
        });
    },

    bringIntoView(recid) {
        const cell = this.cell(recid, 0);
        if (cell) {
            cell.scrollIntoViewIfNeeded(false);
        }
    }
};
