// The package's sample draws its stroke on the screen, takes it away and ends by itself. The argument is its back-end.
'use strict';

const { test } = require('node:test');
const { White, pixel, pumpUntil, showDesktop } = require('./desktop');

const others = { pump() {} }; // the sample pumps

test('the stroke of the sample comes and goes', async () => {
    showDesktop();
    require('lumora/sample/stroke.js');
    await pumpUntil(others, () => pixel(450, 350) === White, 'the desktop');
    await pumpUntil(others, () => pixel(450, 350) !== White && pixel(450, 330) === White, 'ink');
    await pumpUntil(others, () => pixel(450, 350) === White, 'the desktop after the ink');
});
