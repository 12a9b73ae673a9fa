// The Core's side of the overlay window: set-up, painting and ticks.
#include "core/bindings.h"
#include "core/core.h"
#include "core/make_or_null.h"
#include "log/debug_log.h"
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
    const Hold hold(*this);
    if (!window.RegisterWindowClass(module, WindowProcedure)) {
        return nullptr;
    }
    SetWindowCore(this); // now, since the creation sends messages already
    window.Create();
    if (HasWindow_()) {
        SetUpWindow_();
    }
    if (HasWindow_()) {
        SetUpMemorySurface_();
    }
    if (!Lives()) {
        DestroyWindow(Window()); // half made it would be an opaque sheet; most often it has gone already
        return nullptr;
    }
    return Window();
}

LRESULT Core::Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.Dispatch(handle, message, wParam, lParam);
}

void Core::OnCreated()
{
    if (g_userInterfaceSwitch) {
        ShowTray_();
        if (!HasWindow_()) {
            return;
        }
    }
    window.MeasurePixels();
    FollowScreen_();
    if (HasWindow_()) {
        MarkMenu_();
        window.StartTimer();
    }
}

void Core::SetUpWindow_()
{
    window.MakeClickThrough();
    if (!HasWindow_()) {
        return;
    }
    BindBackEnd_();
    if (!HasWindow_()) {
        return;
    }
    const bool isFitted = window.FitToScreen();
    if (!HasWindow_()) {
        return;
    }
    if (isFitted) {
        ClearWindowIfMemoryDrawn_();
    }
    // The first frame is for DirectComposition, which shows nothing defined before: no bitmap exists yet.
    if (drawing != nullptr) {
        drawing->ClearLivePenData();
    }
    DrawFrame_();
    if (!HasWindow_()) {
        return;
    }
    ClearWindowIfMemoryDrawn_();
    CreateSettingsDialog_();
    if (g_userInterfaceSwitch) {
        window.RegisterHotkey();
    }
}

void Core::BindBackEnd_()
{
    boundType = g_renderingType;
    isBoundWithoutSize = window.IsScreenEmpty();
    const DrawingScope scope(*this);
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        backEnd->InitTransparentWindow(Window(), g_colorKey);
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
    const DrawingScope scope(*this);
    surfaceIsStale = false;
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

void Core::FollowScreen_()
{
    if (!window.FollowScreen()) {
        return;
    }
    surfaceIsStale = true;
    if (!HasWindow_()) {
        return;
    }
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        const DrawingScope scope(*this);
        backEnd->Resize(Window());
    }
    if (isBoundWithoutSize && HasWindow_()) {
        BindBackEnd_();
    }
}

void Core::DrawFrame_()
{
    const DrawingScope scope(*this);
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
    const DrawingScope scope(*this);
    FollowScreen_();
    if (!HasWindow_()) {
        return;
    }
    if (!DrawsIntoMemory(GetRenderingType())) {
        PaintComposed_();
        return;
    }
    // The bitmap covers the screen; one that could not be made is tried again. A window that was set up to be
    // composed cannot show one.
    if (DrawsIntoMemory(boundType) && (surfaceIsStale || memorySurface.DC() == nullptr)) {
        SetUpMemorySurface_();
    }
    PaintFromMemory_();
}

void Core::PaintComposed_()
{
    const PaintSession paint(Window());
    if (!HasWindow_()) {
        return;
    }
    DrawFrame_();
    if (DrawsIntoMemory(boundType) && HasWindow_()) {
        ClearWindowToKey(Window()); // nobody draws on this window any more: its last ink must not stay
    }
}

void Core::PaintFromMemory_()
{
    const PaintSession paint(Window());
    if (!HasWindow_()) {
        return;
    }
    const WindowDC dc(Window());
    SetBkColor(dc.Get(), g_colorKey);
    if (memorySurface.DC() != nullptr) {
        DrawFrame_();
        if (HasWindow_()) {
            ShowMemory_(dc.Get());
        }
    } else if (DrawsIntoMemory(boundType)) {
        ClearWindowToKey(Window()); // not even white, which the window is erased with
    }
}

void Core::ShowMemory_(HDC target)
{
    RECT client{};
    GetClientRect(Window(), &client);
    // A back-end that has not been bound to the window does not know the key: nothing of it is shown.
    if (g_renderingType != boundType && !memorySurface.Clear()) {
        return;
    }
    memorySurface.CopyTo(target, client, renderScale);
}

// Each input brings a paint along. Only when the last ink has aged there is none to wait for.
void Core::OnTick()
{
    if (window.IsScreenEmpty()) {
        FollowScreen_(); // a window of no size is never painted, so no paint would find that it has one again
    }
    TakeReceivedBrushData_();
    if (drawing == nullptr || !Lives()) {
        return;
    }
    const DrawingScope scope(*this);
    drawing->DeleteOldPenData();
    const std::int64_t liveCount = drawing->LivePointsNum();
    if (liveCount == 0 && g_previousLiveCount != 0) {
        drawing->ClearLivePenData();
        window.Invalidate();
    }
    g_previousLiveCount = liveCount;
}

} // namespace zq::LM
