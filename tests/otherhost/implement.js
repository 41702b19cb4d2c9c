'use strict';

// Writes a class for each abstract class that the host has to bring: `Other<Class>` calls `called` and then answers
// what `on<Operation>` says or, without that, 0, null, false or nothing.
//   node implement.js OUTPUT HEADER...

const fs = require('fs');
const path = require('path');

const capital = name => name[0].toUpperCase() + name.slice(1);
// Between commas that no bracket holds together.
const splitArguments = text => text.trim() ? text.split(/,(?![^<(]*[>)])/).map(argument => argument.trim()) : [];

// `notes`: what the header says of an operation up to its line.
function parseOperation(text, notes) {
    const [, result, name, list, isConst] = /^virtual (.*?)(\w+)\((.*)\)( const)? = 0;$/.exec(text);
    const types = splitArguments(list).map(argument => argument.replace(/ = .*/, '').replace(/\w+$/, '').trim());
    return { result: result.trim(), name, types, isConst: Boolean(isConst), mayThrow: !notes.never };
}

// What throws no exception stands in the comment before a class, a group of operations or an operation.
function parseClass(name, comment, body) {
    const operations = [];
    const ofClass = /nothing here throws/.test(comment);
    const ofQuestions = /no question here throws/.test(comment);
    body.replace(/\n\s*(?!virtual|\/\/\/|\n)(?=\S)/g, ' ').split('\n\n').forEach(group => {
        let ofGroup = false;
        let ofOne = false;
        let fresh = false;
        group.split('\n').map(line => line.trim()).forEach(line => {
            if (line.startsWith('///')) {
                ofOne = (fresh && ofOne) || /(does|do) not throw/i.test(line);
                ofGroup = ofGroup || /none( of these)? throws/i.test(line);
                fresh = true;
            } else if (line.endsWith('= 0;')) {
                const operation = parseOperation(line, { never: ofClass || ofGroup || ofOne });
                operation.mayThrow = operation.mayThrow && !(ofQuestions && operation.isConst);
                operations.push(operation);
                fresh = false;
            }
        });
    });
    return { name, operations };
}

// A class that derives from another is the plug-in's.
function parseHeader(file) {
    const pattern = /((?:\/\/\/.*\n)*)class (\w+) \{\npublic:\n([^]*?)\n\};/g;
    return Array.from(fs.readFileSync(file, 'utf8').matchAll(pattern), ([, comment, name, body]) =>
        Object.assign(parseClass(name, comment, body), { header: path.basename(file) }));
}

function writeOperation(owner, { result, name, types, isConst, mayThrow }) {
    const called = `"${owner}::${name}", ${mayThrow}`;
    const part = /^(\w+)&$/.exec(result);
    if (part) {
        return `    Other${part[1]} ${name}Part;\n` +
            `    ${result} ${name}() override { called(${called}); return ${name}Part; }`;
    }
    const given = types.map((type, index) => `${type} a${index}`).join(', ');
    const passed = [called, 'on' + capital(name)].concat(types.map((type, index) => 'a' + index)).join(', ');
    return `    std::function<${result}(${types.join(', ')})> on${capital(name)};\n` +
        `    ${result} ${name}(${given})${isConst ? ' const' : ''} override { return answerOf(${passed}); }`;
}

const writeClass = ({ name, operations }) => `class Other${name} : public ${name} {\npublic:\n` +
    operations.map(operation => writeOperation(name, operation)).join('\n') + '\n};\n';

const [output, ...headers] = process.argv.slice(2);
const hasParts = ({ operations }) => operations.some(({ result }) => result.endsWith('&'));
const classes = headers.flatMap(parseHeader).sort((a, b) => hasParts(a) - hasParts(b));
fs.writeFileSync(output, `// Written by implement.js.
#pragma once

#include <functional>

${Array.from(new Set(classes.map(({ header }) => `#include "${header}"\n`))).join('')}
/// Runs before each answer; it may throw. \`mayThrow\`: the operation is not said to throw nothing.
void called(const char* operation, bool mayThrow);

template <typename Result, typename... Types, typename... Given>
Result answerOf(const char* operation, bool mayThrow, const std::function<Result(Types...)>& answer, Given&&... given) {
    called(operation, mayThrow);
    return answer ? answer(given...) : Result();
}

${classes.map(writeClass).join('\n')}`);
