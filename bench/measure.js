// Runs in the page of the table and answers times in milliseconds, each the median of several runs.
(function () {
    const RUNS = 9;
    const TAB = 1;
    const page = wrentabledialog_obj;
    const request = JSON.stringify({ group: '', filter: 0, tab: TAB });
    const grid = document.getElementById('livecontrolTab').querySelector('.grid-div');

    function timed(work) {
        const start = bench.now(); // the page's own clock has no parts of a millisecond
        work();
        return bench.now() - start;
    }

    function median(list) {
        return list.sort((a, b) => a - b)[Math.floor(list.length / 2)];
    }

    // `prepare` is not measured.
    function measured(prepare, work) {
        const times = [];
        for (let run = 0; run < RUNS; run++) {
            prepare(run);
            times.push(timed(work));
        }
        return median(times);
    }

    // What a refresh takes beyond the call and the parsing of its answer, both in the state that the refresh met.
    function beyondCall(prepare, work) {
        const times = [];
        for (let run = 0; run < RUNS; run++) {
            prepare(run);
            const whole = timed(work);
            times.push(whole - timed(() => JSON.parse(wrentabledialog.getRecords(request))));
        }
        return median(times);
    }

    function laidOut(work) {
        return () => {
            work();
            return grid.offsetHeight;
        };
    }

    // The markup of the rows that stand on the screen, set at once in the frame that w2ui makes.
    function staticRows() {
        const records = grid.querySelector('.w2ui-grid-records');
        const copy = records.cloneNode(false);
        const markup = records.innerHTML;
        records.parentNode.appendChild(copy);
        const time = measured(() => { copy.innerHTML = ''; }, () => {
            copy.innerHTML = markup;
            return copy.offsetHeight;
        });
        records.parentNode.removeChild(copy);
        return time;
    }

    const nothing = () => undefined;
    const full = laidOut(() => page.refreshRecords(TAB, false));
    const tick = laidOut(() => page.updateCommon(true));
    const text = wrentabledialog.getRecords(request);
    return JSON.stringify({
        call: measured(nothing, () => wrentabledialog.getRecords(request)),
        parse: measured(nothing, () => JSON.parse(text)),
        frame: staticRows(),
        fullSameRows: beyondCall(run => bench.changeAll(run), full),
        fullOtherRows: beyondCall(run => bench.showOthers(run), full),
        tickUnchangedText: measured(nothing, tick),
        tickNothingChanged: measured(run => bench.changeHidden(run), tick),
        tickSomeChanged: measured(run => bench.changeTenth(run), tick)
    });
}());
