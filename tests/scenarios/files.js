// A file dialog takes every name that a user could choose in it, and what stands behind it is as it was when he leaves.

const folder = zeb.pref('export/dir');
const within = name => `${folder}/${name}`;
zeb.open();
zeb.window('activate');
const table = zeb.active();
const save = () => zeb.page('wrentabledialog.openExportSupportFileDialog()');
const isZip = name => zeb.readFile(within(name)).startsWith('PK');

['試験.zip', 'no suffix', '長'.repeat(85)].forEach(name => {
    zeb.file(within(name));
    save();
    check(isZip(name), `"${name}" is written`);
});

// This dialog asks nothing about a file that is there, and one with such a name can only be picked.
zeb.writeFile(within('a "b" c.zip'), 'old');
zeb.messages();
zeb.file(within('a "b" c.zip'));
save();
check(isZip('a "b" c.zip') && zeb.messages().length === 2, 'a file is replaced');

zeb.writeFile(within('kept/old.zip'), 'old');
zeb.file(folder);    // a folder is no file to write, and the dialog stays
zeb.file(null);
save();
check(zeb.readFile(within('kept/old.zip')) === 'old', 'nothing is written');
zeb.key('Tab');
check(zeb.active() === table, 'the table has the keyboard again');
check(zeb.readFile('files.js').startsWith('// A file'), 'the scenario has its own folder');

// A folder, by the button behind the path of the save dialog.
zeb.setCamera(zeb.keys()[0], {connected: true, recorded: true, recordedRange: [0, 0]});
zeb.mode('memory');
zeb.file(within('kept'));
const slowly = names => {
    zeb.wait(1000);    // a key of the first moment is taken for one that was meant for what was there before
    names.forEach(name => zeb.key(name));
};
zeb.modal(() => slowly(['Tab', 'Space', 'Shift+Tab', 'Return']));
zeb.modal(() => slowly(['Return']));    // the plan
zeb.menu('File > Save');
check(zeb.results()[0].endsWith('kept'), 'the chosen folder is saved into');
