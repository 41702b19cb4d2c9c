const COLOURS = {
    red: textKey('Red'),
    green: textKey('Green'),
    yellow: textKey('Yellow'),
    orange: textKey('Orange'),
    blue: textKey('Blue'),
    skyblue: textKey('Sky blue')
};
// Name of the radio buttons -> what is usual, and the setting.
const TABLE_COLOUR_OF = {
    tablecolor_recready: { usual: 'green', chosen: setting('recreadyTableColor') },
    tablecolor_recording: { usual: 'orange', chosen: setting('recordingTableColor') },
    tablecolor_memory: { usual: 'skyblue', chosen: setting('memoryTableColor') }
};

Object.assign(wrendefaultsettingsdialog_obj, {
    initializeOthers() {
        Array.from(document.querySelectorAll('.md-colours')).forEach(place => {
            Object.keys(COLOURS).forEach(colour => {
                place.appendChild(colourButton(place.getAttribute('data-name'), colour, COLOURS[colour]));
            });
        });
        onClick('#reset_table_color', () => Object.keys(TABLE_COLOUR_OF).forEach(name => {
            const { usual, chosen } = TABLE_COLOUR_OF[name];
            radio(name).show(usual);
            chosen.touch();
        }));
        onClick('#md_reset_sort_table', () => bridge.resetSortTable());
    }
});

function colourButton(name, colour, key) {
    const label = document.createElement('label');
    const button = document.createElement('input');
    const square = document.createElement('span');
    label.title = translate(key);
    button.type = 'radio';
    button.name = name;
    button.value = colour;
    square.className = 'md-square';
    square.style.background = colour;
    label.appendChild(button);
    label.appendChild(square);
    return label;
}
