'use strict';

// Page scripts run in a web view whose engine knows ES2015 and no more: what is newer must not slip in.

const fs = require('fs');
const path = require('path');

const js = require('@eslint/js');

const readonly = names => Object.assign({}, ...names.map(name => ({ [name]: 'readonly' })));

const browser = readonly(['window', 'document', 'location', 'Node', 'Event', 'MouseEvent', 'clearTimeout', '$', 'Hogan',
    'jQuery', 'w2ui', 'w2utils']);

// What scripts that a page loads define for those that it loads too.
const definedBy = (...scripts) => readonly(scripts.reduce((names, script) => names.concat(
    Array.from(fs.readFileSync(script, 'utf8').matchAll(/^(?:var|let|const|function|class) (\w+)/gm), found => found[1])
), []));

const hostScripts = 'zebsim/pages/scripts';
const host = definedBy('documents/custominfo/items.js',
    ...fs.readdirSync(hostScripts).map(name => path.join(hostScripts, name)));

// The topics of a page are joined into one script at build time.
const joined = 'build/dev/pages';
const joinedScripts = fs.existsSync(joined) ? fs.readdirSync(joined).filter(name => name.endsWith('.js')) : [];
const page = definedBy(...joinedScripts.map(name => path.join(joined, name)));
// What all pages share: no page uses all of it.
const sharedScripts = 'pages/common';
const shared = Object.keys(definedBy(...fs.readdirSync(sharedScripts).map(name => path.join(sharedScripts, name))));
const bridges = readonly(joinedScripts.map(name => path.basename(name, '.js')));

// Calls of later editions that parse like any other.
const missing = ['entries', 'values', 'fromEntries', 'getOwnPropertyDescriptors']
    .map(property => ({ object: 'Object', property, message: 'The pages\' engine does not have it.' }))
    .concat(['padStart', 'padEnd', 'flat', 'flatMap', 'matchAll', 'replaceAll', 'trimStart', 'trimEnd', 'append',
        'prepend', 'replaceChildren', 'at'
    ].map(property => ({ property, message: 'The pages\' engine does not have it.' })));

const pageRules = {
    'no-undef': 'error',
    'no-unused-vars': ['error', { vars: 'local', args: 'after-used', caughtErrors: 'none' }],
    'no-redeclare': ['error', { builtinGlobals: false }],
    'no-restricted-properties': ['error', ...missing],
    'no-restricted-syntax': ['error', {
        selector: 'CallExpression[callee.property.name="forEach"] > MemberExpression > ' +
            'CallExpression[callee.property.name="querySelectorAll"]',
        message: 'A NodeList has no forEach in the pages\' engine.'
    }, {
        selector: 'ConditionalExpression > ArrowFunctionExpression.consequent',
        message: 'The pages\' engine can\'t read an arrow function between ? and :.'
    }],
    'no-implied-eval': 'error',
    'no-eval': 'error',
    'no-new-func': 'error',
    eqeqeq: 'error',
    curly: 'error',
    'prefer-const': 'error',
    'no-shadow': ['error', { builtinGlobals: false }],
    'max-lines': ['error', 300],
    'max-len': ['error', 120]
};

module.exports = [
    {
        ignores: ['node_modules/', 'build/*', '!build/dev/', 'build/dev/*', `!${joined}/`, `${joined}/*`,
            `!${joined}/*.js`]
    },
    js.configs.recommended,
    {
        // A topic alone: what it shares with the others is looked at where they are one.
        files: ['pages/**/*.js'],
        languageOptions: { ecmaVersion: 2015, sourceType: 'script', globals: browser },
        rules: Object.assign({}, pageRules, { 'no-undef': 'off' })
    },
    {
        files: [`${joined}/*.js`],
        languageOptions: {
            ecmaVersion: 2015,
            sourceType: 'script',
            globals: Object.assign({}, browser, host, bridges)
        },
        rules: Object.assign({}, pageRules, {
            'no-unused-vars': ['error', {
                vars: 'all', varsIgnorePattern: `^(${shared.join('|')})$`, args: 'after-used', caughtErrors: 'none'
            }],
            'max-lines': 'off'
        })
    },
    {
        files: ['zebsim/pages/**/*.js', 'documents/**/*.js'],
        languageOptions: {
            ecmaVersion: 2015,
            sourceType: 'script',
            globals: Object.assign({}, browser, host, readonly(['app', 'items', 'setTimeout',
                'CustomInfoDialog', 'cameraSettings', 'addnumberdialog', 'adddevice', 'adddeviceAutoCameraName',
                'savefile', 'fileopendialog']))
        },
        rules: pageRules
    },
    {
        // What assistive technology is told of any page.
        files: ['webdialog/**/*.js'],
        languageOptions: {
            ecmaVersion: 2015,
            sourceType: 'script',
            globals: Object.assign({}, browser, readonly(['MutationObserver', 'console', 'getComputedStyle',
                'innerHeight', 'innerWidth', 'pageReaderEvents', 'readerFacts']))
        },
        rules: pageRules
    },
    {
        // Scenarios run in the stand-in host's own engine, not in a page.
        files: ['demo/**/*.js', 'docs/**/*.js', 'tests/**/*.js'],
        languageOptions: { ecmaVersion: 2016, sourceType: 'script', globals: readonly(['zeb', 'print', 'check']) },
        rules: { 'no-unused-vars': ['error', { vars: 'local' }] }
    },
    {
        // What tests and measurements run inside a page.
        files: ['tests/pages/**/*.js', 'bench/**/*.js'],
        languageOptions: {
            ecmaVersion: 2015,
            sourceType: 'script',
            globals: Object.assign({}, browser, host, page, bridges, readonly(['MutationObserver', 'bench']))
        },
        rules: pageRules
    },
    {
        // Run by Node.
        files: ['eslint.config.js', 'tests/docs/*.js', 'tests/otherhost/*.js', 'tests/zebsim/*.js'],
        languageOptions: {
            ecmaVersion: 2022,
            sourceType: 'commonjs',
            globals: readonly(['require', 'module', 'process', 'console'])
        },
        rules: { 'max-len': ['error', 120] }
    }
];
