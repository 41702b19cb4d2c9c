// The tips of the cells: what a picture or a cut text means, where rows differ, and why a control takes nothing.
const PICTURES = '[alerts]:not([alerts=""]), [comments]:not([comments=""]), [status], [connected]';
const TIPS = PICTURES + ', [sync], [differs], [barred], [why], td[told]';

function listenToTips(view) {
    textTip(view.grid.box, TIPS, element => tipOf(view, element), element => element.hasAttribute('sync'));
}

function tipOf(view, element) {
    const own = syncTip.text(element) || pictureText(view, element) || differencesText(view, element);
    return [own, whyOf(view, element)].filter(Boolean).join('\n');
}

// A row whose camera has gone shows what it was.
function pictureText(view, element) {
    const row = element.matches(PICTURES) && view.rowOf(element);
    const cell = row && row.cellOf(element);
    return cell ? textOfCell(cell.kind, view.recordOf(row) || view.grid.records[row.index]) : '';
}

// The reasons that stand in the element and around it; those of the whole list where it has none of its own.
function whyOf(view, element) {
    if (element.matches('td[told]') && view.cursor.hasJustMoved()) {
        return translated(textKey('The keyboard has just come here.'));
    }
    const texts = [];
    for (let at = element; at && at !== view.grid.box; at = at.parentElement) {
        texts.push(at.getAttribute('why') || '');
    }
    return texts.filter(Boolean).join(' ') || (element.matches('td[told]') ? view.status.why : '');
}
