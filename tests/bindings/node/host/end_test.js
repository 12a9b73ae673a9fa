// What the end of an overlay leaves in the thread's queue and among its windows.
'use strict';

const assert = require('node:assert');
const { test } = require('node:test');
const { LumoraError, Overlay } = require('lumora');
const { user32, waitingQuit } = require('./desktop');

const postQuitMessage = user32.func('PostQuitMessage', 'void', ['int']);
const isWindow = user32.func('IsWindow', 'int', ['void *']);

test('destroy leaves no window and no quit message', () => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    const window = overlay.windowHandle;
    assert.strictEqual(typeof window, 'bigint');
    assert.ok(isWindow(window));
    overlay.destroy();
    assert.ok(!isWindow(window));
    assert.strictEqual(waitingQuit(), null);
    overlay.destroy();
});

test('a second overlay takes the place of the first and leaves no quit message', () => {
    const first = new Overlay({ backEnd: 'gdi' });
    const second = new Overlay();
    assert.strictEqual(waitingQuit(), null);
    assert.throws(() => first.params, LumoraError);
    assert.throws(() => first.startPumping(), LumoraError);
    first.destroy();
    assert.ok(isWindow(second.windowHandle));
    second.destroy();
});

test('a change of the back-end leaves no window and no quit message, and keeps the parameters', () => {
    const overlay = new Overlay({ backEnd: 'direct2d' });
    overlay.setParams({ brushSize: 33 });
    const before = overlay.windowHandle;
    overlay.setBackEnd('gdi');
    assert.ok(!isWindow(before));
    assert.ok(isWindow(overlay.windowHandle));
    assert.strictEqual(waitingQuit(), null);
    assert.strictEqual(overlay.params.brushSize, 33);
    overlay.destroy();
});

test("the host's own quit message stays, until it is pumped", () => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    postQuitMessage(7);
    const second = new Overlay();
    assert.strictEqual(waitingQuit(), 7);
    assert.strictEqual(second.pump(), false);
    assert.strictEqual(waitingQuit(), null);
    assert.strictEqual(second.pump(), true);
    postQuitMessage(8);
    second.destroy();
    assert.strictEqual(waitingQuit(), 8);
    assert.throws(() => overlay.pump(), LumoraError);
});

test('a using declaration would destroy it', () => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    const window = overlay.windowHandle;
    overlay[Symbol.dispose]();
    assert.ok(!isWindow(window));
});
