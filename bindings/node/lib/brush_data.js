// Brush-data messages. Only whole, right ones are made: the library trusts what it gets.
'use strict';

const { Uint32, checkInteger, shown } = require('./check');
const { LumoraError } = require('./error');

const valueCounts = { Nothing: 0, InkColor: 1, BrushSize: 2, InkDecayTime: 1, BrushParams: 3 };

function makeBrushData(kind, values) {
    if (!Object.hasOwn(valueCounts, kind)) {
        throw new LumoraError(`there is no brush data ${shown(kind)}, but ${Object.keys(valueCounts).join(', ')}`);
    }
    if (values.length !== valueCounts[kind]) {
        throw new LumoraError(`${kind} takes ${valueCounts[kind]} values, not ${values.length}`);
    }
    const words = [4 * values.length, ...values.map((value) => checkInteger(kind, value, Uint32))];
    const name = Buffer.from(`${kind}\0`, 'utf16le');
    const numbers = Buffer.alloc(4 * words.length);
    words.forEach((word, index) => numbers.writeUInt32LE(word, 4 * index));
    return Buffer.concat([name, numbers]);
}

module.exports = { makeBrushData };
