// Compiled only: what the package's types let through, and what they do not.
import { LumoraError, Overlay, load, type BackEnd, type Params, type Sample } from 'lumora';

const backEnd: BackEnd = 'gdi';
load('C:\\LumoraDLL.dll');
Overlay.setDebugLevel(1);

const samples: readonly Sample[] = [{ x: 1, y: 2, pressure: 3 }];
using overlay = new Overlay({ backEnd });
overlay.inputSamples(samples);
overlay.setParams({ inkColor: 0xff, outline: true });
overlay.sendBrushData('BrushSize', 1, 30);
overlay.setBackEnd('composition');
overlay.startPumping();
overlay.stopPumping();

const window: bigint | null = overlay.windowHandle;
const params: Params = overlay.params;
const goesOn: boolean = overlay.pump();
const error: Error = new LumoraError(`${window} ${params.brushSize} ${goesOn}`);
overlay.destroy();

// @ts-expect-error There is no such back-end.
overlay.setBackEnd('metal');
// @ts-expect-error A sample has a pressure.
overlay.inputSamples([{ x: 1, y: 2 }]);
// @ts-expect-error There is no such field.
overlay.setParams({ brushsize: 1 });
// @ts-expect-error A flag is true or false.
overlay.setParams({ outline: 1 });
// @ts-expect-error One width is missing.
overlay.sendBrushData('BrushSize', 1);
// @ts-expect-error It is read only.
overlay.windowHandle = null;

export { error };
