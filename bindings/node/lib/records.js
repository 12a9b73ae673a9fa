// The two records that cross the library's boundary, field by field as in lumora/records.h.
'use strict';

const koffi = require('koffi');

const paramsFields = {
    reserved0: 'uint32_t',
    inkDecayTime: 'uint32_t',
    inkColor: 'uint32_t',
    minBrushSize: 'uint32_t',
    brushSize: 'uint32_t',
    maxPressure: 'uint32_t',
    line: 'uint8_t',
    outline: 'uint8_t',
    cursor: 'uint8_t',
    usePressure: 'uint8_t',
    useOffset: 'uint8_t',
    zebraMode: 'uint8_t',
    colorPicker: 'uint8_t',
    reserved31: 'uint8_t',
};

const penDataFields = {
    time: 'uint32_t',
    aux1: 'uint32_t',
    x: 'int32_t',
    y: 'int32_t',
    aux4: 'uint32_t',
    pressure: 'int32_t',
    aux6: 'uint32_t',
    aux7: 'uint32_t',
    aux8: 'uint32_t',
};

// Without names, which koffi would register for the whole process: two copies of this package must not collide.
const LM_Params = koffi.struct(paramsFields);
const LM_PenData = koffi.struct(penDataFields);

module.exports = { LM_Params, LM_PenData, paramsFields };
