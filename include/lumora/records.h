/* The two records that cross the library's boundary: how ink looks, and one pen sample.
 *
 * They belong to the host; the library keeps copies, never a pointer. A host in another language lays them
 * out by the offsets below: little-endian, no padding. LM_GetElmSize tells the sizes to check against. */
#ifndef LUMORA_RECORDS_H
#define LUMORA_RECORDS_H

#include <stdint.h>

/* How ink looks and how long it lives: 32 bytes. Nothing is checked, so a wrong value shows as wrong ink.
 * Start from LM_GetCopiedParams and change what you need. Flags are 0 (off) or 1 (on); other values are not
 * understood alike everywhere. Lengths are pixels. */
typedef struct LM_Params {
    /* 0: the host's own; comes back as it was set. Default 0. */
    uint32_t reserved0;

    /* 4: how long ink stays, in milliseconds from the receipt of its samples. 0 shows no strokes. Short lives
     * depend on how often the overlay is painted: below 100 a last stroke may stay until the next input.
     * Default 100. */
    uint32_t inkDecayTime;

    /* 8: 0x00BBGGRR, red in the low byte. Keep the top byte 0: it shows nowhere, but with it the magenta that
     * stands for see-through (0x00FF00FF) is not recognised, and such ink may be invisible. Default
     * 0x00202020. */
    uint32_t inkColor;

    /* 12: strokes get no thinner than this by light pressure, but never wider than brushSize. Default 1. */
    uint32_t minBrushSize;

    /* 16: the strokes' width; with usePressure that of full pressure. Default 10. */
    uint32_t brushSize;

    /* 20: what the pen reports at full pressure; more does not widen the stroke. With 0 every touch is a full
     * one. Default 32767. */
    uint32_t maxPressure;

    /* 24: shows strokes. Default 1. */
    uint8_t line;

    /* 25: a border one pixel wide around the strokes, white on dark ink and black on light ink. Without
     * `line` it shows hollow strokes, each back-end in its own way. Default 0. */
    uint8_t outline;

    /* 26: a cross-hair marks a pen that hovers. Default 1. */
    uint8_t cursor;

    /* 27: makes strokes as wide as the pen presses; 0 gives them brushSize everywhere. Default 1. */
    uint8_t usePressure;

    /* 28: shows strokes 50 pixels higher, clear of the hand; the cross-hair stays at the pen, and so does the
     * hollow stroke of DirectComposition (`outline` without `line`). Default 0. */
    uint8_t useOffset;

    /* 29: stripes of ink and border colour, each 10 milliseconds of the stroke's age long. Default 0. */
    uint8_t zebraMode;

    /* 30: while it is 1 there are no strokes; a swatch beside the pen shows the screen's colour under the
     * mouse cursor. The next touch takes that colour as inkColor and sets this to 0. Default 0. */
    uint8_t colorPicker;

    /* 31: the host's own, as reserved0. Default 0. */
    uint8_t reserved31;
} LM_Params;

/* One pen sample: 36 bytes. The aux fields mean nothing to the library.
 *
 * A sample whose time, x or y is 0 is not drawn: it drops the samples that were handed over since the last
 * frame. A pen on the very first column or row of the screen does the same.
 *
 * Ink ages by the library's clock, the milliseconds since Windows started, which begins at 0 again after
 * every 49.7 days. Ink received just before that seems to come from the future: it stays on the screen, keeps
 * all later samples in memory, and the borders of later strokes stay too, until LM_Create or a change of the
 * back-end starts anew. A host under a Windows that runs for weeks does so soon after. */
typedef struct LM_PenData {
    /* 0: only whether it is 0 counts; the library goes by when it received the sample. */
    uint32_t time;

    uint32_t aux1; /* 4 */

    /* 8 and 12: the pen in pixels of the screen, which may be negative on a monitor left of or above the
     * first one. The overlay draws at these numbers from its own corner, so ink meets the pen where the
     * desktop begins at (0, 0), and elsewhere lies as far from it as that corner from (0, 0), with Direct2D
     * twice as far. */
    int32_t x;
    int32_t y;

    uint32_t aux4; /* 16 */

    /* 20: 1 and more touches, up to maxPressure for the full width. 0 and less hovers and ends a stroke. */
    int32_t pressure;

    uint32_t aux6; /* 24 */
    uint32_t aux7; /* 28 */
    uint32_t aux8; /* 32 */
} LM_PenData;

/* A failed size is a negative array length: C99 has no static assertion of its own. */
typedef char LM_ParamsIs32Bytes[sizeof(LM_Params) == 32 ? 1 : -1];
typedef char LM_PenDataIs36Bytes[sizeof(LM_PenData) == 36 ? 1 : -1];

#endif
