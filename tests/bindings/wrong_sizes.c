/* A library whose records are of other sizes: a binding must not work with it. It has every function, so that
 * nothing but the sizes can give it away. */
#include <stdint.h>

#define EXPORT __declspec(dllexport)

EXPORT void LM_GetElmSize(uint64_t* paramsSize, uint64_t* penDataSize)
{
    *paramsSize = 32;
    *penDataSize = 40;
}

EXPORT void* LM_Create(void) { return 0; }
EXPORT void LM_Destroy(void) {}
EXPORT void LM_GetCopiedParams(void* params) { (void)params; }
EXPORT void* LM_GetWindowHandle(void) { return 0; }
EXPORT void LM_InputPenDataArray(const void* samples, uint64_t count) { (void)samples, (void)count; }
EXPORT void LM_SetData_from_App(void* message, uint64_t size) { (void)message, (void)size; }
EXPORT void LM_SetDebugLevel(uint32_t level) { (void)level; }
EXPORT void LM_SetParams(const void* params) { (void)params; }
