// The hand of a scenario: what it clicks, drags and types reaches a page as from a person, and what a person could not
// do is refused. The table lies under a page of our own.

const PAGE = `
    <div id="mine"><style>#mine { position: fixed; top: 0; left: 0; width: 400px; height: 300px; overflow: auto }
    #mine { z-index: 99999; background: white } #mine > div { height: 40px }
    #mine > #list { height: 100px; overflow: auto }</style>
    <div id="top">top</div><div id="list"><div id="room" style="height: 4000px; position: relative"></div></div>
    <input id="field"><select id="choice"><option value="1">one<option value="2">two</select>
    <div style="position: relative"><div id="under">u</div>
    <div id="over" style="position: absolute; top: 0; width: 100%; height: 40px"></div></div>
    <div id="hidden" style="display: none">h</div><div style="height: 900px"></div><div id="far">far</div></div>`;

function seen() {
    return zeb.page('seen.splice(0)').join();
}

function refused(work, words) {
    let told = 'nothing';
    try {
        work();
    } catch (error) {
        told = error.message;
    }
    check(told.includes(words), `${words}: ${told}`);
}

zeb.rig(1);
check(zeb.open(), 'the table opens');
zeb.page(`
    $('body').append(${JSON.stringify(PAGE)});
    seen = [];
    var down = false;
    ['mousedown', 'mouseup', 'click', 'dblclick', 'mousemove'].forEach(kind => document.addEventListener(kind, e => {
        down = kind === 'mousedown' || (down && kind !== 'mouseup');
        if (kind !== 'mousemove' || down) {
            seen.push(e.target.id + ' ' + kind + (e.ctrlKey ? ' ctrl' : '') + (e.shiftKey ? ' shift' : ''));
        }
    }, true));
    var list = document.getElementById('list');
    list.addEventListener('scroll', () => {
        const first = Math.floor(list.scrollTop / 40);
        document.getElementById('room').innerHTML = [first, first + 1, first + 2].map(i =>
            '<div id="row' + i + '" style="position: absolute; top: ' + i * 40 + 'px">row</div>').join('');
    });
    return 0`);

[
    ['1 + 2;', '3'], ["({a: [1, 'x', null, true]})", '{"a":[1,"x",null,true]}'],
    ['var a = 1; var b = 2; return a + b', '3'], ["'%1 %2' // a comment", '"%1 %2"'],
    ['document.createElement("p")', '{}'], ['kept = 4', '4'], ['kept', '4'],
    ['if (false) { never(); }', undefined], ["'\\u65e5\\u672c'", '"日本"']
].forEach(([script, answer]) => check(JSON.stringify(zeb.page(script)) === answer, script));
refused(() => zeb.page('nothing.here'), "Can't find variable: nothing");
refused(() => zeb.page("throw 'my words'"), 'my words');
refused(() => zeb.page('a b c'), 'no script: a b c');

[
    [{}, 'top mousedown,top mouseup,top click'],
    [{ctrl: true, shift: true}, 'top mousedown ctrl shift,top mouseup ctrl shift,top click ctrl shift'],
    [{double: true}, 'top mousedown,top mouseup,top click,top mousedown,top mouseup,top click,top dblclick'],
    [{down: true}, 'top mousedown'],
    [{down: false}, 'top mouseup,top click'],
    [{right: true}, 'top mousedown,top mouseup']
].forEach(([options, events]) => {
    zeb.click('#top', options);
    const made = seen();
    check(made === events, `${JSON.stringify(options)}: ${made}`);
});
zeb.drag('#top', '#field');
check(/^top mousedown,top mousemove.*room mousemove.*field mouseup/.test(seen()), 'a drag goes all the way');
['far', 'row90', 'row2'].forEach(id => {
    zeb.click('#' + id);
    check(seen().endsWith(id + ' click'), 'it scrolls to ' + id);
});
refused(() => zeb.click('#none'), 'no such element');
refused(() => zeb.click('#hidden'), 'not shown');
refused(() => zeb.click('#under'), 'under div#over');
refused(() => zeb.click('#a\'b"['), 'in the page');

zeb.click('#field');
zeb.type('aX 9+日本\b"<');
check(zeb.page("document.getElementById('field').value") === 'aX 9+日"<', 'it types any text');
['Shift+Home', 'Ctrl+X', 'Shift+B', '8'].forEach(key => zeb.key(key));
check(zeb.page("document.getElementById('field').value") === 'B8', 'and presses keys by name');
refused(() => zeb.key('Shift+Nothing'), 'Nothing');
zeb.choose('#choice', 'two');
check(zeb.page("document.getElementById('choice').value") === '2', 'it chooses by the text');
refused(() => zeb.choose('#choice', '3'), '#choice offers no "3" but: one, two');
