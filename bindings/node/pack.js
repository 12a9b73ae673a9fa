// Makes the npm package: node bindings/node/pack.js LumoraDLL.dll FOLDER. What the package carries besides its sources,
// the library and the licence, is copied to FOLDER/package only.
'use strict';

const { spawnSync } = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');

const carried = ['package.json', 'index.js', 'index.d.ts', 'lib', 'sample', 'README.md'];

function pack(library, folder) {
    const place = path.join(folder, 'package');
    fs.rmSync(place, { recursive: true, force: true });
    fs.mkdirSync(path.join(place, 'prebuilt', 'win32-x64'), { recursive: true });
    for (const name of carried) {
        fs.cpSync(path.join(__dirname, name), path.join(place, name), { recursive: true });
    }
    fs.copyFileSync(path.join(__dirname, '..', '..', 'LICENSE'), path.join(place, 'LICENSE'));
    fs.copyFileSync(library, path.join(place, 'prebuilt', 'win32-x64', 'LumoraDLL.dll'));
    // npm is a batch file on Windows, which only a shell starts.
    return spawnSync('npm pack ./package', { cwd: folder, shell: true, stdio: 'inherit' }).status;
}

const [library, folder] = process.argv.slice(2);
if (folder === undefined) {
    console.error('Usage: node bindings/node/pack.js LumoraDLL.dll FOLDER');
    process.exit(2);
}
process.exit(pack(library, path.resolve(folder)) ?? 1);
