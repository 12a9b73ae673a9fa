// The one instance: creation and end, pen input, paint, tick and command.
#include "core/core.h"

#include "core/bindings.h"
#include "log/debug_log.h"
#include "render/key_fill.h"
#include "resources/resource_ids.h"
#include "ui/menu_commands.h"

#include <cstdint>
#include <cstdio>

namespace zq::LM {

namespace {

std::int64_t g_previousLiveCount = 0; // as the tick before read it; outlives instances

FileVersion ReadAndTellVersion(HMODULE module)
{
    const FileVersion version = ReadFileVersion(module);
    const int length = std::snprintf(g_logBuffer, LogBufferSize, "LumoraDLL.dll (%d, %d, %d, %d)",
                                     version.major, version.minor, version.build, version.revision);
    if (length >= 0) {
        LogA(BASIC, g_logBuffer);
    }
    return version;
}

std::vector<PenData> ReserveSamples()
{
    constexpr std::size_t ReservedSamples = 1'048'576;
    std::vector<PenData> reserve;
    reserve.reserve(ReservedSamples);
    return reserve;
}

} // namespace

Core::Core(const Heritage& heritage, const Makers& makers)
    : creationValue(heritage.creationValue), module(heritage.module), makers(makers),
      fileVersion(ReadAndTellVersion(module)), overlay(*this), sampleReserve(ReserveSamples()),
      canvas(*this, makers.backEnds)
{
    constexpr std::uint16_t Port = 44056;
    if (Drawing* engine = ink.Engine()) {
        engine->SetScale(canvas.Scale());
        BindCallbacks(*engine);
        engine->SetVectorOutline(g_renderingType == RenderingType::DirectComposition);
    }
    if (makers.useBrushDataServer) {
        brushDataServer = makers.brushDataServer(Port);
    }
    ink.Replace(heritage.params);
}

// Everything is given back at once, also while calls of this Core still run; only its memory waits for them.
// What a frame draws with waits for the frame.
void Core::OnEnd()
{
    ForgetCore(this);
    if (canvas.IsInUse()) {
        GiveBackUserInterface_();
    } else {
        GiveBack_();
    }
}

Core::~Core()
{
    ForgetCore(this);
    GiveBack_();
}

// What is drawn with and what is shown goes before the back-ends. The window itself is not destroyed here.
void Core::GiveBack_()
{
    canvas.ReleaseSurface();
    ink.EndEngine();
    GiveBackUserInterface_();
    brushDataServer.reset();
    canvas.EndBackEnds();
}

void Core::GiveBackUserInterface_()
{
    ink.EndView();
    tray.End();
    overlay.UnregisterHotkey();
    overlay.StopTimer();
}

void Core::InputPenData(const PenData* samples, std::size_t count)
{
    if (samples == nullptr) {
        return;
    }
    const Hold hold(*this);
    ink.PassToEngine();
    if (count != 0) {
        if (Drawing* engine = ink.Engine()) {
            const Canvas::Use use(canvas);
            engine->AddPenDataAry(samples, count);
        }
        lastPenData = samples[count - 1];
    }
    ink.ShowPickedColour();
    if (Lives()) {
        overlay.Invalidate();
    }
}

Heritage Core::Bequeath()
{
    ClearWindowToKey(Window());
    renderingTypeChanged = false;
    ink.PassToEngine();
    Heritage heritage{.module = module, .creationValue = creationValue};
    if (Drawing* engine = ink.Engine()) {
        engine->GetCopiedParams(&heritage.params);
    }
    return heritage;
}

void Core::OnPaint(bool isOwn)
{
    FollowScreen_();
    if (Window() != nullptr) {
        canvas.Paint(isOwn);
    }
}

void Core::DrawFrame()
{
    const Canvas::Use use(canvas);
    if (Drawing* engine = ink.Engine()) {
        engine->DrawLumoraLines();
        return;
    }
    // Without an engine the frame is empty, not undrawn: what is shown of the bitmap must be transparent.
    canvas.BeginFrame();
    canvas.EndFrame();
}

// Each input brings a paint along. Only when the last ink has aged there is none to wait for.
void Core::OnTick()
{
    if (IsRectEmpty(&Screen()) != 0) {
        FollowScreen_(); // a window of no size is never painted, so no paint would find that it has one again
    }
    if (brushDataServer != nullptr) {
        ink.ApplyReceived(brushDataServer->TakeReceivedBytes());
    }
    Drawing* engine = ink.Engine();
    if (engine == nullptr || !Lives()) {
        return;
    }
    const Canvas::Use use(canvas);
    engine->DeleteOldPenData();
    const std::int64_t liveCount = engine->LivePointsNum();
    if (liveCount == 0 && g_previousLiveCount != 0) {
        engine->ClearLivePenData();
        overlay.Invalidate();
    }
    g_previousLiveCount = liveCount;
}

void Core::OnCommand(unsigned id)
{
    RunCommand_(id);
    if (Lives()) {
        overlay.Invalidate();
        tray.Mark(GetDebugLevel(), g_renderingType);
    }
}

void Core::RunCommand_(unsigned id)
{
    if (const std::optional<std::uint32_t> level = LogLevelOfCommand(id)) {
        SetDebugLevel(*level); // the user-interface switch stays as it is
    } else if (const std::optional<RenderingType> type = RenderingTypeOfCommand(id)) {
        // Never back to false: choosing the old type again still rebuilds.
        renderingTypeChanged = renderingTypeChanged || g_renderingType != *type;
        ChooseRenderingType(*type);
    } else if (id == CommandSettings) {
        ink.OpenView();
    } else if (id == CommandSaveFrameRates) {
        AskForRateFile(Window());
    }
}

} // namespace zq::LM
