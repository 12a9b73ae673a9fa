// Which library the package loads, and where it refuses to. The last argument is a library with records of other sizes.
'use strict';

const assert = require('node:assert');
const { once } = require('node:events');
const { test } = require('node:test');
const { Worker } = require('node:worker_threads');
const { LumoraError, Overlay, load } = require('lumora');

const wrongSizes = process.argv[2];

test('a library that is missing, none, or of other record sizes is refused', () => {
    assert.throws(() => load('C:\\missing\\LumoraDLL.dll'), { name: 'LumoraError', message: /is missing/ });
    assert.throws(() => load(__filename), { name: 'LumoraError', message: /cannot be loaded/ });
    assert.throws(() => load('C:\\windows\\system32\\version.dll'), { name: 'LumoraError', message: /LM_/ });
    assert.throws(() => load(wrongSizes), { name: 'LumoraError', message: /32 and 40 bytes.* 32 and 36/ });
});

test('after a refusal the right library is loaded, and no other any more', () => {
    new Overlay({ backEnd: 'gdi' }).destroy();
    load();
    assert.throws(() => load(wrongSizes), { name: 'LumoraError', message: /loaded already/ });
});

test('a worker is refused', async () => {
    const program = `
        const { Overlay } = require(${JSON.stringify(require.resolve('lumora'))});
        let message = 'no error';
        try { new Overlay(); } catch (error) { message = error.message; }
        require('node:worker_threads').parentPort.postMessage(message);`;
    const [message] = await once(new Worker(program, { eval: true }), 'message');
    assert.match(message, /one thread/);
});

test('it can be imported too', async () => {
    const imported = await import('lumora');
    assert.strictEqual(imported.Overlay, Overlay);
    assert.strictEqual(imported.LumoraError, LumoraError);
});
