// The calling thread's messages: pumped for hosts that do not do it, and without the quit that an overlay's end posts.
'use strict';

const koffi = require('koffi');

const WM_QUIT = 0x0012;
const WM_COMMAND = 0x0111;
const PM_REMOVE = 1;
const GA_ROOT = 2;
const GW_OWNER = 4;

// MSG on Windows x64: the window, the message's number, its first parameter, and more that is not read here.
const messageBytes = Buffer.alloc(48);
const windowOf = () => messageBytes.readBigUInt64LE(0);
const numberOf = () => messageBytes.readUInt32LE(8);
const exitCode = () => messageBytes.readInt32LE(16);

let bound = null;

function user32() {
    if (bound === null) {
        const library = koffi.load('user32.dll');
        bound = {
            peekMessage: library.func('PeekMessageW', 'int', ['void *', 'void *', 'uint', 'uint', 'uint']),
            postQuitMessage: library.func('PostQuitMessage', 'void', ['int']),
            translateMessage: library.func('TranslateMessage', 'int', ['void *']),
            dispatchMessage: library.func('DispatchMessageW', 'intptr_t', ['void *']),
            isDialogMessage: library.func('IsDialogMessageW', 'int', ['uint64_t', 'void *']),
            getAncestor: library.func('GetAncestor', 'uint64_t', ['uint64_t', 'uint']),
            getWindow: library.func('GetWindow', 'uint64_t', ['uint64_t', 'uint']),
            sendMessage: library.func('SendMessageW', 'intptr_t', ['void *', 'uint', 'uintptr_t', 'intptr_t']),
        };
    }
    return bound;
}

// The exit code of the quit message that waits, which is taken out of the queue; null without one.
function takeQuit() {
    const waits = user32().peekMessage(messageBytes, null, WM_QUIT, WM_QUIT, PM_REMOVE) !== 0;
    return waits ? exitCode() : null;
}

// Runs what destroys an overlay window and takes the quit message that this posts out of the queue, where it would end
// the host. One that waited before is the host's own and stays.
function withoutQuit(action) {
    const hostsQuit = takeQuit();
    try {
        return action();
    } finally {
        takeQuit();
        if (hostsQuit !== null) {
            user32().postQuitMessage(hostsQuit);
        }
    }
}

// The settings dialog belongs to the overlay and gets its keys this way.
function isForDialog(overlay) {
    const root = user32().getAncestor(windowOf(), GA_ROOT);
    return Number(root) !== 0 && overlay !== null && BigInt(user32().getWindow(root, GW_OWNER)) === overlay &&
        user32().isDialogMessage(root, messageBytes) !== 0;
}

// Dispatches what waits; false when a quit message was among it.
function pump(overlay) {
    while (user32().peekMessage(messageBytes, null, 0, 0, PM_REMOVE) !== 0) {
        if (numberOf() === WM_QUIT) {
            return false;
        }
        if (!isForDialog(overlay)) {
            user32().translateMessage(messageBytes);
            user32().dispatchMessage(messageBytes);
        }
    }
    return true;
}

function sendCommand(window, command) {
    user32().sendMessage(window, WM_COMMAND, command, 0);
}

module.exports = { pump, sendCommand, withoutQuit };
