// Which columns a grid has, and where. The order is a preference; anything may have changed it.
Object.assign(wrentabledialog_obj, {
    // Columns of a tab in the order that the preference tells; a field that the tab does not have adds nothing.
    createColumns(shortName, preferenceKey) {
        const tab = TABS.find(item => item.name === shortName);
        return this.storedFields(tab, preferenceKey).map(field => {
            const kind = columnKind(tab, field);
            return {
                field,
                caption: escapeMarkup(kind.caption()).replace('/', '/<wbr>'),
                title: '',
                size: kind.size,
                hidden: !this.isDisplayed(tab, field)
            };
        });
    },

    // The known fields of the stored order, each once; one that names none stands for all that the tab has.
    storedFields(tab, preferenceKey) {
        const stored = wrentabledialog.getPrefString(preferenceKey).split(',').map(field => field.trim());
        const known = stored.filter((field, index) => tab.fields.includes(field) && stored.indexOf(field) === index);
        return known.length > 0 ? known : tab.fields;
    },

    isChangedColumns(number) {
        const tab = TABS[number];
        const shown = viewAt(number).grid.columns.map(column => column.field);
        return shown.join() !== this.storedFields(tab, tab.orderKey).join();
    },

    resetAllColumns(number) {
        const tab = TABS[number];
        if (this.activeTab() !== number) {
            $('#tabs').tabs('option', 'active', number);
        }
        viewAt(number).grid.columns = this.createColumns(tab.name, tab.orderKey);
        viewAt(number).grid.refresh();
        this.refreshColumnNumber(number);
    },

    // A head has been held for a moment. The button may be another one, or have been let go outside of the grid.
    // Without a move w2ui takes the first place for the one to go to.
    beginColumnDrag(event) {
        const press = event.originalEvent;
        if (press.button !== 0 || !this.isCursorDown) {
            event.preventDefault();
            return;
        }
        this.isColumnDragged = true;
        event.onComplete = () => document.dispatchEvent(new MouseEvent('mousemove', {
            bubbles: true, clientX: press.clientX, clientY: press.clientY
        }));
    },

    // After the user has dragged a column to another place.
    columnsMoved(number) {
        this.refreshColumnNumber(number);
        this.saveColumns(number);
        this.refreshDisplayElement();
        this.refreshRecords(number, false);
    },

    // Hidden columns keep their place too.
    saveColumns(number) {
        const fields = viewAt(number).grid.columns.map(column => column.field);
        wrentabledialog.setPrefString(TABS[number].orderKey, fields.map(field => field + ',').join(''), false);
    },

    refreshColumnNumber(selected) {
        const grid = viewAt(selected).grid;
        const fields = { startFrame: 'selectStartFrameNo', endFrame: 'selectEndFrameNo' };
        Object.keys(wrentabledialog_column_obj).forEach(name => {
            const stem = name.replace(/ColumnNo$/, '');
            const position = grid.getColumn(fields[stem] || stem, true);
            wrentabledialog_column_obj[name] = position === null ? -1 : position;
        });
    }
});

// The same field is another column where recorded frames are listed.
function columnKind(tab, field) {
    return COLUMNS[tab.memory && field === 'frameRate' ? 'recordedFrameRate' : field];
}
