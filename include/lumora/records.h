/* The two records that cross the library's boundary: how ink looks, and one pen sample.
 *
 * Both are plain little-endian byte layouts without padding. The host allocates them, the library copies
 * them whole and keeps no pointer into them after a call returns. Their sizes and offsets are part of the
 * binary interface. */
#ifndef LUMORA_RECORDS_H
#define LUMORA_RECORDS_H

#include <stdint.h>

/* How ink looks and how long it lives: 32 bytes. No field is checked; every value is used as it comes.
 * A flag is 0 (off) or 1 (on). Fill a record with LM_GetCopiedParams before changing some of its fields. */
typedef struct LM_Params {
    uint32_t reserved0;    /* 0: carried unchanged. Default 0. */
    uint32_t inkDecayTime; /* 4: ink life in milliseconds: ink of a lower age is drawn. Default 100. */
    uint32_t inkColor;     /* 8: ink colour, 0x00BBGGRR (red in the low byte). Default 0x00202020. */
    uint32_t minBrushSize; /* 12: smallest width in pixels that pressure may give a segment. Default 1. */
    uint32_t brushSize;    /* 16: stroke width in pixels; with usePressure the largest width. Default 10. */
    uint32_t maxPressure;  /* 20: the pressure that gives the full brushSize. Default 32767. */
    uint8_t line;          /* 24: draw strokes. Default 1. */
    uint8_t outline;       /* 25: draw strokes with an outline in the contrast colour. Default 0. */
    uint8_t cursor;        /* 26: draw a cross-hair at the hovering pen. Default 1. */
    uint8_t usePressure;   /* 27: the width follows the pen's pressure. Default 1. */
    uint8_t useOffset;     /* 28: strokes are drawn 50 pixels above the pen. Default 0. */
    uint8_t zebraMode;     /* 29: strokes change colour in 10 ms bands of their age. Default 0. */
    uint8_t colorPicker;   /* 30: the next contact takes the screen colour under the cursor. Default 0. */
    uint8_t reserved31;    /* 31: carried unchanged. Default 0. */
} LM_Params;

/* One pen sample: 36 bytes. Only time, x, y and pressure are interpreted; the aux fields are the host's. */
typedef struct LM_PenData {
    uint32_t time;    /* 0: any value but 0, which marks a reset; replaced by the time of receipt. */
    uint32_t aux1;    /* 4 */
    int32_t x;        /* 8: screen position in pixels; 0 marks a reset. */
    int32_t y;        /* 12: screen position in pixels; 0 marks a reset. */
    uint32_t aux4;    /* 16 */
    int32_t pressure; /* 20: 1 or more touches, 0 or less hovers; maxPressure is full pressure. */
    uint32_t aux6;    /* 24 */
    uint32_t aux7;    /* 28 */
    uint32_t aux8;    /* 32 */
} LM_PenData;

/* A failed size is a negative array length: C99 has no static assertion of its own. */
typedef char LM_ParamsIs32Bytes[sizeof(LM_Params) == 32 ? 1 : -1];
typedef char LM_PenDataIs36Bytes[sizeof(LM_PenData) == 36 ? 1 : -1];

#endif
