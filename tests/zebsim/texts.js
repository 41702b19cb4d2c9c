'use strict';

// Each text that reaches the user is marked where it stands, and has its entry in every catalogue.
//   node texts.js ROOT LUPDATE FOLDER

const { spawnSync } = require('child_process');
const fs = require('fs');
const path = require('path');

const [root, lupdate, folder] = process.argv.slice(2);
const faults = [];
const expect = (holds, fault) => holds || faults.push(fault);

// To `lupdate` the keys are ids: a `tr` needs a class around it, and many marks have none.
const MARKS = 'QT_TRID_NOOP=TextKey,QT_TRID_NOOP+=QT_TR_NOOP,QT_TRID_NOOP+=uiText,qsTrId=textKey,qsTrId+=translate';
// Where no source of the product lies.
const OTHERS = ['bench', 'build', 'docs', 'node_modules', 'tests'];

const read = file => fs.readFileSync(file, 'utf8');
const found = (text, pattern) => Array.from(text.matchAll(pattern), match => match[1]);

function filesBelow(top) {
    return fs.readdirSync(top, { withFileTypes: true }).flatMap(entry =>
        entry.isDirectory() ? filesBelow(path.join(top, entry.name)) : [path.join(top, entry.name)]);
}

const product = fs.readdirSync(root, { withFileTypes: true })
    .filter(entry => entry.isDirectory() && !entry.name.startsWith('.') && !OTHERS.includes(entry.name))
    .flatMap(entry => filesBelow(path.join(root, entry.name)));
const like = pattern => product.filter(file => pattern.test(file));

// Key -> where it was found. By way of a .po file: the .ts of `lupdate` does not quote an id.
function markedKeys() {
    const [list, po] = ['sources', 'keys.po'].map(name => path.join(folder, name));
    fs.writeFileSync(list, like(/\.(cpp|h|js)$/).join('\n'));
    const args = ['-silent', '-tr-function-alias', MARKS, '@' + list, '-ts', po];
    const { stderr } = spawnSync(lupdate, args, { encoding: 'utf8' });
    stderr.split('\n').filter(line => !/^$|has no source/.test(line)).forEach(line => faults.push(line));
    const entries = read(po).matchAll(/^#\. ts-id (.*)\n(?:#\..*\n)*#: (.*)/gm);
    return new Map(Array.from(entries, entry => entry.slice(1)));
}

// Elements of the class "localize" have their text and their title translated.
function markupKeys(file) {
    const elements = read(file).matchAll(
        /<(\w+)\b([^>]*\bclass="[^"]*\blocalize\b[^"]*"[^>]*)>(?:<span><\/span>)?\s*([^<]*)/g);
    return Array.from(elements).flatMap(([, tag, attributes, text]) =>
        [text.trim().replace(/\s+/g, ' '),
            ...tag === 'option' ? [] : found(attributes, /\b(?:title|value)="([^"]*)"/g)]
    ).filter(key => /[A-Za-z]/.test(key)).map(key => [key, file]);
}

const MARKUP = { lt: '<', gt: '>', quot: '"', apos: "'", amp: '&' };
const plain = text => text.replace(/&(\w+);/g, (_, name) => MARKUP[name]);

// A key of one word that begins small, has an underscore or a capital within is rather a name than an English text.
const readsLikeAName = key => /^([a-z]\S*|\S*_\S*|\S*[a-z][A-Z]\S*)$/.test(key);

const catalogues = like(/\/zeb4_\w+\.ts$/);
const languages = catalogues.map(file => path.basename(file, '.ts').slice('zeb4_'.length));
const keys = new Map([...markedKeys(), ...like(/\.html$/).flatMap(markupKeys), ...languages.map(language =>
    [new Intl.DisplayNames('en', { type: 'language' }).of(language), 'the list of languages'])]);
catalogues.forEach((file, index) => {
    const entries = found(read(file), /<message[^>]*>([\s\S]*?)<\/message>/g).map(message =>
        [/<source>([^<]*)/, /<translation>([^<]*)/].map(part => plain((part.exec(message) || ['', ''])[1])));
    const texts = new Map(entries);
    expect(texts.size === entries.length, `${file} has two texts for one key`);
    keys.forEach((place, key) => {
        const isNeeded = languages[index] !== 'en' || readsLikeAName(key);
        expect(!isNeeded || texts.get(key), `"${key}" of ${place} has no text in ${file}`);
        expect(isNeeded || texts.get(key) !== key, `"${key}" is its own English text without an entry`);
    });
    texts.forEach((text, key) => expect(keys.has(key), `"${key}" of ${file} is asked for by no source`));
});

const BARE = {
    // A literal in the first argument, or what a notice or a failed file tells.
    cpp: [/\b(?:translated?|confirm\w*|warn\w*|alert|info|execProgress)\((?!"zeb4")[^()";]*(?:Q\w+\()?"/g,
        /(?:\b\w+Exception(?: \w+)?\(|uiText\((?!\s*")|tell\(Message|add\(Message|FileError\()[^()";]*(?:Q\w+\()?"/g],
    // No literal to a call of the bridge; a key alone, outside of a template, to what `lupdate` reads.
    js: [/\b(?:alert|warn|info|confirm)\(\s*['"`]|\bcaption: '|\$\{[^}]*\b(?:translate|textKey)\(/g,
        /\b(?:translate|textKey)\((?!'[^']*'\)|[\w.]+(?:\(\)|, [\w.[\]]+)?\)|'p_' \+)/g]
};
like(/\.(cpp|h|js)$/).forEach(file => BARE[file.endsWith('.js') ? 'js' : 'cpp'].forEach(pattern =>
    (read(file).match(pattern) || []).forEach(bare => faults.push(`${file}: ${bare}`))));

console.log(`${keys.size} keys, ${catalogues.length} catalogues`);
console.error(faults.join('\n'));
process.exit(faults.length > 0 || keys.size < 300 ? 1 : 0);
