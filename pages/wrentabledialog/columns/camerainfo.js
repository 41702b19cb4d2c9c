// Columns of the camera information tab.
// Whether a camera that does not tell its lock is locked nobody knows.
function whyHeld(record, status) {
    if (isBatch(record)) {
        return status.allLocked && translated(textKey('All cameras of the list are locked.'));
    }
    return record.lock === undefined ? translated(textKey('The camera does not tell its lock.')) : whyLocked(record);
}

COLUMNS.connectionStatus = {
    caption: () => translate('Connect') + '/' + translate('Disconnect'),
    size: '5%',
    align: 'left',
    needs: [],
    still: true,
    empty: record => isBatch(record) && record.recordCount < 1,
    text: connectionText,
    why: (record, status) => reasonText(whyHeld(record, status), status.why),
    markup: `<div class="flexWrapper" dockey>
        <a class="wren_button_connection_connect" part="on" role="switch" aria-checked="true"
            id="wren_button_connection_connect_" dockey></a>
        <a class="wren_button_connection_disconnect" part="off" role="switch" aria-checked="false"
            id="wren_button_connection_disconnect_" dockey></a>
        </div>`,
    tick(cell, record) {
        cell.swap(Boolean(record.connected), 'on', 'off');
        cell.flag('on', 'disabled', cell.isBarred);
        cell.flag('off', 'disabled', cell.isBarred);
    },
    click({ view, row, cell }, part) {
        const keys = rowKeys(view, row);
        if (part === 'off') {
            changeConnection(cell, keys, true, translate('Connecting'));
        } else if (wrentabledialog.confirmDisconnect(keys)) {
            changeConnection(cell, keys, false, translate('Disconnecting'));
        }
    }
};

function changeConnection(cell, keys, connect, message) {
    const grid = wrentabledialog_obj.activeGrid();
    const key = cell.key;
    lockAtOnce(grid, message);
    window.setTimeout(() => {
        try {
            guarded(() => {
                wrentabledialog.connect(keys, connect);
                if (cell.key === key) {
                    cell.swap(connect, 'on', 'off');
                }
            });
        } finally {
            wrentabledialog_obj.releaseGrid(grid);
        }
    }, PAINT_MS);
}

COLUMNS.comment = {
    caption: () => translate('Comment'),
    size: '10%',
    align: 'left',
    needs: ['comment', 'comments'],
    still: true,
    empty: isBatch,
    text: record => record.comments,
    why: (record, status) => reasonText(whyLocked(record), status.why),
    markup: '<div class="wren_cameraInfo_comment" part="comment" id="wren_cameraInfo_comment_" dockey></div>',
    tick(cell, record) {
        cell.text('comment', record.comment || '');
        cell.attribute('comment', 'comments', record.comments || '');
        cell.attribute('comment', 'cursorDisable', String(cell.isBarred));
    },
    doubleClick: (view, key) => wrentabledialog_obj.editComment(view, key)
};
