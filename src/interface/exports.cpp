// The nine exported functions.
#include "interface/call_func.h"

extern "C" {

LM_WindowHandle LM_Create(void) { return zq::CallFunc::Create(); }

void LM_Destroy(void) { zq::CallFunc::Destroy(); }

void LM_GetCopiedParams(LM_Params* params) { zq::CallFunc::GetCopiedParams(params); }

void LM_GetElmSize(uint64_t* paramsSize, uint64_t* penDataSize)
{
    zq::CallFunc::GetElmSize(paramsSize, penDataSize);
}

LM_WindowHandle LM_GetWindowHandle(void) { return zq::CallFunc::GetWindowHandle(); }

void LM_InputPenDataArray(const LM_PenData* samples, uint64_t count)
{
    zq::CallFunc::InputPenDataArray(samples, count);
}

void LM_SetData_from_App(void* message, uint64_t size) { zq::CallFunc::SetData_from_App(message, size); }

void LM_SetDebugLevel(uint32_t level) { zq::CallFunc::SetDebugLevel(level); }

void LM_SetParams(const LM_Params* params) { zq::CallFunc::SetParams(params); }

} // extern "C"
