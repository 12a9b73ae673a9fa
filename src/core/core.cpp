// The Core: creation, destruction, pen input and parameters.
#include "core/core.h"

#include "core/bindings.h"
#include "core/make_or_null.h"
#include "log/debug_log.h"
#include "render/d2d.h"
#include "render/direct_composition.h"
#include "render/gdi.h"
#include "render/key_fill.h"
#include "render/rendering_type.h"
#include "render/screen_colour.h"
#include "render/text_conversion.h"
#include "settings/brush_data.h"

#include <cstdio>

namespace zq::LM {

namespace {

std::uint8_t g_previousColorPicker = 0; // the picking flag as the pen input before saw it; outlives instances

} // namespace

Core::Core(HMODULE module, unsigned creationValue)
    : creationValue(creationValue), module(module), window(*this)
{
    constexpr std::size_t ReservedSamples = 1'048'576;
    ReadVersion_();
    sampleReserve.reserve(ReservedSamples);
    CreateDrawing_();
    BindCallbacks_();
    CreateBackEnds_();
    tasktray.reset(MakeOrNull<sc::WinGui::Tasktray>().release());
    CreateBrushDataServer_();
}

// Everything is given back at once, also while calls of this Core still run; only its memory waits for them.
// What a frame draws with waits for the frame.
void Core::OnEnd()
{
    ForgetWindowCore(this);
    if (drawingDepth == 0) {
        GiveBack_();
    } else {
        GiveBackUserInterface_();
    }
}

Core::~Core()
{
    ForgetWindowCore(this);
    GiveBack_();
}

// What is drawn with and what is shown goes before the back-ends. The window itself is not destroyed here.
void Core::GiveBack_()
{
    memorySurface.Release();
    SetMemoryDCEverywhere_(nullptr);
    drawing.reset();
    params.reset();
    GiveBackUserInterface_();
    brushDataServer.reset();
    for (std::unique_ptr<DrawingLib>& backEnd : backEnds) {
        backEnd.reset();
    }
}

void Core::GiveBackUserInterface_()
{
    paramsView.reset();
    tasktray.reset();
    trayMenu.Destroy();
    window.UnregisterHotkey();
    window.StopTimer();
}

void Core::ReadVersion_()
{
    fileVersion = ReadFileVersion(module);
    const int length =
        std::snprintf(g_logBuffer, LogBufferSize, "LumoraDLL.dll (%d, %d, %d, %d)", fileVersion.major,
                      fileVersion.minor, fileVersion.build, fileVersion.revision);
    if (length >= 0) {
        LogA(BASIC, g_logBuffer);
    }
}

void Core::CreateDrawing_()
{
    drawing = MakeOrNull<Drawing>();
    params = MakeOrNull<Params>(DefaultParams);
    if (drawing != nullptr) {
        drawing->SetScale(renderScale);
        drawing->GetCopiedParams(params.get());
    }
}

void Core::BindCallbacks_()
{
    if (drawing == nullptr) {
        return;
    }
    drawing->SetCallbacks(ClearCallback, PresentCallback, PickScreenColorCallback, DrawLineCallback,
                          EraseLineCallback, DrawPenDataCallback);
    drawing->SetDrawTextCallback(DrawTextCallback);
    drawing->SetVectorOutline(g_renderingType == RenderingType::DirectComposition);
}

// In the order of RenderingType.
void Core::CreateBackEnds_()
{
    backEnds.push_back(MakeOrNull<DirectComposition>());
    backEnds.push_back(MakeOrNull<D2D>());
    backEnds.push_back(MakeOrNull<GDI>());
}

void Core::CreateBrushDataServer_()
{
    constexpr std::uint16_t Port = 44056;
    if (useBrushDataServer) {
        brushDataServer = MakeOrNull<BrushDataServer>(Port);
    }
}

void Core::SetParams(const Params& source)
{
    if (params == nullptr) {
        return;
    }
    const Hold hold(*this);
    *params = source;
    PassParams_();
    RefreshView_();
}

void Core::GetEngineParams(Params* out)
{
    if (drawing != nullptr) {
        drawing->GetCopiedParams(out);
    }
}

void Core::SetBrushData(std::uint8_t* message)
{
    if (params == nullptr) {
        return;
    }
    const Hold hold(*this);
    if (message != nullptr) {
        DecodeBrushData(*params, message); // of whatever kind: what follows is the same
    }
    PassParams_();
    RefreshView_();
}

// The same for what has come over the network, which is not trusted.
void Core::TakeReceivedBrushData_()
{
    if (brushDataServer == nullptr || params == nullptr) {
        return;
    }
    const std::vector<std::uint8_t> received = brushDataServer->TakeReceivedBytes();
    if (!received.empty()) {
        DecodeReceivedBrushData(*params, received); // of whatever kind
        PassParams_();
        RefreshView_();
    }
}

void Core::InputPenData(const PenData* samples, std::size_t count)
{
    if (samples == nullptr) {
        return;
    }
    const Hold hold(*this);
    PassParams_();
    if (count != 0) {
        if (drawing != nullptr) {
            const DrawingScope scope(*this);
            drawing->AddPenDataAry(samples, count);
        }
        lastPenData = samples[count - 1];
    }
    ShowPickedColourOnce_();
    if (Lives()) {
        window.Invalidate();
    }
}

// Picking a colour ends inside a frame; the record's view hears of it with the next input.
void Core::ShowPickedColourOnce_()
{
    if (params == nullptr) {
        return;
    }
    if (g_previousColorPicker == 1 && params->colorPicker == 0) {
        RefreshView_();
        if (!Lives()) {
            return; // the flag is the next instance's by now
        }
    }
    g_previousColorPicker = params->colorPicker;
}

void Core::ClearForRebuild()
{
    ClearWindowToKey(Window());
    renderingTypeChanged = false;
    PassParams_();
}

DrawingLib* Core::ActiveBackEnd()
{
    const auto index = static_cast<std::size_t>(GetRenderingType());
    return index < backEnds.size() ? backEnds[index].get() : nullptr;
}

unsigned Core::PickScreenColour(bool clearFlag)
{
    const unsigned colour = ColourUnderCursor();
    if (params != nullptr) {
        if (clearFlag) {
            params->colorPicker = 0;
        }
        params->inkColor = colour;
        PassParams_();
    }
    return colour;
}

void Core::DrawText(int x, int y, unsigned colour, const char* text)
{
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        DrawNarrowText(*backEnd, renderScale, x, y, colour, text);
    }
}

void Core::PassParams_()
{
    if (drawing != nullptr) {
        drawing->SetParams(params.get());
    }
}

void Core::RefreshView_()
{
    if (paramsView != nullptr) {
        paramsView->Refresh();
    }
}

} // namespace zq::LM
