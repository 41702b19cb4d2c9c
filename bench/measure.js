// Runs in the page of the table and answers times in milliseconds, each a median. All of them are measured in each
// round, so that a busy spell of the machine meets all alike, and several times in a row, so that the collector of
// garbage does not always meet the same one.
(function () {
    const ROUNDS = 5;
    const RUNS = 3;
    const TAB = 1;
    const page = wrentabledialog_obj;
    const request = JSON.stringify({ group: '', filter: 0, tab: TAB });
    const grid = document.getElementById('livecontrolTab').querySelector('.grid-div');

    function timed(work) {
        const start = bench.now();
        work();
        return bench.now() - start;
    }

    function median(list) {
        return list.sort((a, b) => a - b)[Math.floor(list.length / 2)];
    }

    function laidOut(work) {
        return () => {
            work();
            return grid.offsetHeight;
        };
    }

    // The request of a page that remembers nothing.
    const call = () => wrentabledialog.getRecords(request);
    const full = laidOut(() => page.refreshRecords(TAB, false));
    const tick = laidOut(() => page.updateCommon(true));

    // A full refresh, and what of it is not the records' way to the page, which is timed within it.
    function refresh(name) {
        const fetch = page.fetchRecords;
        let fetching = 0;
        page.fetchRecords = tab => {
            let data = null;
            fetching += timed(() => { data = fetch.call(page, tab); });
            return data;
        };
        try {
            const whole = timed(full);
            return { [`${name}Whole`]: whole, [name]: whole - fetching };
        } finally {
            page.fetchRecords = fetch;
        }
    }

    // The markup of the rows that stand on the screen, set at once in the frame that w2ui makes.
    function staticRows() {
        const records = grid.querySelector('.w2ui-grid-records');
        const copy = records.cloneNode(false);
        const markup = records.innerHTML;
        records.parentNode.appendChild(copy);
        const time = timed(() => {
            copy.innerHTML = markup;
            return copy.offsetHeight;
        });
        records.parentNode.removeChild(copy);
        return time;
    }

    function marks() {
        const view = viewAt(TAB);
        view.markedRecords = null;
        markDifferences(view);
    }

    function offers() {
        const view = viewAt(TAB);
        offersOf(view, view.batch.cells.find(cell => cell.kind.list));
    }

    wrentabledialog.lockAll(false); // the line has a result of all of them

    // Each answers times by their names.
    const measures = [
        () => ({ call: timed(call) }),
        () => {
            const text = call();
            return { parse: timed(() => JSON.parse(text)) };
        },
        () => ({ markup: staticRows() }),
        () => ({ marks: timed(marks), offers: timed(offers), status: timed(() => wrentabledialog.getTableStatus()) }),
        run => {
            bench.changeAll(run);
            return refresh('sameRows');
        },
        run => {
            bench.showOthers(run);
            return refresh('otherRows');
        },
        () => ({ tickSameText: timed(tick) }),
        () => {
            bench.changeHidden();
            return { tickNoneShown: timed(tick) };
        },
        run => {
            bench.changeTenth(run);
            return { tickTenth: timed(tick) };
        },
        run => {
            bench.changeAll(run);
            return { tickAll: timed(tick) };
        }
    ];
    const times = {};
    for (let round = 0; round < ROUNDS; round++) {
        measures.forEach(measure => {
            for (let run = 0; run < RUNS; run++) {
                const taken = measure(round * RUNS + run);
                Object.keys(taken).forEach(name => { times[name] = (times[name] || []).concat(taken[name]); });
            }
        });
    }
    Object.keys(times).forEach(name => { times[name] = median(times[name]); });
    times.callAndParse = times.call + times.parse;
    return JSON.stringify(times);
}());
