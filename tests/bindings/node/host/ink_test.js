// Ink of the package's overlay on the real screen.
'use strict';

const assert = require('node:assert');
const { test } = require('node:test');
const { Overlay } = require('lumora');
const { White, isRed, pixel, pumpUntil, showDesktop } = require('./desktop');

const forever = 3600000;
const stroke = [
    { x: 200, y: 240, pressure: 1 },
    { x: 400.4, y: 239.6, pressure: 32767 },
    { x: 400, y: 240, pressure: 0 },
];

test('a stroke is on the screen while it lives, and gone afterwards', async (context) => {
    showDesktop();
    const overlay = new Overlay({ backEnd: 'gdi' });
    context.after(() => overlay.destroy());
    overlay.setParams({
        inkColor: 0x0000ff, inkDecayTime: forever, brushSize: 12, usePressure: false, cursor: false,
    });
    await pumpUntil(overlay, () => pixel(300, 240) === White, 'the desktop below the overlay');

    overlay.inputSamples(stroke);
    await pumpUntil(overlay, () => isRed(pixel(300, 240)), 'red ink');
    assert.ok(isRed(pixel(210, 240)) && isRed(pixel(390, 240)));
    assert.strictEqual(pixel(300, 260), White);
    assert.strictEqual(pixel(420, 240), White);

    overlay.setParams({ inkDecayTime: 100 });
    await pumpUntil(overlay, () => pixel(300, 240) === White, 'the desktop after the ink');
});

test('an overlay pumps by itself when it is told to, and no longer once it is destroyed', async (context) => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    context.after(() => overlay.destroy());
    overlay.setParams({ inkColor: 0x0000ff, inkDecayTime: forever, brushSize: 12, cursor: false });
    overlay.inputSamples(stroke);
    overlay.startPumping(5);
    await pumpUntil({ pump() {} }, () => isRed(pixel(390, 240)), 'red ink');
    overlay.destroy();
    assert.strictEqual(process.getActiveResourcesInfo().filter((name) => name === 'Timeout').length, 0);
});
