// What a screen reader is told of the grids beyond what stands in them; see `webdialog/accessible`.
window.readerTexts = {
    // '' where what stands in the element says enough.
    name(element) {
        const view = viewAround(element);
        if (!view) {
            return '';
        }
        if (element === view.grid.box) {
            return tabHeader(view.tab.number).textContent.trim();
        }
        const head = element.closest('.w2ui-head');
        if (head) {
            return headOf(columnKind(view.tab, view.grid.columns[head.getAttribute('col')].field));
        }
        const row = view.rowOf(element);
        return row ? nameInRow(view, row, element) : '';
    },

    // Of a slider: value, least, most and step. Null leaves it to the element.
    range(element) {
        const view = element.matches('.wren_slider_lowlight') && viewAround(element);
        const row = view && view.rowOf(element);
        const record = row && view.recordOf(row);
        return record ? [sliderValue(record), 0, sliderMax(record), 1] : null;
    },

    description(element) {
        const view = element.matches('td[role="gridcell"]') && viewAround(element);
        return view && view.status ? whyOf(view, element.firstChild) || view.status.why : '';
    }
};

function viewAround(element) {
    return views.find(view => view && view.grid.box && view.grid.box.contains(element));
}

function nameInRow(view, row, element) {
    const record = view.recordOf(row) || view.grid.records[row.index];
    const line = withValues(textKey('row %1 of %2'), row.index + 1, view.grid.records.length);
    const name = record.cameraName || ''; // a camera that does not answer has none
    const place = row === view.batch ? name : [name, line].filter(Boolean).join(', ');
    const cell = row.cellOf(element);
    if (!cell) {
        return element === row.element ? place : '';
    }
    if (!element.matches('td')) {
        return element.hasAttribute('plgName') ? pluginTitle(pluginOf(element)) : headOf(cell.kind);
    }
    const text = textOfCell(cell.kind, record);
    const what = text === '' ? headOf(cell.kind) : `${headOf(cell.kind)}: ${text}`;
    return cell.kind === COLUMNS.cameraName ? `${headOf(cell.kind)}: ${place}` : `${what}, ${place}`;
}
