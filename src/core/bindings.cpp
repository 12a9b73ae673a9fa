// The free functions through which the system and the ink engine reach the Core.
#include "core/bindings.h"

#include "core/core.h"
#include "platform/win32/gdi_owners.h"
#include "render/drawing_lib.h"
#include "render/key_fill.h"
#include "render/line_rules.h"
#include "render/text_conversion.h"

namespace zq::LM {

namespace {

Core* g_core = nullptr;   // null until the first window; not to be followed unless it lives
bool g_coreLives = false; // told by the Core itself

Core* LivingCore() { return g_coreLives ? g_core : nullptr; }

// The Core whose own window this is; null for a window that has lost it.
Core* OwnerOf(HWND window, UINT message)
{
    Core* core = LivingCore();
    return core != nullptr && core->Overlay().Owns(window, message) ? core : nullptr;
}

DrawingLib* ActiveBackEnd()
{
    Core* core = LivingCore();
    return core != nullptr ? core->TheCanvas().ActiveBackEnd() : nullptr;
}

void AddToCanvas(int x1, int y1, int x2, int y2, unsigned width)
{
    if (Core* core = LivingCore()) {
        core->TheCanvas().AddLine(x1, y1, x2, y2, width);
    }
}

// Windows stay behind when the back-end changes, and when an instance ends on another thread. One whose Core
// has ended while it was being made is not to come into being.
LRESULT ServeLeftWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    constexpr LRESULT Refused = -1;
    constexpr LRESULT Erased = 1;
    switch (message) {
    case WM_CREATE:
        return Refused;
    case WM_ERASEBKGND: // the class erases in white
        return Erased;
    case WM_PAINT: {
        const PaintSession paint(window);
        RECT client{};
        GetClientRect(window, &client);
        FillRectangle(paint.Get(), client, g_colorKey);
        return 0;
    }
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace

void ReachCore(Core* core)
{
    g_core = core;
    g_coreLives = true;
}

void ForgetCore(const Core* core)
{
    if (g_core == core) {
        g_coreLives = false;
    }
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (g_core == nullptr) {
        return 0;
    }
    Core* core = OwnerOf(window, message);
    if (core == nullptr) {
        return ServeLeftWindow(window, message, wParam, lParam);
    }
    const Hold hold(*core);
    try {
        return core->Overlay().Dispatch(window, message, wParam, lParam);
    } catch (...) {
        return 0; // the system's dispatch cannot carry an exception; the frame is lost, the overlay goes on
    }
}

void BindCallbacks(Drawing& engine)
{
    engine.SetCallbacks(ClearCallback, PresentCallback, PickScreenColorCallback, DrawLineCallback,
                        EraseLineCallback, DrawPenDataCallback);
    engine.SetDrawTextCallback(DrawTextCallback);
}

void ClearCallback()
{
    if (Core* core = LivingCore()) {
        core->TheCanvas().BeginFrame();
    }
}

void PresentCallback()
{
    if (Core* core = LivingCore()) {
        core->TheCanvas().EndFrame();
    }
}

unsigned PickScreenColorCallback(bool clearFlag)
{
    Core* core = LivingCore();
    return core != nullptr ? core->Ink().Pick(clearFlag) : 0;
}

void DrawLineCallback(int x1, int y1, unsigned w1, unsigned c1, int x2, int y2, unsigned w2, unsigned c2)
{
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        const unsigned width = MixWidths(w1, w2);
        const unsigned colour = InkLineColour(c1, c2);
        AddToCanvas(x1, y1, x2, y2, width);
        backEnd->DrawLine(x1, y1, width, colour, x2, y2, width, colour);
    }
}

void EraseLineCallback(int x1, int y1, unsigned w1, unsigned, int x2, int y2, unsigned w2, unsigned)
{
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        // Alpha stays 0: a back-end that honours it draws nothing.
        const unsigned width = MixWidths(w1, w2);
        AddToCanvas(x1, y1, x2, y2, width);
        backEnd->DrawLine(x1, y1, width, g_colorKey, x2, y2, width, g_colorKey);
    }
}

void DrawPenDataCallback(std::vector<PenData>* samples, unsigned width, unsigned colour)
{
    if (DrawingLib* backEnd = ActiveBackEnd()) {
        backEnd->DrawPenData(samples, width, colour);
    }
}

void DrawTextCallback(int x, int y, unsigned, unsigned colour, const char* text)
{
    Core* core = LivingCore();
    if (core == nullptr) {
        return;
    }
    Canvas& canvas = core->TheCanvas();
    canvas.AddText();
    if (DrawingLib* backEnd = canvas.ActiveBackEnd()) {
        DrawNarrowText(*backEnd, canvas.Scale(), x, y, colour, text);
    }
}

} // namespace zq::LM
