// Which back-end is active, for the whole process.
#pragma once

#include <cstdint>

namespace zq::LM {

// Also the place in the Core's list of back-ends.
enum class RenderingType : std::int32_t { DirectComposition = 0, Direct2D = 1, GDI = 2 };

// The user's choice, so later instances follow it too. Needs no lock: the menu's commands come on the thread
// that draws.
extern RenderingType g_renderingType;

// Consults the active type, which writes its line to the log.
RenderingType GetRenderingType();

// The user's choice takes effect and is told to the log.
void ChooseRenderingType(RenderingType type);

// Direct2D and GDI draw into the memory bitmap; DirectComposition shows its own surface.
inline bool DrawsIntoMemory(RenderingType type)
{
    return type == RenderingType::Direct2D || type == RenderingType::GDI;
}

} // namespace zq::LM
