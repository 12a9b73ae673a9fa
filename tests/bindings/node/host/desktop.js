// A white desktop to draw on, the pixels of the screen, and the thread's quit message.
'use strict';

const assert = require('node:assert');
const { setTimeout: wait } = require('node:timers/promises');
const koffi = require('koffi');

const user32 = koffi.load('user32.dll');
const gdi32 = koffi.load('gdi32.dll');

const createWindow = user32.func('CreateWindowExW', 'void *',
    ['uint', 'str16', 'str16', 'uint', 'int', 'int', 'int', 'int', 'void *', 'void *', 'void *', 'void *']);
const setShellWindow = user32.func('SetShellWindow', 'int', ['void *']);
const updateWindow = user32.func('UpdateWindow', 'int', ['void *']);
const getDC = user32.func('GetDC', 'void *', ['void *']);
const releaseDC = user32.func('ReleaseDC', 'int', ['void *', 'void *']);
const getPixel = gdi32.func('GetPixel', 'uint32_t', ['void *', 'int', 'int']);
const peekMessage = user32.func('PeekMessageW', 'int', ['void *', 'void *', 'uint', 'uint', 'uint']);

const White = 0xffffff;

// The overlay covers the shell's desktop. Where there is a shell already its own counts, which begins at (0, 0) too.
function showDesktop() {
    const toolWindow = 0x80;
    const visiblePopup = 0x90000000;
    const whiteRectangle = 0x6;
    const window = createWindow(toolWindow, 'STATIC', 'Desktop', visiblePopup + whiteRectangle, 0, 0, 640, 480,
        null, null, null, null);
    assert.notStrictEqual(window, null);
    setShellWindow(window);
    updateWindow(window);
    return window;
}

// 0x00BBGGRR, as it is on the screen.
function pixel(x, y) {
    const dc = getDC(null);
    const colour = getPixel(dc, x, y);
    releaseDC(null, dc);
    return colour;
}

// GDI ink is a quarter see-through where the display blends windows, and opaque where it does not.
function isRed(colour) {
    const [red, green, blue] = [colour & 0xff, (colour >> 8) & 0xff, colour >> 16];
    return red === 0xff && green === blue && green <= 0x44;
}

// Pumps until it is so; the limit is for a test that would never end.
async function pumpUntil(overlay, isSo, what) {
    const attempts = 1500;
    for (let attempt = 0; attempt < attempts; ++attempt) {
        overlay.pump();
        if (isSo()) {
            return;
        }
        await wait(10);
    }
    assert.fail(`never seen: ${what}`);
}

// The exit code of the quit message that waits; null without one. It is left in the queue.
function waitingQuit() {
    const message = Buffer.alloc(48);
    const quit = 0x12;
    return peekMessage(message, null, quit, quit, 0) === 0 ? null : Number(message.readBigUInt64LE(16));
}

module.exports = { White, isRed, pixel, pumpUntil, showDesktop, user32, waitingQuit };
