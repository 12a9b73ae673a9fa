// The Core's window: creation and set-up.
#include "core/bindings.h"
#include "core/core.h"
#include "log/debug_log.h"

namespace zq::LM {

HWND Core::CreateOverlayWindow()
{
    const Hold hold(*this);
    if (!overlay.RegisterWindowClass(module, WindowProcedure)) {
        return nullptr;
    }
    ReachCore(this); // now, since the creation sends messages already
    overlay.Create();
    if (Window() != nullptr) {
        SetUpWindow_();
    }
    if (Window() != nullptr) {
        canvas.SetUpSurface();
    }
    if (!Lives()) {
        // Half made it would be an opaque sheet; most often it has gone already.
        DestroyWindow(overlay.Handle());
    }
    return Window();
}

void Core::OnCreated()
{
    if (g_userInterfaceSwitch) {
        tray.ShowIcon(Window(), module);
        if (Window() == nullptr) {
            return;
        }
        tray.MakeMenu(module);
        overlay.ListenForShell();
    }
    overlay.MeasurePixels();
    FollowScreen_();
    if (Window() != nullptr) {
        tray.Mark(GetDebugLevel(), g_renderingType);
        overlay.StartTimer();
    }
}

void Core::SetUpWindow_()
{
    const bool isClickThrough = overlay.MakeClickThrough();
    if (Window() == nullptr) {
        return;
    }
    const bool isSeeThrough = canvas.Bind();
    if (Window() == nullptr) {
        return;
    }
    if (!isClickThrough || !isSeeThrough) {
        RefuseWindow_();
        return;
    }
    const bool isFitted = overlay.FitToScreen();
    if (Window() == nullptr) {
        return;
    }
    if (isFitted) {
        canvas.ClearWindowIfMemoryDrawn();
    }
    // The first frame is for DirectComposition, which shows nothing defined before: no bitmap exists yet.
    if (Drawing* engine = ink.Engine()) {
        engine->ClearLivePenData();
    }
    DrawFrame();
    if (Window() == nullptr) {
        return;
    }
    canvas.ClearWindowIfMemoryDrawn();
    ink.SetView(makers.paramsView(Window(), module, ink.Get()));
    if (g_userInterfaceSwitch) {
        overlay.RegisterHotkey();
    }
}

// A sheet over the whole screen is worse than no overlay. The window is not this Core's any more when it is
// destroyed, so that nobody tells the host to quit.
void Core::RefuseWindow_()
{
    GiveBackUserInterface_();
    DestroyWindow(overlay.LetGo());
}

void Core::FollowScreen_()
{
    if (overlay.FollowScreen()) {
        canvas.FollowScreen();
    }
}

} // namespace zq::LM
