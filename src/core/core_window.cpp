// The Core's side of the overlay window: set-up, painting and ticks.
#include "core/bindings.h"
#include "core/core.h"
#include "core/make_or_null.h"
#include "interface/debug_log.h"
#include "platform/win32/gdi_owners.h"
#include "render/key_fill.h"
#include "render/line_rules.h"
#include "render/rendering_type.h"
#include "render/shell_window.h"
#include "settings/settings_dialog.h"
#include "ui/user_interface_switch.h"

namespace zq::LM {

namespace {

std::int64_t g_previousLiveCount = 0; // as the tick before read it; outlives instances

} // namespace

HWND Core::CreateOverlayWindow()
{
    if (!window.RegisterWindowClass(module, WindowProcedure)) {
        return nullptr;
    }
    SetWindowCore(this); // before the window exists: its creation messages come here
    const HWND handle = window.Create();
    if (handle != nullptr) {
        SetUpWindow_();
        SetUpMemorySurface_();
    }
    return handle;
}

LRESULT Core::Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.Dispatch(handle, message, wParam, lParam);
}

void Core::OnCreated()
{
    if (g_userInterfaceSwitch) {
        ShowTray_();
    }
    window.MeasurePixels();
    FollowScreen_();
    MarkMenu_();
    window.StartTimer();
}

void Core::SetUpWindow_()
{
    window.MakeClickThrough();
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        backEnd->InitTransparentWindow(Window(), g_colorKey);
    }
    if (window.FitToScreen()) {
        ClearWindowIfMemoryDrawn_();
    }
    // A first, empty frame. The memory bitmap does not exist yet, so only DirectComposition shows it.
    if (drawing != nullptr) {
        drawing->ClearLivePenData();
    }
    DrawFrame_();
    ClearWindowIfMemoryDrawn_();
    CreateSettingsDialog_();
    if (g_userInterfaceSwitch) {
        window.RegisterHotkey();
    }
}

void Core::CreateSettingsDialog_()
{
    auto dialog = MakeOrNull<SettingsDialog>(Window(), module);
    if (dialog != nullptr) {
        dialog->SetRecord(params.get());
    }
    paramsView.reset(dialog.release());
}

void Core::SetUpMemorySurface_()
{
    memorySurface.Release();
    SetMemoryDCEverywhere_(nullptr);
    if (DrawsIntoMemory(GetRenderingType())) {
        const RECT& screen = window.Screen();
        const RECT client =
            ShellClientRect().value_or(RECT{0, 0, screen.right - screen.left, screen.bottom - screen.top});
        memorySurface.Create(Window(), static_cast<int>(client.right * renderScale),
                             static_cast<int>(client.bottom * renderScale));
    }
    SetMemoryDCEverywhere_(memorySurface.DC());
}

void Core::SetMemoryDCEverywhere_(HDC dc)
{
    for (const std::unique_ptr<DrawingLib>& backEnd : backEnds) {
        if (backEnd != nullptr) {
            backEnd->SetMemoryDC(dc);
        }
    }
}

void Core::ClearWindowIfMemoryDrawn_()
{
    if (DrawsIntoMemory(GetRenderingType())) {
        ClearWindowToKey(Window());
    }
}

bool Core::FollowScreen_()
{
    if (!window.FollowScreen()) {
        return false;
    }
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        backEnd->Resize(Window());
    }
    return true;
}

void Core::DrawFrame_()
{
    if (drawing != nullptr) {
        drawing->DrawLumoraLines();
        return;
    }
    // Without an engine the frame is empty, not undrawn: what is shown of the bitmap must be transparent.
    ClearCallback();
    PresentCallback();
}

void Core::OnPaint()
{
    const bool screenChanged = FollowScreen_();
    if (DrawsIntoMemory(GetRenderingType())) {
        if (screenChanged) {
            SetUpMemorySurface_(); // the bitmap must cover the new screen
        }
        PaintFromMemory_();
    } else {
        const PaintSession paint(Window());
        DrawFrame_();
    }
}

void Core::PaintFromMemory_()
{
    const PaintSession paint(Window());
    const WindowDC dc(Window());
    SetBkColor(dc.Get(), g_colorKey);
    if (memorySurface.DC() != nullptr) {
        DrawFrame_();
        RECT client{};
        GetClientRect(Window(), &client);
        memorySurface.CopyTo(dc.Get(), client, renderScale);
    }
}

// Repaints during drawing come from pen input; a tick only wipes the last ink.
void Core::OnTick()
{
    TakeReceivedBrushData_();
    if (drawing == nullptr) {
        return;
    }
    drawing->DeleteOldPenData();
    const std::int64_t liveCount = drawing->LivePointsNum();
    if (liveCount == 0 && g_previousLiveCount != 0) {
        drawing->ClearLivePenData();
        window.Invalidate();
    }
    g_previousLiveCount = liveCount;
}

} // namespace zq::LM
