/* Lumora: short-lived pen ink on a transparent, topmost, click-through overlay. The host's header, in C99
 * and C++17.
 *
 * A host calls LM_Create on the thread that pumps messages, feeds pen samples with LM_InputPenDataArray and
 * goes on pumping: the overlay's timer and painting run inside that message loop.
 *
 * Threads: call every function from one thread, the one that called LM_Create. Nothing guards the instance
 * against another: pen input, too, may rebuild the overlay, on the thread that it comes on.
 *
 * Nested calls: every function may be called from the host's own code that runs inside another one of them
 * (a window of the host loses the activation, a hook, a message loop). What is called last holds: inside of
 * LM_Create, another LM_Create stands and both return its window, and LM_Destroy makes the outer call return
 * null. Not so from a handler of the debugger's output at level 3 or more, which runs under the library's
 * locks.
 *
 * Unloading: call LM_Destroy before FreeLibrary. A change of the rendering back-end leaves a window behind;
 * from that moment the library stays loaded until the process ends, whatever FreeLibrary is told.
 *
 * Time: ages are differences of the system's 32-bit millisecond clock, which begins anew after 49.7 days. Ink
 * that is alive at that very moment is never taken away, nor are the samples after it: a host that runs so
 * long creates the instance anew.
 *
 * Errors: nothing is reported but by the null handles of LM_Create and LM_GetWindowHandle. Without an
 * instance every function is harmless.
 *
 * Exceptions: a function that "may raise" lets std::bad_alloc through when memory runs out; the library
 * stays usable. (In theory the four that read and write parameters or samples also raise std::system_error,
 * when the system refuses a lock.) A host in C++ of the compiler that built the library catches them. To any
 * other host, in C, in another language or from another compiler, they are structured exceptions of that
 * compiler (GCC and clang 0x20474343, Visual C++ 0xE06D7363), which end the process unless an __except takes
 * them; lumora/lumora.hpp does so, and throws an exception of the host's own. What raises nothing never does
 * this.
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
 * replaced: its window is destroyed first, which posts WM_QUIT to the calling thread. The new window may take
 * the activation from the host's.
 *
 * Returns the overlay window's handle (an HWND that the library owns), or null when the window could not
 * be made; the instance then exists without a window. May raise; there is then no instance. */
LM_WindowHandle LM_Create(void);

/* Destroys the overlay window and the instance. Destroying the window posts WM_QUIT to the calling thread:
 * a host that goes on takes it out of its queue. Does nothing without an instance. Windows that a change
 * of the rendering back-end left behind stay, fully transparent, until the process ends. A window that
 * another thread made cannot be destroyed and stays likewise. Raises nothing. */
void LM_Destroy(void);

/* Copies the parameters that ink is drawn with into `params` (32 bytes, the host's own). Null is accepted and
 * ignored; without an instance the record is left as it is. What a person has changed in the settings dialog
 * is not in them before the next pen input: a host that gets, changes and sets a record in between undoes it.
 * LM_InputPenDataArray with a count of 0 brings the changes in first. Raises nothing. */
void LM_GetCopiedParams(LM_Params* params);

/* Writes the sizes in bytes of LM_Params (32) and LM_PenData (36), so that a host in another language can
 * check its own layouts. Either pointer may be null. Works without an instance. Raises nothing. */
void LM_GetElmSize(uint64_t* paramsSize, uint64_t* penDataSize);

/* Returns the overlay window's handle, or null when there is no instance or no window. A change of the
 * back-end gives the instance a new window, so ask again rather than keep the handle. Raises nothing. */
LM_WindowHandle LM_GetWindowHandle(void);

/* Hands over `count` pen samples, oldest first, and asks the overlay to repaint. The samples are copied
 * before the call returns; each one's time becomes the time of receipt. A sample whose time, x or y is 0
 * drops the samples that are not drawn yet. End a stroke with a sample of pressure 0.
 *
 * A null array does nothing at all. A count of 0 applies the parameters and repaints. The first call after
 * a change of the back-end rebuilds the overlay instead and drops its samples. May raise: the samples are
 * then dropped, and an overlay that could not be rebuilt is gone.
 *
 * Samples wait for the overlay's next paint. While it cannot paint (it has no window, or the thread does not
 * pump messages) they add up, 36 bytes each: a host that sees LM_GetWindowHandle give null calls LM_Create
 * again or stops feeding, and one that will not pump for long stops feeding for that time. */
void LM_InputPenDataArray(const LM_PenData* samples, uint64_t count);

/* Applies one brush-data message, which changes ink colour, brush size or ink life: lumora/brush_data.h makes
 * them. The new parameters show with the next repaint. A message of no known kind, and null, change nothing.
 *
 * The call reads the kind's name up to its end or its first wrong character and, of a known kind, the
 * payload: 40 bytes at the most. It then zeroes the beginning of the message, so that it is not applied
 * twice: as many bytes as the payload size in the message, plus the characters of the name, plus 5. The
 * buffer must hold the larger of the two and be writable; `size` is not looked at. Nothing is read or zeroed
 * without an instance, and nothing is zeroed of a message of no known kind. Raises nothing. */
void LM_SetData_from_App(void* message, uint64_t size);

/* Sets how much the library writes to the debugger's output: 0 nothing, 1 basic, 2 normal, 3 detailed, 255
 * all; any other number is compared as it is. The level outlives the instance.
 *
 * A level other than 0 has two more effects. From the next frame on, every frame carries the information
 * overlay, texts in the upper right corner of the screen. And the user interface is on (0 turns it off) for
 * overlay windows that are created from then on: the icon in the notification area, its menu, and the global
 * hotkey Ctrl+Alt+Shift+W that opens the menu. Raises nothing. */
void LM_SetDebugLevel(uint32_t level);

/* Replaces the parameters by a copy of `params`, which must point to a readable record: null is not
 * checked. Does nothing without an instance. While the settings dialog is open it holds a larger brush size
 * within 200 and a larger ink life within 1000, and what it has lowered stays so when it is closed. Raises
 * nothing. */
void LM_SetParams(const LM_Params* params);

#ifdef __cplusplus
}
#endif

#endif
