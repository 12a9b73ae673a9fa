// Draws one stroke and ends when its ink has gone: node node_modules/lumora/sample/stroke.js [composition|direct2d|gdi]
'use strict';

const { setTimeout: wait } = require('node:timers/promises');
const { Overlay } = require('lumora');

async function drawStroke(overlay) {
    const steps = 80;
    const { maxPressure } = overlay.params;
    for (let step = 0; step <= steps; ++step) {
        // The last sample lifts the pen.
        const pressure = step < steps ? 1 + (maxPressure * step) / steps : 0;
        overlay.inputSamples([{ x: 200 + 5 * step, y: 400 - step, pressure }]);
        await wait(10);
    }
}

async function main() {
    const overlay = new Overlay({ backEnd: process.argv[2] });
    try {
        overlay.setParams({ inkColor: 0x143cc8, inkDecayTime: 1500 });
        overlay.startPumping();
        await drawStroke(overlay);
        await wait(2000);
    } finally {
        overlay.destroy();
    }
}

main();
