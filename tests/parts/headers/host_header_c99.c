/* The host's header in C99: compiled with pedantic errors, never linked. */
#include "lumora/lumora.h"

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
