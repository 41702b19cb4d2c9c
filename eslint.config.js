'use strict';

// Page scripts run in a web view whose engine knows ES2015 and no more: what is newer must not slip in.

const js = require('@eslint/js');

const readonly = names => Object.assign({}, ...names.map(name => ({ [name]: 'readonly' })));

const browser = readonly(['window', 'document', 'location', 'Node', 'Event', 'MouseEvent', 'clearTimeout', '$',
    'jQuery', 'w2ui', 'w2utils']);

// The topics of a page are joined into one script, so what one defines the others see.
const table = readonly([
    'wrentabledialog',
    'wrentabledialog_obj', 'wrentabledialog_const_obj', 'wrentabledialog_column_obj', 'TABS',
    'escapeMarkup', 'textKey', 'translate', 'parseReply', 'guarded', 'logged', 'onClick', 'isDisabled', 'onPress',
    'onSwitch', 'textTip', 'closeTip', 'followTip', 'showElement', 'setText', 'setClass', 'setStyle',
    'Cell', 'COLUMNS', 'isBatch', 'isOff', 'isOffOrBatch', 'isSteered', 'hasDropDowns', 'indexesOf', 'showChoice',
    'plainColumn',
    'DrawnRow', 'columnKind', 'GridView', 'LIVE', 'MEMORY', 'views', 'viewAt', 'viewOf', 'tabHeader',
    'dropDown', 'listenToGrid', 'rowKeys', 'connectedKeys', 'controls',
    'lowLightSlider', 'showSlider', 'sliderValue', 'sliderMax', 'markupOf',
    'numberBox', 'showNumber', 'keepingFocus', 'caretOf', 'placeCaret', 'holdNumber', 'logUnused', 'isOutOfSight',
    'linesToDraw',
    'placeRows', 'refusePress'
]);

const host = readonly(['zeb4func', 'plugin_obj', 'pluginIcons', 'SliderProperty',
    'PREF_KEY_SAVE_STATUS_ONLIVEMEMORYMODE', 'PREF_VAL_SAVE_STATUS_DEFAULT', 'PREF_VAL_SAVE_STATUS_LAYOUT',
    'PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECREADY', 'PREF_KEY_WREN_SETTINGS_TABLE_COLOR_RECORDING',
    'PREF_KEY_WREN_SETTINGS_TABLE_COLOR_MEMORY',
    ...['CAMERA_SETTINGS', 'CUSTOM_SETTINGS', 'EXTERNAL_SYNC', 'ALERT', 'LOCK', 'SYNC_STATUS', 'FRAMERATE', 'SHUTTER',
        'RESOLUTION', 'TRIGGER_MODE', 'REDUCE_MODE', 'SYNC_TAB', 'IRIG_TAB', 'PLUGIN_TAB', 'MEMORYPLUGIN_TAB',
        'RECORD_CHECK', 'RECORDED_FRAMERATE', 'RECORDED_STARTFRAME', 'RECORDED_ENDFRAME', 'TRIGGER_OFFSET'
    ].map(name => 'PREF_KEY_WREN_DISPLAY_' + name)]);

// Calls of later editions that parse like any other.
const missing = ['entries', 'values', 'fromEntries', 'getOwnPropertyDescriptors']
    .map(property => ({ object: 'Object', property, message: 'The pages\' engine does not have it.' }))
    .concat(['padStart', 'padEnd', 'flat', 'flatMap', 'matchAll', 'replaceAll', 'trimStart', 'trimEnd', 'append',
        'prepend', 'replaceChildren', 'at'
    ].map(property => ({ property, message: 'The pages\' engine does not have it.' })));

const pageRules = {
    'no-undef': 'error',
    'no-unused-vars': ['error', { vars: 'local', args: 'after-used', caughtErrors: 'none' }],
    // A topic defines what the list above tells the others.
    'no-redeclare': ['error', { builtinGlobals: false }],
    'no-restricted-properties': ['error', ...missing],
    'no-restricted-syntax': ['error', {
        selector: 'CallExpression[callee.property.name="forEach"] > MemberExpression > ' +
            'CallExpression[callee.property.name="querySelectorAll"]',
        message: 'A NodeList has no forEach in the pages\' engine.'
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
    { ignores: ['build/', 'node_modules/'] },
    js.configs.recommended,
    {
        files: ['pages/**/*.js'],
        languageOptions: { ecmaVersion: 2015, sourceType: 'script', globals: Object.assign({}, browser, host, table) },
        rules: pageRules
    },
    {
        files: ['zebsim/pages/**/*.js'],
        languageOptions: {
            ecmaVersion: 2015,
            sourceType: 'script',
            globals: Object.assign({}, browser, host, readonly(['app', 'items']))
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
            globals: Object.assign({}, browser, table, readonly(['MutationObserver', 'bench']))
        },
        rules: pageRules
    },
    {
        // Run by Node.
        files: ['eslint.config.js', 'tests/docs/*.js', 'tests/otherhost/*.js'],
        languageOptions: { sourceType: 'commonjs', globals: readonly(['require', 'module', 'process', 'console']) },
        rules: { 'max-len': ['error', 120] }
    }
];
