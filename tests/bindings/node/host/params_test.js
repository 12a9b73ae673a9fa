// The parameters: what goes in comes out, from the host, by brush data, and from the settings dialog.
'use strict';

const assert = require('node:assert');
const { test } = require('node:test');
const { Overlay } = require('lumora');
const { makeBrushData } = require('lumora/lib/brush_data');
const { user32 } = require('./desktop');

const distinct = {
    reserved0: 0x11223344, inkDecayTime: 701, inkColor: 0x00445566, minBrushSize: 3, brushSize: 44, maxPressure: 8191,
    line: false, outline: true, cursor: false, usePressure: false, useOffset: true, zebraMode: true, colorPicker: false,
    reserved31: 0xa5,
};

function withOverlay(action) {
    const overlay = new Overlay({ backEnd: 'gdi' });
    try {
        action(overlay);
    } finally {
        overlay.destroy();
    }
}

test("a new overlay has the library's defaults", () => withOverlay((overlay) => {
    const { inkDecayTime, inkColor, brushSize, line, outline } = overlay.params;
    assert.deepStrictEqual({ inkDecayTime, inkColor, brushSize, line, outline },
        { inkDecayTime: 100, inkColor: 0x202020, brushSize: 10, line: true, outline: false });
}));

test('every field comes back as it was set', () => withOverlay((overlay) => {
    overlay.setParams(distinct);
    assert.deepStrictEqual(overlay.params, distinct);
}));

test('fields that are not named stay', () => withOverlay((overlay) => {
    overlay.setParams(distinct);
    overlay.setParams({ brushSize: 9, outline: false });
    assert.deepStrictEqual(overlay.params, { ...distinct, brushSize: 9, outline: false });
}));

test('brush data changes what its kind names', () => withOverlay((overlay) => {
    overlay.setParams(distinct);
    const expected = { ...distinct };
    const sent = (kind, values, changes) => {
        overlay.sendBrushData(kind, ...values);
        assert.deepStrictEqual(overlay.params, Object.assign(expected, changes), kind);
    };
    sent('Nothing', [], {});
    sent('InkColor', [0x332211], { inkColor: 0x332211 });
    sent('BrushSize', [2, 31], { minBrushSize: 2, brushSize: 31 });
    sent('InkDecayTime', [1500], { inkDecayTime: 1500 });
    sent('BrushParams', [0x665544, 7, 300], { inkColor: 0x665544, minBrushSize: 7, brushSize: 300 });
}));

test('brush data is made byte by byte', () => {
    assert.strictEqual(makeBrushData('BrushSize', [1, 30]).toString('hex'),
        '4200720075007300680053006900' + '7a0065000000' + '08000000' + '01000000' + '1e000000');
});

const sendMessage = user32.func('SendMessageW', 'intptr_t', ['void *', 'uint', 'uintptr_t', 'intptr_t']);
const postMessage = user32.func('PostMessageW', 'int', ['void *', 'uint', 'uintptr_t', 'intptr_t']);
const findWindow = user32.func('FindWindowExW', 'void *', ['void *', 'void *', 'str16', 'str16']);
const getWindow = user32.func('GetWindow', 'void *', ['void *', 'uint']);
const getDlgItem = user32.func('GetDlgItem', 'void *', ['void *', 'int']);
const isVisible = user32.func('IsWindowVisible', 'int', ['void *']);
const setFocus = user32.func('SetFocus', 'void *', ['void *']);
const getFocus = user32.func('GetFocus', 'void *', []);

const command = 0x111;
const settings = 40001;
const checkOutline = 1010;
const checkZebraMode = 1011;

function openDialog(overlay) {
    const owner = 4;
    sendMessage(overlay.windowHandle, command, settings, 0);
    for (let dialog = null; (dialog = findWindow(null, dialog, '#32770', null)) !== null;) {
        if (isVisible(dialog) && getWindow(dialog, owner) === overlay.windowHandle) {
            return dialog;
        }
    }
    return assert.fail('the settings dialog has not opened');
}

test('what a person changes in the settings dialog is read, and not undone by a change', () => withOverlay((overlay) => {
    const click = 0xf5;
    const dialog = openDialog(overlay);
    sendMessage(getDlgItem(dialog, checkOutline), click, 0, 0);
    assert.strictEqual(overlay.params.outline, true);
    sendMessage(getDlgItem(dialog, checkZebraMode), click, 0, 0);
    overlay.setParams({ brushSize: 21 });
    const { outline, zebraMode, brushSize } = overlay.params;
    assert.deepStrictEqual({ outline, zebraMode, brushSize }, { outline: true, zebraMode: true, brushSize: 21 });
}));

test('pumping gives the settings dialog its keys', () => withOverlay((overlay) => {
    const keyDown = 0x100;
    const tab = 9;
    const box = getDlgItem(openDialog(overlay), checkOutline);
    setFocus(box);
    assert.strictEqual(getFocus(), box);
    postMessage(box, keyDown, tab, 0);
    overlay.pump();
    assert.notStrictEqual(getFocus(), box);
}));
