// Wrong values throw before anything crosses to the library.
'use strict';

const assert = require('node:assert');
const { test } = require('node:test');
const { LumoraError, Overlay } = require('lumora');

const good = { x: 1, y: 2, pressure: 3 };
const wrongCalls = [
    (overlay) => overlay.inputSamples(null),
    (overlay) => overlay.inputSamples(good),
    (overlay) => overlay.inputSamples([good, null]),
    (overlay) => overlay.inputSamples([, good]),
    (overlay) => overlay.inputSamples([{ ...good, x: '1' }]),
    (overlay) => overlay.inputSamples([{ ...good, y: NaN }]),
    (overlay) => overlay.inputSamples([{ ...good, y: -Infinity }]),
    (overlay) => overlay.inputSamples([{ ...good, x: 2 ** 31 }]),
    (overlay) => overlay.inputSamples([{ ...good, x: -(2 ** 31) - 1 }]),
    (overlay) => overlay.inputSamples([{ ...good, pressure: 10n }]),
    (overlay) => overlay.inputSamples([{ x: 1, y: 2 }]),
    (overlay) => overlay.setParams(undefined),
    (overlay) => overlay.setParams({ brushSize: -1 }),
    (overlay) => overlay.setParams({ brushSize: 1.5 }),
    (overlay) => overlay.setParams({ inkColor: 2 ** 32 }),
    (overlay) => overlay.setParams({ inkColor: '#ff0000' }),
    (overlay) => overlay.setParams({ reserved31: 256 }),
    (overlay) => overlay.setParams({ outline: 1 }),
    (overlay) => overlay.setParams({ brushSize: 77, brushsize: 77 }),
    (overlay) => overlay.setParams(Object.assign(Object.create(null), { line: Object.create(null) })),
    (overlay) => overlay.sendBrushData('Inkcolor', 1),
    (overlay) => overlay.sendBrushData('toString'),
    (overlay) => overlay.sendBrushData('BrushSize', 77),
    (overlay) => overlay.sendBrushData('BrushSize', 77, -1),
    (overlay) => overlay.setBackEnd('metal'),
    (overlay) => overlay.setBackEnd(undefined),
    (overlay) => overlay.startPumping(0),
    () => Overlay.setDebugLevel('1'),
    () => Overlay.setDebugLevel(-1),
    () => new Overlay({ backEnd: 'toString' }),
];

test('every wrong value throws the one error and changes nothing', () => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    const before = overlay.params;
    const window = overlay.windowHandle;
    for (const call of wrongCalls) {
        assert.throws(() => call(overlay), LumoraError, String(call));
    }
    assert.deepStrictEqual(overlay.params, before);
    assert.strictEqual(overlay.windowHandle, window);
    overlay.destroy();
});

test('a message names what is wrong', () => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    assert.throws(() => overlay.inputSamples([good, { ...good, y: 'low' }]), {
        name: 'LumoraError', message: "y of sample 1 must be a number, not 'low'",
    });
    assert.throws(() => overlay.setParams({ brushSize: -1 }), {
        name: 'LumoraError', message: 'brushSize is -1; it must lie between 0 and 4294967295',
    });
    overlay.destroy();
});

test('the ends of the ranges are let through', () => {
    const overlay = new Overlay({ backEnd: 'gdi' });
    overlay.inputSamples([{ x: 2 ** 31 - 1, y: -(2 ** 31), pressure: -(2 ** 31) }]);
    overlay.setParams({ reserved0: 2 ** 32 - 1, reserved31: 255 });
    assert.strictEqual(overlay.params.reserved0, 2 ** 32 - 1);
    assert.strictEqual(overlay.params.reserved31, 255);
    overlay.destroy();
});
