// The part of `zeb4func` for drop-downs; it is joined to the rest.
Object.assign(zeb4func, {
    // Makes a drop-down of each `select`. `up` opens it upward, `search` adds a box to find an item by, `compact`
    // makes it as low as a table's row.
    initSumoSelect: function (selector, width, up, search, compact) {
        this.elementsOf(selector).forEach(function (select) {
            $(select).SumoSelect({ up: up, search: search, placeholder: '', floatWidth: 0, showTitle: false });
            select.sumo.select.width(width).toggleClass('compact', compact === true);
            // The widget follows the window's size for the sake of small screens only, and never lets go of it.
            $(window).off('resize.sumo');
        });
    },

    addItemSumoSelect: function (selector, value, name) {
        const markup = $('<i>').text(name).html();
        this.elementsOf(selector).forEach(function (select) { select.sumo.add(value, markup); });
    },

    emptySumoSelect: function (selector) {
        this.elementsOf(selector).forEach(function (select) {
            while (select.options.length > 0) {
                select.sumo.remove(0);
            }
        });
    },

    // Shows the item of that value, without the event of a user's choice. Unknown values change nothing.
    selectItemSumoSelect: function (selector, value) {
        this.elementsOf(selector).forEach(function (select) {
            const values = Array.from(select.options).map(function (option) { return option.value; });
            const index = values.indexOf(String(value));
            if (index < 0) {
                return;
            }
            select.selectedIndex = index;
            select.sumo.ul.find('li.opt').removeClass('selected').eq(index).addClass('selected');
            select.sumo.setText();
        });
    }
});
