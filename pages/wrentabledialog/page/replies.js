// The replies to `getRecords`. The request tells which of them the page has, and one that completes it brings only what
// differs: the rows that changed, and lists that many cameras share once, by number. A bridge that knows nothing of
// this answers with all records each time.
const recordReplies = {
    taken: 0, // the number of the reply that the page has; 0 for none
    data: null, // what it brought, with what it completed: `records` and `batch`
    lists: {}, // by their numbers
    whole: null, // tab and text of a reply that was all records

    // The records and the batch row; null when the bridge has none. What is the same as last time is the same object.
    ask(request) {
        const text = wrentabledialog.getRecords(JSON.stringify(Object.assign({ taken: this.taken }, request)));
        if (this.whole && this.whole.tab === request.tab && this.whole.text === text) {
            return this.data;
        }
        const reply = parseReply(text);
        if (reply && Array.isArray(reply.changed)) {
            return this.complete(reply, request);
        }
        if (!reply || !Array.isArray(reply.records) || !Array.isArray(reply.batch)) {
            return null;
        }
        this.taken = 0;
        this.whole = { tab: request.tab, text };
        this.data = { records: reply.records, batch: reply.batch };
        return this.data;
    },

    // A call that came inside this one may have taken a newer reply than the one that this completes. Then it is asked
    // again, as by a page that has none: what is whole completes anything, so that this ends.
    complete(reply, request) {
        if (reply.since !== 0 && reply.since !== this.taken) {
            this.taken = 0;
            return this.ask(request);
        }
        this.whole = null;
        if (reply.reply === this.taken) {
            return this.data;
        }
        const known = reply.since === 0 ? { records: [], batch: [] } : this.data;
        this.lists = reply.since === 0 ? reply.lists : Object.assign(this.lists, reply.lists);
        const records = known.records.slice(0, reply.count);
        reply.changed.forEach(record => { records[record.recid - 1] = this.withLists(record); });
        this.data = { records, batch: reply.batch ? reply.batch.map(record => this.withLists(record)) : known.batch };
        this.taken = reply.reply;
        return this.data;
    },

    withLists(record) {
        LISTS.forEach(name => {
            if (typeof record[name] === 'number') {
                record[name] = this.lists[record[name]];
            }
        });
        return record;
    }
};
