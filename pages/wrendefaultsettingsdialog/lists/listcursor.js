// Where the keyboard stands in a list: at a row, or between two where a row has gone.
class ListCursor {
    constructor() {
        this.place = -0.5;
    }

    // The row that it stands at, or before.
    get row() {
        return Math.floor(Math.max(0, this.place));
    }

    // The row at `index` goes.
    leave(index) {
        this.place = index - 0.5;
    }

    // Where a key takes it among `count` rows, of which `page` are seen at once; undefined when the key does not.
    target(keyCode, count, page) {
        const place = {
            [KEY.UP]: Math.ceil(this.place - 1),
            [KEY.DOWN]: Math.floor(this.place + 1),
            [KEY.PAGE_UP]: Math.ceil(this.place - page),
            [KEY.PAGE_DOWN]: Math.floor(this.place + page),
            [KEY.HOME]: 0,
            [KEY.END]: count - 1
        }[keyCode];
        return place === undefined || count === 0 ? undefined : Math.max(0, Math.min(place, count - 1));
    }
}
