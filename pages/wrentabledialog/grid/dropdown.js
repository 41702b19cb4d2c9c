// The list of a drop-down in a cell. It is made when it is opened, in `body`, for the grid would clip it, and lies
// over the caption. One is open at a time.
const dropDown = {
    holder: null,
    select: null,
    cell: null, // whose list is open

    // `offers` of the batch row, see `offersOf`; else null.
    open(cell, up, choose, offers) {
        this.close();
        this.cell = cell;
        const select = document.createElement('select');
        select.className = cell.parts.select.className.replace(' SumoUnder', '');
        select.setAttribute('data-id', cell.parts.select.id); // for the log: an id stands once in a page
        cell.choices.concat(offers ? offers.others : []).forEach(choice => {
            const option = document.createElement('option');
            option.value = choice.value;
            option.textContent = choice.name;
            select.appendChild(option);
        });
        const present = cell.choices.findIndex(choice => choice.value === cell.parts.option.value);
        select.selectedIndex = present;
        this.place(cell.parts.frame, select);

        let chosen = null;
        $(select).SumoSelect({ up: this.opensUp(up), placeholder: '', floatWidth: 0, showTitle: false });
        select.sumo.select.addClass('compact');
        $(window).off('resize.sumo'); // it follows the window for small screens only, and never lets go of it
        if (present < 0) {
            select.sumo.ul.find('.selected').removeClass('selected');
        }
        if (offers) {
            this.tellOffers(select, offers, cell.choices.length);
        }
        this.limit(select.sumo);
        listenToListKeys(select.sumo);
        select.addEventListener('change', () => { chosen = select.value; });
        $(select).on('sumo:closed', () => {
            if (this.select !== select) {
                return; // it closes once more when the keyboard leaves what was removed
            }
            if (this.holder.contains(document.activeElement)) {
                viewAt(wrentabledialog_obj.activeTab()).cursor.focus();
            }
            this.remove();
            if (chosen !== null) {
                cell.forget();
                showChoice(cell, chosen, false);
                cell.forget();
                choose(chosen);
            }
        });
        // The arrow keys go on from the present choice.
        if (present < 0) {
            select.sumo.showOpts();
        } else {
            select.sumo.setOnOpen();
        }
    },

    // Beside an entry stands how many rows offer it, unless all do; the batch row's own ones end with a line.
    tellOffers(select, { counts, rows }, own) {
        select.sumo.ul.children('li').each((index, entry) => {
            const count = counts.get(select.options[index].value) || 0;
            if (count < rows) {
                entry.setAttribute('offered', withValues(textKey('%1 of %2'), count, rows));
            }
            entry.classList.toggle('others-first', index === own);
        });
    },

    close() {
        if (this.select) {
            this.select.sumo.hideOpts();
        }
    },

    closeOf(cell) {
        if (this.cell === cell) {
            this.close();
        }
    },

    remove() {
        this.cell = null;
        if (this.holder) {
            document.body.removeChild(this.holder);
            this.holder = null;
            this.select = null;
        }
    },

    // Lays the holder over the caption.
    place(frame, select) {
        const spot = frame.getBoundingClientRect();
        this.room = { above: spot.top - 8, below: window.innerHeight - spot.bottom - 8 };
        this.select = select;
        this.holder = document.createElement('div');
        this.holder.className = 'wren-dropdown';
        ['left', 'top', 'width', 'height'].forEach(side => { this.holder.style[side] = spot[side] + 'px'; });
        this.holder.appendChild(select);
        document.body.appendChild(this.holder);
    },

    // The wanted way, unless there is no room for a list and more on the other side.
    opensUp(wanted) {
        const { above, below } = this.room;
        const enough = 120;
        return wanted ? above >= enough || above >= below : below < enough && above > below;
    },

    limit(sumo) {
        const up = sumo.optDiv.hasClass('up');
        sumo.ul.css('max-height', Math.min(250, up ? this.room.above : this.room.below));
    }
};
