// Colours of the table's states, and the text colour that can be read on them.
const TABLE_COLOURS = {
    red: '#ff0000',
    green: '#008000',
    yellow: '#ffff00',
    orange: '#ffa500',
    blue: '#0000ff',
    skyblue: '#87ceeb'
};
const DARK_TEXT = '#1a79c1';
const LIGHT_TEXT = '#eeeeee';
// What lies under such a text, so that it can be read whatever colour the page has.
const PLATE_OF_DARK = '#ffffff';
const PLATE_OF_LIGHT = '#333333';

const PLATES = 'legend, #wren_related_settings > *, .option-recording label, #trigger_test label';

Object.assign(wrentabledialog_obj, {
    getTableColorClass: colour => 'wren-table-color-' + colour,
    getRecButtonColorClass: colour => 'stat-recording-' + colour,

    // Gives the whole page a table colour; null for none.
    colourPage(colour) {
        const name = colour === null ? '' : this.getTableColorClass(colour);
        setClass(document.getElementById('wren-root-block'), name);
        const accordion = document.getElementById('accordion_div');
        const others = Array.from(accordion.classList).filter(word => !word.startsWith('wren-table-color-'));
        setClass(accordion, others.concat(name || []).join(' '));
    },

    setTableTextColor(colour) {
        if (Object.prototype.hasOwnProperty.call(TABLE_COLOURS, colour)) {
            this.setTextColor(TABLE_COLOURS[colour]);
        }
    },

    setModeTextColor() {
        this.setTextColor(wrentabledialog.getStyle() === 'light' ? '#eeeeee' : '#333333');
    },

    setTextColor(background) {
        const dark = this.getContrast(DARK_TEXT, background) > this.getContrast(LIGHT_TEXT, background);
        const text = dark ? DARK_TEXT : LIGHT_TEXT;
        if (this.textColor === text) {
            return;
        }
        this.textColor = text;
        paint('color', 'legend, #wren_related_settings', text);
        paint('color', '#wren_related_settings a', dark ? DARK_TEXT : '#9fd7fc');
        paint('color', '.option-recording label, #trigger_test label', dark ? '#333333' : '#ffffff');
        paint('backgroundColor', PLATES, dark ? PLATE_OF_DARK : PLATE_OF_LIGHT);
    },

    // Contrast of two colours, and the relative luminance of one, as the accessibility guidelines define them.
    getContrast(a, b) {
        const luminances = [this.getLuminance(a), this.getLuminance(b)];
        return (Math.max(...luminances) + 0.05) / (Math.min(...luminances) + 0.05);
    },

    getLuminance(hex) {
        const [red, green, blue] = [1, 3, 5].map(start => {
            const value = parseInt(hex.substr(start, 2), 16) / 255;
            return value <= 0.03928 ? value / 12.92 : Math.pow((value + 0.055) / 1.055, 2.4);
        });
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    }
});

function paint(what, selector, colour) {
    Array.from(document.querySelectorAll(selector)).forEach(element => { element.style[what] = colour; });
}
