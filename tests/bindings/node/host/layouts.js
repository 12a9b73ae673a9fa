// Prints the package's records as tests/bindings/layouts.c prints those of the C header.
'use strict';

const { LM_Params, LM_PenData } = require('lumora/lib/records');

for (const [name, record] of Object.entries({ LM_Params, LM_PenData })) {
    for (const field of Object.values(record.members)) {
        console.log(`${name}.${field.name} ${field.offset} ${field.type.size} ${field.type.name.replace(/_t$/, '')}`);
    }
    console.log(`${name} ${record.size}`);
}
