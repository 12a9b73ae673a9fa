// The Core's side of the information overlay: gathers what it tells.
#include "core/core.h"
#include "platform/clock.h"
#include "platform/debug_switch.h"
#include "render/rendering_type.h"
#include "render/shell_window.h"
#include "ui/information_overlay.h"

namespace zq::LM {

namespace {

std::uint32_t g_previousFrameTime = 0; // of the last frame with the overlay in it; outlives instances

// Frames a second by the time since the frame before; 0 within the same millisecond.
std::uint32_t MeasureDrawingRate()
{
    constexpr std::uint32_t Second = 1000;
    const std::uint32_t now = MillisecondClock();
    const std::uint32_t difference = now - g_previousFrameTime;
    g_previousFrameTime = now;
    return difference != 0 ? Second / difference : 0;
}

} // namespace

void Core::DrawInformation(DrawingLib& backEnd)
{
    InformationFacts facts;
    facts.screenWidth = Screen().right - Screen().left;
    facts.drawingRate = MeasureDrawingRate();
    facts.penRate = ink.Engine() != nullptr ? ink.Engine()->PenReoprtRate() : 0;
    facts.version = {fileVersion.major, fileVersion.minor, fileVersion.build, fileVersion.revision};
    facts.renderingType = g_renderingType;
    facts.shell = ShellWindowRect().value_or(Screen());
    facts.lastPenData = lastPenData;
    facts.port = brushDataServer != nullptr ? brushDataServer->Port() : 0;
    facts.textColour = ink.Get() != nullptr ? ink.Get()->reserved0 : 0;
    facts.debugSwitch = DebugSwitch;
    DrawInformationOverlay(backEnd, canvas.Scale(), facts);
}

} // namespace zq::LM
