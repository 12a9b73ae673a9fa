// The compiled engine: its memory's record as fields, its callbacks as a back-end's methods.

// The 32 bytes of the record, as records.h lays them out.
const recordFields = [
    { name: 'reserved0', offset: 0, size: 4 },
    { name: 'inkDecayTime', offset: 4, size: 4 },
    { name: 'inkColor', offset: 8, size: 4 },
    { name: 'minBrushSize', offset: 12, size: 4 },
    { name: 'brushSize', offset: 16, size: 4 },
    { name: 'maxPressure', offset: 20, size: 4 },
    { name: 'line', offset: 24, size: 1 },
    { name: 'outline', offset: 25, size: 1 },
    { name: 'cursor', offset: 26, size: 1 },
    { name: 'usePressure', offset: 27, size: 1 },
    { name: 'useOffset', offset: 28, size: 1 },
    { name: 'zebraMode', offset: 29, size: 1 },
    { name: 'colorPicker', offset: 30, size: 1 },
    { name: 'reserved31', offset: 31, size: 1 },
];

class Engine {
    // `backEnd` has the callbacks as methods.
    static async load(bytes, backEnd) {
        const engine = new Engine();
        const page = {
            clear: () => backEnd.clear(),
            present: () => backEnd.present(),
            pickColour: (isChosen) => backEnd.pickColour(isChosen !== 0),
            line: (x1, y1, x2, y2, width, colour) => backEnd.line(x1, y1, x2, y2, width >>> 0, colour >>> 0),
            erase: (x1, y1, x2, y2, width) => backEnd.erase(x1, y1, x2, y2, width >>> 0),
            path: (at, count, width, colour) => backEnd.path(engine.samples(at, count), width >>> 0, colour >>> 0),
            text: (x, y, size, colour, at) => backEnd.text(x, y, size, colour >>> 0, engine.textAt(at)),
        };
        const stop = (status) => { throw new Error(`the engine ended with ${status}`); };
        const { instance } = await WebAssembly.instantiate(bytes, { page, wasi_snapshot_preview1: { proc_exit: stop } });
        engine.calls = instance.exports;
        engine.calls._initialize();
        engine.calls.bindCallbacks();
        engine.recordAt = engine.calls.record();
        return engine;
    }

    view() { return new DataView(this.calls.memory.buffer); }

    readRecord() {
        const view = this.view();
        const record = {};
        for (const { name, offset, size } of recordFields) {
            const at = this.recordAt + offset;
            record[name] = size === 4 ? view.getUint32(at, true) : view.getUint8(at);
        }
        return record;
    }

    useRecord(record) {
        const view = this.view();
        for (const { name, offset, size } of recordFields) {
            const at = this.recordAt + offset;
            if (size === 4) {
                view.setUint32(at, record[name], true);
            } else {
                view.setUint8(at, record[name]);
            }
        }
        this.calls.useRecord();
    }

    // Of each sample what a path needs.
    samples(at, count) {
        const sampleSize = 36;
        const view = this.view();
        return Array.from({ length: count }, (_, i) => ({
            x: view.getInt32(at + i * sampleSize + 8, true),
            y: view.getInt32(at + i * sampleSize + 12, true),
            touches: view.getInt32(at + i * sampleSize + 20, true) >= 1,
        }));
    }

    textAt(at) {
        const bytes = new Uint8Array(this.calls.memory.buffer, at);
        return new TextDecoder().decode(bytes.slice(0, bytes.indexOf(0)));
    }
}
