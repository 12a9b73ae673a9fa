// Pen samples as the bytes that the library reads.
'use strict';

const koffi = require('koffi');
const { checkObject, roundToInt32, shown } = require('./check');
const { LumoraError } = require('./error');
const { LM_PenData } = require('./records');

// The library goes by the time of receipt, but drops what has time 0.
const blank = { time: 1, aux1: 0, aux4: 0, aux6: 0, aux7: 0, aux8: 0 };

function toSample(sample, index) {
    const name = `sample ${index}`;
    checkObject(name, sample);
    return {
        ...blank,
        x: roundToInt32(`x of ${name}`, sample.x),
        y: roundToInt32(`y of ${name}`, sample.y),
        pressure: roundToInt32(`pressure of ${name}`, sample.pressure),
    };
}

// Never empty: the library ignores a null array, but not a count of 0.
function toBytes(samples) {
    if (!Array.isArray(samples)) {
        throw new LumoraError(`the samples must be an array, not ${shown(samples)}`);
    }
    const checked = Array.from(samples, toSample);
    const bytes = Buffer.alloc(LM_PenData.size * Math.max(checked.length, 1));
    checked.forEach((sample, index) => koffi.encode(bytes, LM_PenData.size * index, LM_PenData, sample));
    return bytes;
}

module.exports = { toBytes };
