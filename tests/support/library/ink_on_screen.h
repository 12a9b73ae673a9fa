// Ink of the real library over a green window on the real screen: what the pixel tests start from.
#pragma once

#include "support/hook/import_hook.h"
#include "support/library/overlay_test.h"

namespace zq::LM::test {

// Positions are the pen's, which are the overlay's own: the picture of Look() uses them too.
class InkOnScreen : public OverlayTest {
protected:
    static constexpr COLORREF Green = RGB(0, 128, 0);
    static constexpr COLORREF Red = RGB(255, 0, 0);
    static constexpr COLORREF Blue = RGB(0, 0, 255);
    static constexpr COLORREF White = RGB(255, 255, 255);
    static constexpr COLORREF Black = RGB(0, 0, 0);
    static constexpr RECT All = {0, 0, Desktop.right - Desktop.left, Desktop.bottom - Desktop.top};

    explicit InkOnScreen(const RECT& place = Desktop) : place(place) { shell.Move(place); }

    virtual void Start() { CreateWithGDI(); }

    // Red strokes of one width that live for a second, and nothing else.
    void SetUp() override
    {
        Start();
        params = Params();
        params.inkDecayTime = 1000;
        params.inkColor = Red;
        params.brushSize = 10;
        params.cursor = 0;
        params.usePressure = 0;
        Apply();
        Paint();
    }

    void Apply() const { SetParams(params); }

    // A horizontal stroke of two samples.
    void Stroke(int left, int right, int y, int pressure = FullPressure) const
    {
        InputAndPaint({Sample(left, y, pressure), Sample(right, y, pressure)});
    }

    // An input without samples repaints.
    void Refresh() const
    {
        InputNothing();
        Paint();
    }

    Picture Look(const RECT& part = All) const
    {
        HDC screen = GetDC(nullptr);
        SetViewportOrgEx(screen, place.left, place.top, nullptr);
        Picture picture = TakePicture(screen, part);
        ReleaseDC(nullptr, screen);
        return picture;
    }

    // How many pixels of one column have this colour.
    static int CountInColumn(const Picture& picture, int x, COLORREF colour, int top = All.top,
                             int bottom = All.bottom)
    {
        int count = 0;
        for (int y = top; y < bottom; ++y) {
            count += picture.At(x, y) == colour ? 1 : 0;
        }
        return count;
    }

    RECT place;
    LM_Params params{};
    Backdrop backdrop{place, Green};
};

// The same with the overlay's own opacity taken away, so that ink has its own colour on every display,
// whether or not that blends windows.
class OpaqueInkOnScreen : public InkOnScreen {
protected:
    using InkOnScreen::InkOnScreen;

private:
    static constexpr BYTE Opaque = 255;
    Hook<"SetLayeredWindowAttributes", decltype(SetLayeredWindowAttributes)> opaque{
        library.Module(), [this](HWND window, COLORREF key, BYTE, DWORD flags) {
            return opaque.Real(window, key, Opaque, flags);
        }};
};

} // namespace zq::LM::test
