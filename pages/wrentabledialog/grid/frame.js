// What stands around the rows of a grid: the heads, the box that scrolls, and the place of the batch row.

// As w2ui's own refresh does it, which looks through all records, and for tool bars and searches, beside.
function drawFrame(view) {
    const { grid } = view;
    const part = name => document.getElementById(`grid_${grid.name}_${name}`);
    const [body, summary] = ['body', 'summary'].map(part);
    const hasBatch = grid.summary.length > 0;
    ['header', 'toolbar', 'footer'].forEach(name => setStyle(part(name), 'display', 'none'));
    body.innerHTML = `<div id="grid_${grid.name}_records" class="w2ui-grid-records" ` +
        `style="overflow-y: scroll">${recordsMarkup(grid)}</div>` +
        `<div id="grid_${grid.name}_columns" class="w2ui-grid-columns"><table>${grid.getColumnsHTML()}</table></div>`;
    summary.innerHTML = hasBatch ? summaryMarkup(grid) : '';
    setStyle(summary, 'display', hasBatch ? 'block' : 'none');
    const [records, heads] = ['records', 'columns'].map(part);
    Array.from(heads.querySelectorAll('td.w2ui-head[col]')).forEach(head => head.setAttribute('role', 'columnheader'));
    records.addEventListener('scroll', () => {
        if (records !== view.box) { // it has been thrown away meanwhile
            return;
        }
        alignFrame(view);
        grid.scroll();
    });
    // The keyboard in the batch row and a gesture over the heads scroll these by themselves.
    [heads, summary].forEach(follower => {
        follower.onscroll = () => {
            if (follower.scrollLeft !== grid.last.scrollLeft) {
                records.scrollLeft = follower.scrollLeft;
                follower.scrollLeft = records.scrollLeft; // it may have gone further than the rows can
            }
        };
    });
    grid.last.columnDrag = grid.last.columnDrag || grid.initColumnDrag();
}

// Brings heads and batch row to where the rows are scrolled to.
function alignFrame({ grid, box: { scrollTop, scrollLeft } }) {
    Object.assign(grid.last, { scrollTop, scrollLeft });
    ['columns', 'summary'].forEach(name => {
        document.getElementById(`grid_${grid.name}_${name}`).scrollLeft = scrollLeft;
    });
}

// The first row of each table holds the widths of the columns.
function recordsMarkup(grid) {
    const spacer = place => `<tr line="${place}"><td colspan="200" style="padding: 0; border: 0"></td></tr>`;
    const height = grid.records.length * grid.recordHeight;
    return `<table>${grid.getRecordHTML(-1, 0)}${['top', 'gap', 'bottom'].map(spacer).join('')}</table>`
        .replace('line="bottom"', `line="bottom" style="height: ${height}px"`);
}

function summaryMarkup(grid) {
    const place = `<tr class="wren-batch-place" style="height: ${grid.recordHeight}px"><td></td></tr>`;
    return `<table>${grid.getRecordHTML(-1, 0)}${place}</table>`;
}
