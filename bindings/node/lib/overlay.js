// The overlay: the one instance of the library, as an object.
'use strict';

const { makeBrushData } = require('./brush_data');
const { Uint32, checkInteger, shown } = require('./check');
const { LumoraError } = require('./error');
const { library } = require('./library');
const messages = require('./messages');
const params = require('./params');
const { LM_Params } = require('./records');
const { toBytes } = require('./samples');

const backEndCommands = { composition: 40020, direct2d: 40021, gdi: 40022 };

// The library has one instance, so a new overlay takes the place of the one before.
let current = null;

function commandOf(backEnd) {
    if (!Object.hasOwn(backEndCommands, backEnd)) {
        throw new LumoraError(`there is no back-end ${shown(backEnd)}, but ${Object.keys(backEndCommands).join(', ')}`);
    }
    return backEndCommands[backEnd];
}

class Overlay {
    #pumpTimer = null;

    constructor({ backEnd } = {}) {
        const command = backEnd === undefined ? null : commandOf(backEnd);
        library();
        current?.stopPumping();
        current = this;
        this.#create();
        if (command !== null) {
            this.#choose(command);
        }
    }

    // How much the library tells the debugger; before an overlay is made, any level but 0 also gives it its tray menu.
    static setDebugLevel(level) {
        library().setDebugLevel(checkInteger('the debug level', level, Uint32));
    }

    get windowHandle() {
        return this.#living().getWindowHandle();
    }

    get params() {
        return params.toParams(this.#readParams());
    }

    setParams(changes) {
        const fields = params.toFields(changes);
        const bytes = this.#readParams();
        params.change(bytes, fields);
        library().setParams(bytes);
    }

    inputSamples(samples) {
        const bytes = toBytes(samples);
        this.#living().inputPenDataArray(bytes, samples.length);
    }

    sendBrushData(kind, ...values) {
        const message = makeBrushData(kind, values);
        this.#living().setDataFromApp(message, message.length);
    }

    // At once, in a new window. Left to itself the library would do it at the next input, and leave the old one behind.
    setBackEnd(backEnd) {
        const command = commandOf(backEnd);
        const kept = this.#readParams();
        this.#choose(command);
        library().setParams(kept);
    }

    pump() {
        return messages.pump(this.windowHandle);
    }

    startPumping(milliseconds = 8) {
        checkInteger('the pumping interval', milliseconds, { low: 1, high: 1000 });
        this.#living();
        this.stopPumping();
        this.#pumpTimer = setInterval(() => this.#pumpOnce(), milliseconds);
    }

    stopPumping() {
        clearInterval(this.#pumpTimer);
        this.#pumpTimer = null;
    }

    destroy() {
        this.stopPumping();
        if (current === this) {
            current = null;
            messages.withoutQuit(library().destroy);
        }
    }

    #pumpOnce() {
        if (!this.pump()) {
            this.stopPumping();
        }
    }

    #living() {
        if (current !== this) {
            throw new LumoraError('this overlay has been destroyed, or another one has taken its place');
        }
        return library();
    }

    #create() {
        const window = messages.withoutQuit(library().create);
        if (window === null) {
            this.destroy();
            throw new LumoraError('the overlay window could not be made');
        }
    }

    // The choice outlives the instance; the next one begins with it.
    #choose(command) {
        messages.sendCommand(this.windowHandle, command);
        messages.withoutQuit(library().destroy);
        this.#create();
    }

    // An input of no samples brings in first what a person has changed in the settings dialog.
    #readParams() {
        this.inputSamples([]);
        const bytes = Buffer.alloc(LM_Params.size);
        library().getCopiedParams(bytes);
        return bytes;
    }
}

if (Symbol.dispose) {
    Overlay.prototype[Symbol.dispose] = Overlay.prototype.destroy;
}

module.exports = { Overlay };
