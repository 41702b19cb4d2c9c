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

    const call = () => wrentabledialog.getRecords(request);
    const full = laidOut(() => page.refreshRecords(TAB, false));
    const tick = laidOut(() => page.updateCommon(true));

    // What a refresh takes beyond the call and the parsing of its answer, both in the state that the refresh met.
    function beyondCall(work) {
        const whole = timed(work);
        return whole - timed(() => JSON.parse(call()));
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

    const measures = {
        call: () => timed(call),
        parse: () => {
            const text = call();
            return timed(() => JSON.parse(text));
        },
        frame: staticRows,
        fullSameRows: run => {
            bench.changeAll(run);
            return beyondCall(full);
        },
        fullOtherRows: run => {
            bench.showOthers(run + 1);
            return beyondCall(full);
        },
        tickUnchangedText: () => timed(tick),
        tickNothingChanged: run => {
            bench.changeHidden(run);
            return timed(tick);
        },
        tickSomeChanged: run => {
            bench.changeTenth(run);
            return timed(tick);
        }
    };
    const names = Object.keys(measures);
    const times = {};
    names.forEach(name => { times[name] = []; });
    for (let round = 0; round < ROUNDS; round++) {
        names.forEach(name => {
            for (let run = 0; run < RUNS; run++) {
                times[name].push(measures[name](round * RUNS + run));
            }
        });
    }
    names.forEach(name => { times[name] = median(times[name]); });
    return JSON.stringify(times);
}());
