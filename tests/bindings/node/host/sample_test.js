// The package's sample draws its stroke on the screen, takes it away and ends by itself. The argument is its back-end.
'use strict';

const { test } = require('node:test');
const { Overlay } = require('lumora');
const { White, pixel, pumpUntil, showDesktop } = require('./desktop');

const others = { pump() {} }; // the sample pumps
const columns = [250, 300, 350, 400, 450, 500, 550];
const rowOf = (column) => 440 - column / 5;
const hasInk = (column) => pixel(column, rowOf(column)) !== White && pixel(column, rowOf(column) - 20) === White;

test('the stroke of the sample comes and goes', async (context) => {
    showDesktop();
    await pumpUntil(others, () => !columns.some(hasInk), 'the desktop');

    // Where the machine stands still for longer than ink lives, a look from time to time would miss it. So there is one
    // after each time that the sample has pumped, before anything can age.
    let seen = false;
    const pump = Overlay.prototype.pump;
    context.mock.method(Overlay.prototype, 'pump', function pumpAndLook() {
        const goesOn = pump.call(this);
        seen ||= columns.some(hasInk);
        return goesOn;
    });
    require('lumora/sample/stroke.js');
    await pumpUntil(others, () => seen, 'ink');
    await pumpUntil(others, () => !columns.some(hasInk), 'the desktop after the ink');
});
