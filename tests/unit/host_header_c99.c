/* The host's header in C99: compiled with pedantic errors, never linked. */
#include "lumora/lumora.h"

#include <stddef.h>

/* One field's offset, as a type that cannot exist when it is another. */
#define FIELD_IS_AT(record, field, offset)                                                                   \
    typedef char record##_##field##_IsAt##offset[offsetof(record, field) == (offset) ? 1 : -1]

FIELD_IS_AT(LM_Params, reserved0, 0);
FIELD_IS_AT(LM_Params, inkDecayTime, 4);
FIELD_IS_AT(LM_Params, inkColor, 8);
FIELD_IS_AT(LM_Params, minBrushSize, 12);
FIELD_IS_AT(LM_Params, brushSize, 16);
FIELD_IS_AT(LM_Params, maxPressure, 20);
FIELD_IS_AT(LM_Params, line, 24);
FIELD_IS_AT(LM_Params, outline, 25);
FIELD_IS_AT(LM_Params, cursor, 26);
FIELD_IS_AT(LM_Params, usePressure, 27);
FIELD_IS_AT(LM_Params, useOffset, 28);
FIELD_IS_AT(LM_Params, zebraMode, 29);
FIELD_IS_AT(LM_Params, colorPicker, 30);
FIELD_IS_AT(LM_Params, reserved31, 31);

FIELD_IS_AT(LM_PenData, time, 0);
FIELD_IS_AT(LM_PenData, aux1, 4);
FIELD_IS_AT(LM_PenData, x, 8);
FIELD_IS_AT(LM_PenData, y, 12);
FIELD_IS_AT(LM_PenData, aux4, 16);
FIELD_IS_AT(LM_PenData, pressure, 20);
FIELD_IS_AT(LM_PenData, aux6, 24);
FIELD_IS_AT(LM_PenData, aux7, 28);
FIELD_IS_AT(LM_PenData, aux8, 32);

typedef char ParamsAre32Bytes[sizeof(LM_Params) == 32 ? 1 : -1];
typedef char PenDataAre36Bytes[sizeof(LM_PenData) == 36 ? 1 : -1];

const int UsedVersion[] = {LUMORA_VERSION_MAJOR, LUMORA_VERSION_MINOR, LUMORA_VERSION_BUILD,
                           LUMORA_VERSION_REVISION};

/* A host's whole session, with every function called as its declaration wants it. */
int UseEveryDeclaration(void* message, uint64_t size);

int UseEveryDeclaration(void* message, uint64_t size)
{
    LM_Params params = {0};
    LM_PenData sample = {0};
    uint64_t paramsSize = 0;
    uint64_t penDataSize = 0;
    LM_WindowHandle created;

    LM_SetDebugLevel(UINT32_C(255));
    LM_GetElmSize(&paramsSize, &penDataSize);
    created = LM_Create();
    LM_GetCopiedParams(&params);
    params.inkColor = UINT32_C(0x000000FF);
    LM_SetParams((const LM_Params*)&params);
    sample.time = 1;
    sample.x = -1;
    sample.pressure = 1;
    LM_InputPenDataArray((const LM_PenData*)&sample, 1);
    LM_SetData_from_App(message, size);
    if (created != LM_GetWindowHandle()) {
        return 1;
    }
    LM_Destroy();
    return paramsSize == sizeof(params) && penDataSize == sizeof(sample) ? 0 : 2;
}
