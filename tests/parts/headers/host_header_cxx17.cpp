// The host's header in C++17: compiled, never linked.
#include "lumora/lumora.h"

#include <cstdint>
#include <type_traits>

static_assert(alignof(LM_Params) == 4 && std::is_trivial_v<LM_Params> &&
              std::is_standard_layout_v<LM_Params>);
static_assert(alignof(LM_PenData) == 4 && std::is_trivial_v<LM_PenData> &&
              std::is_standard_layout_v<LM_PenData>);

static_assert(std::is_same_v<decltype(&LM_Create), LM_WindowHandle (*)()>);
static_assert(std::is_same_v<decltype(&LM_Destroy), void (*)()>);
static_assert(std::is_same_v<decltype(&LM_GetCopiedParams), void (*)(LM_Params*)>);
static_assert(std::is_same_v<decltype(&LM_GetElmSize), void (*)(std::uint64_t*, std::uint64_t*)>);
static_assert(std::is_same_v<decltype(&LM_GetWindowHandle), LM_WindowHandle (*)()>);
static_assert(std::is_same_v<decltype(&LM_InputPenDataArray), void (*)(const LM_PenData*, std::uint64_t)>);
static_assert(std::is_same_v<decltype(&LM_SetData_from_App), void (*)(void*, std::uint64_t)>);
static_assert(std::is_same_v<decltype(&LM_SetDebugLevel), void (*)(std::uint32_t)>);
static_assert(std::is_same_v<decltype(&LM_SetParams), void (*)(const LM_Params*)>);

static_assert(LUMORA_VERSION_MAJOR >= 0 && LUMORA_VERSION_MINOR >= 0 && LUMORA_VERSION_BUILD >= 0 &&
              LUMORA_VERSION_REVISION >= 0);
