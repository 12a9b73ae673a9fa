// What frames are drawn on and shown by: the back-ends and the memory bitmap.
#include "render/canvas.h"

#include "log/debug_log.h"
#include "platform/dropped.h"
#include "render/clip.h"
#include "render/key_fill.h"
#include "render/layered_window.h"
#include "render/line_rules.h"
#include "render/shell_window.h"

#include <cstddef>

namespace zq::LM {

Canvas::Canvas(CanvasOwner& owner, const BackEndMakers& makers) : owner(owner)
{
    for (const BackEndMaker make : makers) {
        backEnds.push_back(make(record));
    }
}

DrawingLib* Canvas::ActiveBackEnd() const
{
    const auto index = static_cast<std::size_t>(GetRenderingType());
    return index < backEnds.size() ? backEnds[index].get() : nullptr;
}

bool Canvas::Bind()
{
    boundType = g_renderingType;
    record.ForgetWindow();
    record.SetWindowOpaque(false);
    isBoundWithoutSize = IsRectEmpty(&owner.Screen()) != 0;
    constexpr BYTE Opaque = 255;
    const Use use(*this);
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        backEnd->InitTransparentWindow(owner.Window(), g_colorKey);
    } else if (DrawsIntoMemory(boundType)) { // nobody else lets the key through
        record.SetWindowOpaque(!LetKeyThrough(owner.Window(), g_colorKey, Opaque, LWA_COLORKEY));
    }
    return !record.IsWindowOpaque();
}

void Canvas::ClearWindowIfMemoryDrawn() const
{
    if (DrawsIntoMemory(GetRenderingType())) {
        ClearWindowToKey(owner.Window());
    }
}

void Canvas::SetUpSurface()
{
    const Use use(*this);
    surfaceIsStale = false;
    record.Forget();
    ReleaseSurface();
    if (DrawsIntoMemory(GetRenderingType())) {
        const RECT& screen = owner.Screen();
        const RECT client =
            ShellClientRect().value_or(RECT{0, 0, screen.right - screen.left, screen.bottom - screen.top});
        surface.Create(owner.Window(), static_cast<int>(client.right * renderScale),
                       static_cast<int>(client.bottom * renderScale));
    }
    SetMemoryDCEverywhere_(surface.DC());
}

void Canvas::FollowScreen()
{
    surfaceIsStale = true;
    record.ForgetWindow();
    if (!HasWindow_()) {
        return;
    }
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        const Use use(*this);
        backEnd->Resize(owner.Window());
    }
    if (isBoundWithoutSize && HasWindow_()) {
        Dropped(Bind()); // the window lets the key through since its set-up
    }
}

void Canvas::Paint(bool isOwn)
{
    const Use use(*this);
    if (!DrawsIntoMemory(GetRenderingType())) {
        PaintComposed_();
        return;
    }
    // The bitmap covers the screen; one that could not be made is tried again. A window that was set up to be
    // composed cannot show one.
    if (DrawsIntoMemory(boundType) && (surfaceIsStale || surface.DC() == nullptr)) {
        SetUpSurface();
    }
    PaintFromMemory_(isOwn);
}

void Canvas::PaintComposed_()
{
    const PaintSession paint(owner.Window());
    if (!HasWindow_()) {
        return;
    }
    owner.DrawFrame();
    if (DrawsIntoMemory(boundType) && HasWindow_()) {
        ClearWindowToKey(owner.Window()); // nobody draws on this window any more: its last ink must not stay
    }
}

void Canvas::PaintFromMemory_(bool isOwn)
{
    const PaintSession paint(owner.Window());
    if (!HasWindow_()) {
        return;
    }
    if (!isOwn) {
        AddWanted(paint.Area());
    }
    const WindowDC dc(owner.Window());
    SetBkColor(dc.Get(), g_colorKey);
    if (surface.DC() != nullptr) {
        owner.DrawFrame();
        if (HasWindow_()) {
            ShowMemory_(dc.Get());
        }
    } else if (DrawsIntoMemory(boundType)) {
        ClearWindowToKey(owner.Window()); // not even white, which the window is erased with
    }
}

void Canvas::ShowMemory_(HDC target)
{
    // A back-end that has not been bound to the window does not know the key: nothing of it is shown.
    if (g_renderingType != boundType && !surface.Clear()) {
        return;
    }
    if (!KnowsFrames_()) {
        record.Forget();
    }
    if (CopyMemory_(target)) {
        record.EndFrame();
    }
}

// False when nobody knows what the window holds now. What lies above it is no matter: a layered window keeps
// all that was drawn on it.
bool Canvas::CopyMemory_(HDC target)
{
    RECT client{};
    const bool isSized = GetClientRect(owner.Window(), &client) != 0;
    const Clip clip(target, record.ToCopy());
    return surface.CopyTo(target, client, renderScale) && isSized;
}

// Texts have no bounds, and only a bitmap of the window's own scale has the window's coordinates. Direct2D
// moves what it draws by the screen's corner.
bool Canvas::KnowsFrames_() const
{
    if (g_renderingType != boundType || renderScale != 1.0 || GetDebugLevel() != NONE) {
        return false;
    }
    const RECT& screen = owner.Screen();
    return boundType == RenderingType::GDI ||
           (boundType == RenderingType::Direct2D && screen.left == 0 && screen.top == 0);
}

void Canvas::AddWanted(const RECT& part) { record.AddWanted({part.left, part.top, part.right, part.bottom}); }

DrawingLib* Canvas::WindowedBackEnd_() const { return HasWindow_() ? ActiveBackEnd() : nullptr; }

void Canvas::BeginFrame()
{
    if (DrawingLib* backEnd = WindowedBackEnd_()) {
        if (!KnowsFrames_()) {
            record.Forget();
        }
        const PaintArea cleared = record.BeginFrame();
        // Direct2D always sends a whole bitmap.
        Clip clip(boundType == RenderingType::GDI ? surface.DC() : nullptr, cleared);
        backEnd->Clear();
        if (!clip.Remove()) {
            surfaceIsStale = true; // the next paint makes another one, without a clip
        }
    }
}

void Canvas::EndFrame()
{
    if (DrawingLib* backEnd = WindowedBackEnd_()) {
        if (GetDebugLevel() != NONE) {
            record.ForgetBitmap();
            owner.DrawInformation(*backEnd);
        }
        backEnd->Present();
    }
}

void Canvas::ReleaseSurface()
{
    surface.Release();
    SetMemoryDCEverywhere_(nullptr);
}

void Canvas::EndBackEnds()
{
    for (std::unique_ptr<DrawingLib>& backEnd : backEnds) {
        backEnd.reset();
    }
}

void Canvas::SetMemoryDCEverywhere_(HDC dc)
{
    for (const std::unique_ptr<DrawingLib>& backEnd : backEnds) {
        if (backEnd != nullptr) {
            backEnd->SetMemoryDC(dc);
        }
    }
}

} // namespace zq::LM
