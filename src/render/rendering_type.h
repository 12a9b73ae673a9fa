// Which back-end is active, for the whole process.
#pragma once

#include <cstdint>

namespace zq::LM {

// The value is the back-end's index in the Core's list.
enum class RenderingType : std::int32_t { DirectComposition = 0, Direct2D = 1, GDI = 2 };

// Outlives instances. Only the switch commands write it, on the overlay's thread.
extern RenderingType g_renderingType;

// Consults the active type, which writes its line to the log.
RenderingType GetRenderingType();

// Direct2D and GDI draw into the memory bitmap; DirectComposition shows its own surface.
inline bool DrawsIntoMemory(RenderingType type)
{
    return type == RenderingType::Direct2D || type == RenderingType::GDI;
}

} // namespace zq::LM
