// Looks at the host's values before anything crosses to the library, which checks none.
'use strict';

const { inspect } = require('node:util');
const { LumoraError } = require('./error');

const Int32 = { low: -0x80000000, high: 0x7fffffff };
const Uint32 = { low: 0, high: 0xffffffff };
const Uint8 = { low: 0, high: 0xff };

const shown = (value) => inspect(value, { depth: 0 });

function checkRange(name, value, { low, high }) {
    if (value < low || value > high) {
        throw new LumoraError(`${name} is ${shown(value)}; it must lie between ${low} and ${high}`);
    }
}

function checkInteger(name, value, range) {
    if (!Number.isInteger(value)) {
        throw new LumoraError(`${name} must be a whole number, not ${shown(value)}`);
    }
    checkRange(name, value, range);
    return value;
}

// Pointer events give fractions of pixels.
function roundToInt32(name, value) {
    if (!Number.isFinite(value)) {
        throw new LumoraError(`${name} must be a number, not ${shown(value)}`);
    }
    const rounded = Math.round(value);
    checkRange(name, rounded, Int32);
    return rounded;
}

function checkFlag(name, value) {
    if (typeof value !== 'boolean') {
        throw new LumoraError(`${name} must be true or false, not ${shown(value)}`);
    }
    return value ? 1 : 0;
}

function checkObject(name, value) {
    if (typeof value !== 'object' || value === null) {
        throw new LumoraError(`${name} must be an object, not ${shown(value)}`);
    }
}

module.exports = { Uint8, Uint32, checkFlag, checkInteger, checkObject, roundToInt32, shown };
