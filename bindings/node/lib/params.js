// LM_Params as a host sees it: flags are true or false.
'use strict';

const koffi = require('koffi');
const { Uint32, Uint8, checkFlag, checkInteger, checkObject, shown } = require('./check');
const { LumoraError } = require('./error');
const { LM_Params, paramsFields } = require('./records');

const isFlag = (name) => paramsFields[name] === 'uint8_t' && name !== 'reserved31';

function toParams(bytes) {
    const params = koffi.decode(bytes, LM_Params);
    for (const name of Object.keys(paramsFields).filter(isFlag)) {
        params[name] = params[name] !== 0;
    }
    return params;
}

function checkField(name, value) {
    if (!Object.hasOwn(paramsFields, name)) {
        throw new LumoraError(`the parameters have no field ${shown(name)}`);
    }
    if (isFlag(name)) {
        return checkFlag(name, value);
    }
    return checkInteger(name, value, name === 'reserved31' ? Uint8 : Uint32);
}

// The changes as the record's own numbers.
function toFields(changes) {
    checkObject('the parameters', changes);
    return Object.fromEntries(Object.entries(changes).map(([name, value]) => [name, checkField(name, value)]));
}

// Fields that are not named keep their bytes.
function change(bytes, fields) {
    koffi.encode(bytes, LM_Params, { ...koffi.decode(bytes, LM_Params), ...fields });
}

module.exports = { change, toFields, toParams };
