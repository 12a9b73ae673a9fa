/// <reference lib="esnext.disposable" />

/** How ink looks and how long it lives; the fields of LM_Params in lumora/records.h. Lengths are pixels. */
export interface Params {
    /** The host's own; comes back as it was set. */
    reserved0: number;
    /** How long ink stays, in milliseconds. */
    inkDecayTime: number;
    /** 0x00BBGGRR: red is 0x0000ff. */
    inkColor: number;
    /** The smallest width that pressure may give. */
    minBrushSize: number;
    /** The width of strokes; with `usePressure` that of full pressure. */
    brushSize: number;
    /** The pressure that gives the full width. */
    maxPressure: number;
    /** Shows strokes. */
    line: boolean;
    /** A border around strokes, in white or black. */
    outline: boolean;
    /** A cross-hair marks a pen that hovers. */
    cursor: boolean;
    /** Strokes are as wide as the pen presses. */
    usePressure: boolean;
    /** Shows strokes 50 pixels above the pen. */
    useOffset: boolean;
    /** Stripes of ink and border colour. */
    zebraMode: boolean;
    /** The next touch takes the screen's colour under the mouse cursor. */
    colorPicker: boolean;
    /** The host's own, 0 to 255. */
    reserved31: number;
}

/** One pen sample, rounded to whole numbers. */
export interface Sample {
    /** Pixels of the screen; a sample on the first column or row, 0, drops what is not drawn yet. */
    x: number;
    y: number;
    /** 1 up to `maxPressure` touches; 0 and less hovers, and ends a stroke. */
    pressure: number;
}

export type BackEnd = 'composition' | 'direct2d' | 'gdi';

/** The one error of this package: a value that the library must not get, a missing library, an overlay that is gone. */
export class LumoraError extends Error {}

/** The overlay window and its ink. A process has one: a new one takes the place of the one before. */
export class Overlay implements Disposable {
    /** Without a back-end the library's own choice holds: at first `composition`, then what was chosen last. */
    constructor(options?: { backEnd?: BackEnd });

    /**
     * How much the library writes to the debugger: 0 nothing, 1 basic, 2 normal, 3 detailed, 255 all. Before an overlay
     * is made, any level but 0 also gives it its tray menu.
     */
    static setDebugLevel(level: number): void;

    /** The window's HWND; null when it has been lost. It changes with the back-end. */
    get windowHandle(): bigint | null;

    /** A copy, with what a person has changed in the settings dialog until now. */
    get params(): Params;

    /** Changes the fields that are named. */
    setParams(changes: Partial<Params>): void;

    /** Draws the samples, oldest first, with the next message that the overlay gets. */
    inputSamples(samples: readonly Sample[]): void;

    /** Changes some parameters by a brush-data message; they show with the next repaint. */
    sendBrushData(kind: 'Nothing'): void;
    sendBrushData(kind: 'InkColor', colour: number): void;
    sendBrushData(kind: 'BrushSize', smallest: number, full: number): void;
    sendBrushData(kind: 'InkDecayTime', milliseconds: number): void;
    sendBrushData(kind: 'BrushParams', colour: number, smallest: number, full: number): void;

    /** Changes the back-end at once; the overlay gets a new window, the ink on the screen goes. */
    setBackEnd(backEnd: BackEnd): void;

    /** Dispatches the messages that wait; false when a quit message was among them. Not for Electron, which does so. */
    pump(): boolean;

    /** Pumps every few milliseconds (8 without a number), until a quit message comes or the overlay is destroyed. */
    startPumping(milliseconds?: number): void;
    stopPumping(): void;

    /** Takes the overlay away; does nothing a second time. */
    destroy(): void;
    [Symbol.dispose](): void;
}

/** Loads LumoraDLL.dll from another place than this package's own. Comes before everything else. */
export function load(file?: string): void;
