'use strict';

// Runs the examples of README.md and docs/, word for word:
//   node examples.js ZEBSIM ROOT FOLDER
// A document becomes a scenario whose lines have the same numbers, so that a fault is told with its place. Each block
// begins with eight cameras and, unless it opens that itself, with the table. A rig is read; of the command lines those
// that run a scenario are run. What a comment behind a print promises must have been printed.

const { spawnSync } = require('child_process');
const fs = require('fs');
const path = require('path');

const [zebsim, root, folder] = process.argv.slice(2);
const docs = fs.readdirSync(path.join(root, 'docs')).map(name => 'docs/' + name);
const commands = [];

const OPEN = 'zeb.open();';
const BEGIN = "{ zeb.rig('eight-mixed'); zeb.messages(); zeb.calls(); ";
const END = `zeb.speed(1); zeb.mode('live'); zeb.page("$('#tabs').tabs('option', 'active', 0)"); zeb.close(); }`;

const read = name => fs.readFileSync(path.join(root, name), 'utf8');
const write = (name, text) => fs.writeFileSync(path.join(folder, name), text);

function fail(text) {
    console.error(text);
    process.exit(1);
}

function run(place, args) {
    fs.rmSync(path.join(folder, 'prefs.ini'), { force: true });
    const { status, stdout, stderr } = spawnSync(zebsim, [...args, '--prefs', 'prefs.ini'],
        { cwd: folder, encoding: 'utf8' }); // an example's own preferences give way
    if (status !== 0) {
        fail(`${place}: zebsim ${args.join(' ')} ended with ${status}\n${stdout}${stderr}`);
    }
    return stdout.split('\n');
}

// kind of a block -> what is done with its lines; answers what stands for its end in the scenario.
const ENDS = {
    js(lines) {
        if (!fs.existsSync(path.join(folder, 'my.js'))) {
            write('my.js', lines.join('\n'));
        }
        return END;
    },
    json(lines) {
        if (lines.join('').includes('"format"')) {
            return ''; // settings, which a test of their reader reads
        }
        write('docs/my-lab.json', lines.join('\n'));
        return "zeb.rig('my-lab.json');";
    },
    xml(lines) {
        write('docs/list.xml', lines.join('\n'));
        return "zeb.rig(1); zeb.open(); zeb.file('list.xml'); check(zeb.page('JSON.parse(wrentabledialog" +
            ".loadCustomSettingsXml())[0].value') === '17', 'the list is read'); zeb.close();";
    },
    sh(lines) {
        commands.push(...lines.filter(line => line.includes('--scenario')));
        return '';
    }
};

function runDocument(name) {
    const lines = read(name).split('\n');
    let start = -1; // the fence that has begun the block
    const script = lines.map((line, index) => {
        const inside = start >= 0;
        const kind = (inside ? lines[start] : line).slice(3);
        if (!line.startsWith('```')) {
            return inside && kind === 'js' ? line : '';
        }
        if (inside) {
            const block = lines.slice(start + 1, index);
            start = -1;
            return kind in ENDS ? ENDS[kind](block) : '';
        }
        start = index;
        const block = lines.slice(index, lines.indexOf('```', index));
        return kind === 'js' ? BEGIN + (block.includes(OPEN) ? '' : OPEN) : '';
    });
    write(name, script.join('\n'));
    const printed = run(name, ['--scenario', path.join(folder, name)]);
    script.forEach((line, index) => {
        const promised = /^print\(.*\); +\/\/ (.*)$/.exec(line);
        if (/print\(.*\/\//.test(line) && !(promised && printed.includes(promised[1]))) {
            fail(`${name}:${index + 1}: this was printed:\n${printed.join('\n')}`);
        }
    });
}

fs.rmSync(folder, { recursive: true, force: true });
fs.mkdirSync(path.join(folder, 'docs'), { recursive: true });
docs.filter(name => name.endsWith('.js')).forEach(name => write(name, read(name)));
write('members.js', `zeb.rig('sync');
    for (const name in Object.assign(zeb.hub('192.168.0.61'), zeb.camera(1))) print(name)`);
const told = read('docs/rigs.md');
const untold = run('members', ['--scenario', 'members.js']).filter(name => name && !told.includes(`\`${name}\``));
if (untold.length > 0) {
    fail(`docs/rigs.md does not tell of ${untold}`);
}
['README.md', ...docs.filter(name => name.endsWith('.md'))].forEach(runDocument);
commands.forEach(line => run(line, line.replace(/ +#.*/, '').split(' ').slice(1)));
