// The header that makes brush-data messages, in C++17 beside the host's own: compiled, never linked.
#include "lumora/brush_data.h"
#include "lumora/lumora.h"

#include <type_traits>

static_assert(std::is_same_v<lumora::BrushDataMessage, std::vector<std::uint8_t>>);
static_assert(std::is_same_v<decltype(&lumora::MakeInkColor), lumora::BrushDataMessage (*)(std::uint32_t)>);

void SendEveryKind()
{
    for (lumora::BrushDataMessage message :
         {lumora::MakeNothing(), lumora::MakeInkColor(0x000000FF), lumora::MakeBrushSize(1, 30),
          lumora::MakeInkDecayTime(1500), lumora::MakeBrushParams(0x000000FF, 1, 30)}) {
        LM_SetData_from_App(message.data(), message.size());
    }
}
