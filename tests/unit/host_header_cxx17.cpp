// The host's header in C++17: compiled, never linked.
#include "lumora/lumora.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

static_assert(sizeof(LM_Params) == 32 && alignof(LM_Params) == 4 && std::is_trivial_v<LM_Params>);
static_assert(sizeof(LM_PenData) == 36 && alignof(LM_PenData) == 4 && std::is_trivial_v<LM_PenData>);
static_assert(offsetof(LM_Params, maxPressure) == 20 && offsetof(LM_Params, reserved31) == 31);
static_assert(offsetof(LM_PenData, pressure) == 20 && offsetof(LM_PenData, aux8) == 32);

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

// A class that holds records, as a host's would, and calls through the declarations.
class Host {
public:
    LM_WindowHandle Start(std::uint32_t debugLevel)
    {
        LM_SetDebugLevel(debugLevel);
        window = LM_Create();
        LM_GetCopiedParams(&params);
        return window;
    }

    void Feed(const LM_PenData& sample) const { LM_InputPenDataArray(&sample, 1); }

private:
    LM_WindowHandle window = nullptr;
    LM_Params params{};
};

LM_WindowHandle UseTheDeclarations(Host& host)
{
    host.Feed({});
    return host.Start(1);
}
