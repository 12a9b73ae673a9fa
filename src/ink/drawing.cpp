// The ink engine's settings, its copy of the record, and the log line that store and frame share.
#include "ink/drawing.h"

#include "log/debug_log.h"

#include <cstdio>
#include <utility>

namespace zq::LM {

// Some runtimes make a mutex at its first lock. That comes now, so that no input and no frame meets a lack of
// memory in a lock.
Drawing::Drawing()
{
    for (std::mutex* const each : {&samplesMutex, &paramsMutex, &rateMutex}) {
        const std::lock_guard lock(*each);
    }
}

void Drawing::SetCallbacks(ClearFunction clear, PresentFunction present, PickColorFunction pickColor,
                           SignedLineFunction drawLine, SignedLineFunction eraseLine,
                           DrawPenDataFunction drawPenData)
{
    clearCallback = std::move(clear);
    presentCallback = std::move(present);
    pickColorCallback = std::move(pickColor);
    drawLineCallback = std::move(drawLine);
    eraseLineCallback = std::move(eraseLine);
    drawPenDataCallback = std::move(drawPenData);
}

void Drawing::SetDrawTextCallback(DrawTextFunction drawText) { drawTextCallback = std::move(drawText); }

void Drawing::SetScale(double newScale)
{
    if (newScale > 0.0) {
        scale = newScale;
    }
}

void Drawing::SetVectorOutline(bool on) { vectorOutline = on; }

void Drawing::SetParams(const Params* source)
{
    if (source == nullptr) {
        return;
    }
    const std::lock_guard lock(paramsMutex);
    params = *source;
}

void Drawing::GetCopiedParams(Params* out)
{
    if (out == nullptr) {
        return;
    }
    const std::lock_guard lock(paramsMutex);
    *out = params;
}

std::uint32_t Drawing::EnabledOptions(std::uint32_t mask)
{
    const std::lock_guard lock(paramsMutex);
    return zq::LM::EnabledOptions(params, mask);
}

void Drawing::LogTimeWarning_(const char* operation, long long timeSub)
{
    // Frames may meet one for every segment: format only what will be read.
    if (GetDebugLevel() < DETAILED) {
        return;
    }
    const int length = std::snprintf(g_logBuffer, LogBufferSize,
                                     "Warning (zq::LM::Drawing::%s) : time_sub = %lld\n", operation, timeSub);
    if (length >= 0) {
        LogA(DETAILED, g_logBuffer);
    }
}

} // namespace zq::LM
