// The widths of a grid's columns and the heights of its parts. w2ui's own way of it reads and writes sizes in turn,
// each time of a table that must be laid out for it; here all is read, reckoned and then written. What comes out is the
// same, and w2ui goes on from it when the user drags the edge of a column.
const LEAST_COLUMN = 20; // pixels
let scrollBar = 0; // width in pixels, seen where rows scroll

// Reads the height of the heads once it has written the widths, since captions wrap.
function fitGrid(grid) {
    const part = name => document.getElementById(`grid_${grid.name}_${name}`);
    const [body, heads, records, summary] = ['body', 'columns', 'records', 'summary'].map(part);
    const { clientWidth: width, clientHeight: height } = grid.box;
    const bodyHeight = Math.max(0, height - (grid.summary.length > 0 ? summary.offsetHeight : 0));
    const rowsHeight = Math.max(grid.records.length * grid.recordHeight, records.firstElementChild.offsetHeight);
    scrollBar = records.offsetWidth - records.clientWidth || scrollBar;
    const main = grid.box.firstElementChild;
    setStyle(main, 'width', `${width}px`);
    setStyle(main, 'height', `${height}px`);
    pin(body, { top: 0, right: 0, bottom: height - bodyHeight, left: 0, height: bodyHeight });
    pin(summary, { right: 0, bottom: 0, left: 0 });
    let spare = 0;
    let headHeight = 0;
    const layOut = high => {
        spare = fitColumns(grid, width - (high ? scrollBar : 0));
        setStyle(heads.querySelector('.w2ui-head-last'), 'display', high || spare !== 0 ? '' : 'none');
        writeWidths(grid, [heads, records, summary], spare);
        headHeight = heads.offsetHeight;
        return bodyHeight - headHeight < rowsHeight + (spare < 0 ? scrollBar : 0);
    };
    const guess = bodyHeight < rowsHeight;
    const high = layOut(guess);
    if (high !== guess) {
        layOut(high);
    }
    const wide = spare < 0;
    pin(records, { top: headHeight });
    setStyle(records, 'overflowX', wide ? 'auto' : 'hidden');
    setStyle(records, 'overflowY', high ? 'auto' : 'hidden');
    if (!wide && !high) {
        Object.assign(grid.last, { scrollTop: 0, scrollLeft: 0 });
    }
}

function pin(element, pixels) {
    Object.keys(pixels).forEach(name => setStyle(element, name, `${pixels[name]}px`));
}

// Gives the columns their share of `room` pixels, in whole ones. Answers how many are left, below 0 how many lack.
function fitColumns(grid, room) {
    const shown = grid.columns.filter(column => !column.hidden);
    const flexible = shown.filter(column => !String(column.size).endsWith('px'));
    const sum = flexible.reduce((total, column) => total + parseFloat(column.size), 0);
    const percent = column => Math.round(parseFloat(column.size) * 10000 / sum) / 100;
    let free = room;
    shown.forEach(column => {
        column.min = column.min || LEAST_COLUMN;
        column.sizeType = flexible.includes(column) ? '%' : 'px';
        if (column.sizeType === 'px') { // the edge may have been dragged beyond the column's other one
            column.size = `${Math.max(parseInt(column.size, 10), column.min)}px`;
            column.sizeCalculated = column.size;
            free -= parseInt(column.size, 10);
        }
    });
    flexible.forEach(column => {
        column.sizeCalculated = `${Math.max(Math.floor(free * percent(column) / 100) - 1, column.min)}px`;
    });
    let left = room - shown.reduce((total, column) => total + parseInt(column.sizeCalculated, 10), 0);
    for (let index = 0; left > 0 && flexible.length > 0; index++, left--) {
        const column = flexible[index % flexible.length];
        column.sizeCalculated = `${parseInt(column.sizeCalculated, 10) + 1}px`;
    }
    return left;
}

// The first row of each table holds its widths; the last cell takes what is left and, where no rows scroll, the room of
// the scroll bar.
function writeWidths(grid, parts, spare) {
    parts.forEach(part => {
        const cells = part.querySelectorAll('table > tbody > tr:first-child > td');
        const last = Math.max(spare, 0) + (part.classList.contains('w2ui-grid-records') ? 0 : scrollBar);
        Array.from(cells).forEach(cell => {
            const column = grid.columns[cell.getAttribute('col')];
            setStyle(cell, 'width', column ? column.sizeCalculated : `${last}px`);
        });
    });
}
