/* Prints the records as the C header lays them out, one field a line: name, offset, size, type. What a
 * binding prints of its own must be the same. */
#include "lumora/records.h"

#include <inttypes.h>
#include <stddef.h>
#include <stdio.h>

#define TYPE(field) _Generic((field), uint8_t : "uint8", int32_t : "int32", uint32_t : "uint32")

/* The fields of a record of the header follow each other without a gap, so one that was forgotten shows. */
#define MEMBER(record, field) (((record*)0)->field)
#define FIELD(record, field)                                                                                 \
    PrintField(#record "." #field, offsetof(record, field), sizeof(MEMBER(record, field)),                   \
               TYPE(MEMBER(record, field)))

static size_t g_end = 0;
static int g_gaps = 0;

static void PrintField(const char* name, size_t offset, size_t size, const char* type)
{
    printf("%s %zu %zu %s\n", name, offset, size, type);
    g_gaps += offset != g_end;
    g_end = offset + size;
}

static void PrintRecord(const char* name, size_t size)
{
    printf("%s %zu\n", name, size);
    g_gaps += size != g_end;
    g_end = 0;
}

int main(void)
{
    FIELD(LM_Params, reserved0);
    FIELD(LM_Params, inkDecayTime);
    FIELD(LM_Params, inkColor);
    FIELD(LM_Params, minBrushSize);
    FIELD(LM_Params, brushSize);
    FIELD(LM_Params, maxPressure);
    FIELD(LM_Params, line);
    FIELD(LM_Params, outline);
    FIELD(LM_Params, cursor);
    FIELD(LM_Params, usePressure);
    FIELD(LM_Params, useOffset);
    FIELD(LM_Params, zebraMode);
    FIELD(LM_Params, colorPicker);
    FIELD(LM_Params, reserved31);
    PrintRecord("LM_Params", sizeof(LM_Params));

    FIELD(LM_PenData, time);
    FIELD(LM_PenData, aux1);
    FIELD(LM_PenData, x);
    FIELD(LM_PenData, y);
    FIELD(LM_PenData, aux4);
    FIELD(LM_PenData, pressure);
    FIELD(LM_PenData, aux6);
    FIELD(LM_PenData, aux7);
    FIELD(LM_PenData, aux8);
    PrintRecord("LM_PenData", sizeof(LM_PenData));
    return g_gaps == 0 ? 0 : 1;
}
