// Loads LumoraDLL.dll, once in a process, and looks whether it is the one that this package was written for.
'use strict';

const koffi = require('koffi');
const fs = require('node:fs');
const path = require('node:path');
const { isMainThread } = require('node:worker_threads');
const { LumoraError } = require('./error');
const { LM_Params, LM_PenData } = require('./records');

// Electron packs a program into an archive out of which Windows loads no library.
const packaged = path
    .join(__dirname, '..', 'prebuilt', 'win32-x64', 'LumoraDLL.dll')
    .replace(`app.asar${path.sep}`, `app.asar.unpacked${path.sep}`);

let loaded = null;

function checkPlace() {
    if (process.platform !== 'win32' || process.arch !== 'x64') {
        throw new LumoraError(`Lumora runs on Windows x64, not on ${process.platform} ${process.arch}`);
    }
    if (!isMainThread) {
        throw new LumoraError('Lumora is called from one thread: the main one, not a worker');
    }
}

function bind(library) {
    const pointer = 'void *';
    return {
        create: library.func('LM_Create', pointer, []),
        destroy: library.func('LM_Destroy', 'void', []),
        getCopiedParams: library.func('LM_GetCopiedParams', 'void', [pointer]),
        getElmSize: library.func('LM_GetElmSize', 'void', [pointer, pointer]),
        getWindowHandle: library.func('LM_GetWindowHandle', pointer, []),
        inputPenDataArray: library.func('LM_InputPenDataArray', 'void', [pointer, 'uint64_t']),
        setDataFromApp: library.func('LM_SetData_from_App', 'void', [pointer, 'uint64_t']),
        setDebugLevel: library.func('LM_SetDebugLevel', 'void', ['uint32_t']),
        setParams: library.func('LM_SetParams', 'void', [pointer]),
    };
}

function checkSizes(functions, file) {
    const sizes = new BigUint64Array(2);
    functions.getElmSize(sizes.subarray(0, 1), sizes.subarray(1));
    if (sizes[0] !== BigInt(LM_Params.size) || sizes[1] !== BigInt(LM_PenData.size)) {
        throw new LumoraError(`${file} has records of ${sizes.join(' and ')} bytes, ` +
            `this package of ${LM_Params.size} and ${LM_PenData.size}: they do not belong together`);
    }
}

function open(file) {
    if (!fs.existsSync(file)) {
        throw new LumoraError(`${file} is missing`);
    }
    try {
        return bind(koffi.load(file));
    } catch (cause) {
        throw new LumoraError(`${file} cannot be loaded: ${cause.message}`, { cause });
    }
}

// Not before it is asked for: a program for several systems may require this package on all of them.
function load(file = packaged) {
    checkPlace();
    if (loaded === null) {
        const functions = open(file);
        checkSizes(functions, file);
        loaded = { file, functions };
    } else if (loaded.file !== file) {
        throw new LumoraError(`${loaded.file} is loaded already; a process has one`);
    }
}

function library() {
    checkPlace();
    if (loaded === null) {
        load();
    }
    return loaded.functions;
}

module.exports = { library, load };
