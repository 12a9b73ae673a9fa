// The exported functions' bodies; their qualified names are also their lines in the log.
#pragma once

#include "lumora/lumora.h"

#include <cstdint>

namespace zq::CallFunc {

LM_WindowHandle Create();
void Destroy();
void GetCopiedParams(LM_Params* params);
void GetElmSize(std::uint64_t* paramsSize, std::uint64_t* penDataSize);
LM_WindowHandle GetWindowHandle();
void InputPenDataArray(const LM_PenData* samples, std::uint64_t count);
void SetData_from_App(void* message, std::uint64_t size);
void SetDebugLevel(std::uint32_t level);
void SetParams(const LM_Params* params);

} // namespace zq::CallFunc
