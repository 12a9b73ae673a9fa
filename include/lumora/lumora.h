/* Lumora: short-lived pen ink on a transparent, topmost, click-through overlay. The host's header, in C99
 * and C++17.
 *
 * A host calls LM_Create on the thread that pumps messages, feeds pen samples with LM_InputPenDataArray and
 * goes on pumping: the overlay's timer and painting run inside that message loop.
 *
 * Threads: call every function from one thread, the one that called LM_Create. Pen samples and parameters are
 * handed to the drawing engine under its own locks; creating, destroying and rebuilding are not guarded.
 *
 * Errors: nothing is reported but by the null handles of LM_Create and LM_GetWindowHandle. Without an
 * instance every function is harmless. An allocation that fails raises std::bad_alloc through the call; the
 * library stays usable.
 *
 * Log: each function writes a line to the debugger's output once the log level allows it (see
 * LM_SetDebugLevel). */
#ifndef LUMORA_LUMORA_H
#define LUMORA_LUMORA_H

#include "lumora/records.h"
#include "lumora/version.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The overlay window's handle: the same type as HWND, declared here so that this header needs no other. */
struct HWND__;
typedef struct HWND__* LM_WindowHandle;

/* Creates the one instance and its overlay window, which covers the shell's desktop. An earlier instance is
 * replaced: its window is destroyed first, which posts WM_QUIT to the calling thread.
 *
 * Returns the overlay window's handle (an HWND that the library owns), or null when the window could not
 * be made; the instance then exists without a window. Raises std::bad_alloc when memory runs out; there is
 * then no instance. */
LM_WindowHandle LM_Create(void);

/* Destroys the overlay window and the instance. Destroying the window posts WM_QUIT to the calling thread:
 * a host that goes on takes it out of its queue. Does nothing without an instance. Windows that a change
 * of the rendering back-end left behind stay, fully transparent, until the process ends. */
void LM_Destroy(void);

/* Copies the parameters in force into `params` (32 bytes, the host's own). Null is accepted and ignored;
 * without an instance the record is left as it is. */
void LM_GetCopiedParams(LM_Params* params);

/* Writes the sizes in bytes of LM_Params (32) and LM_PenData (36), so that a host in another language can
 * check its own layouts. Either pointer may be null. Works without an instance. */
void LM_GetElmSize(uint64_t* paramsSize, uint64_t* penDataSize);

/* Returns the overlay window's handle, or null when there is no instance or no window. A change of the
 * back-end gives the instance a new window, so ask again rather than keep the handle. */
LM_WindowHandle LM_GetWindowHandle(void);

/* Hands over `count` pen samples, oldest first, and asks the overlay to repaint. The samples are copied
 * before the call returns; each one's time becomes the time of receipt. A sample whose time, x or y is 0
 * drops the samples that are not drawn yet. End a stroke with a sample of pressure 0.
 *
 * A null array does nothing at all. A count of 0 applies the parameters and repaints. The first call after
 * a change of the back-end rebuilds the overlay instead and drops its samples. Raises std::bad_alloc when
 * memory runs out. */
void LM_InputPenDataArray(const LM_PenData* samples, uint64_t count);

/* Applies one brush-data message, which changes ink colour, brush size or ink life: lumora/brush_data.h makes
 * them. The new parameters show with the next repaint. A message of no known kind, and null, change nothing.
 *
 * The call reads the kind's name up to its end or its first wrong character and, of a known kind, the
 * payload: 40 bytes at the most. It then zeroes the beginning of the message, so that it is not applied
 * twice: as many bytes as the payload size in the message, plus the characters of the name, plus 5. The
 * buffer must be that large and writable; `size` is not looked at. Does nothing without an instance. */
void LM_SetData_from_App(void* message, uint64_t size);

/* Sets how much the library writes to the debugger's output: 0 nothing, 1 basic, 2 normal, 3 detailed, 255
 * all. The level outlives the instance. A level other than 0 also turns the user interface on (0 turns it
 * off), which takes effect when the next overlay window is created: the global hotkey Ctrl+Alt+Shift+W. */
void LM_SetDebugLevel(uint32_t level);

/* Replaces the parameters by a copy of `params`, which must point to a readable record: null is not
 * checked. Does nothing without an instance. */
void LM_SetParams(const LM_Params* params);

#ifdef __cplusplus
}
#endif

#endif
