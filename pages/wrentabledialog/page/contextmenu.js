// A menu of the page, as the right button opens it. It has the keyboard while it is open, and gives it back.
const contextMenu = {
    list: null,
    entries: [],
    home: null, // who gets the keyboard back

    // Entries have `id`, `text`, `work`, and may have `why`, the reason why they can't be chosen now.
    open(id, entries, x, y, home) {
        this.close();
        Object.assign(this, { entries, home, list: document.createElement('ul') });
        const { list } = this;
        list.id = id;
        list.className = 'wren-menu';
        list.setAttribute('role', 'menu');
        entries.forEach(entry => list.appendChild(this.line(entry)));
        document.getElementById('wren-root-block').appendChild(list);
        list.style.left = Math.max(0, Math.min(x, window.innerWidth - list.offsetWidth)) + 'px';
        list.style.top = Math.max(0, Math.min(y, window.innerHeight - list.offsetHeight)) + 'px';
        list.addEventListener('mousedown', event => event.preventDefault());
        list.addEventListener('keydown', event => this.key(event));
        this.links()[0].focus();
    },

    line({ id, text, why }) {
        const line = document.createElement('li');
        const link = document.createElement('a');
        link.id = this.list.id + '_' + id;
        link.textContent = text;
        link.tabIndex = -1; // so that it can have the focus
        link.setAttribute('role', 'menuitem');
        if (why) {
            link.title = why;
            link.setAttribute('disabled', '');
        }
        link.addEventListener('blur', event => this.links().includes(event.relatedTarget) || this.close());
        link.addEventListener('mouseover', () => link.focus()); // one entry is marked, not two
        link.addEventListener('click', () => this.choose(link));
        line.appendChild(link);
        return line;
    },

    links() {
        return this.list ? Array.from(this.list.querySelectorAll('a')) : [];
    },

    choose(link) {
        const { work, why } = this.entries[this.links().indexOf(link)];
        if (!why) {
            this.leave();
            guarded(work);
        }
    },

    leave() {
        const { home } = this;
        this.close();
        home.focus();
    },

    key(event) {
        const links = this.links();
        const now = links.indexOf(document.activeElement);
        const letter = String.fromCharCode(event.keyCode);
        const next = {
            [KEY.END]: links.length - 1, [KEY.HOME]: 0, [KEY.UP]: now - 1, [KEY.DOWN]: now + 1
        }[event.keyCode];
        if (event.keyCode === KEY.ENTER || event.keyCode === KEY.SPACE) {
            links[now].click();
        } else if (event.keyCode === KEY.ESCAPE || event.keyCode === KEY.TAB) {
            this.leave();
        } else if (next !== undefined) {
            links[(next + links.length) % links.length].focus();
        } else {
            const after = links.slice(now + 1).concat(links.slice(0, now + 1));
            const link = after.find(each => each.textContent.toUpperCase().startsWith(letter));
            (link || links[now]).focus();
        }
        event.preventDefault();
        event.stopPropagation();
    },

    close() {
        const { list } = this;
        this.list = null;
        if (list) {
            list.remove();
        }
    }
};
