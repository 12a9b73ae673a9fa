// What the test program itself asks of GDI and GDI+, for tests that link the back-end.
#pragma once

#include "support/hook/hooks.h"

#include "platform/win32/gdiplus_flat.h"

namespace zq::LM::test {

class DrawingCalls : public Hooks {
public:
    DrawingCalls() : Hooks(GetModuleHandleW(nullptr))
    {
        Record<"CreateSolidBrush">(CreateSolidBrush);
        Record<"CreatePen">(CreatePen);
        Record<"CreateCompatibleDC">(CreateCompatibleDC);
        Record<"CreateCompatibleBitmap">(CreateCompatibleBitmap);
        Record<"DeleteDC">(DeleteDC);
        Record<"SelectObject">(SelectObject);
        Record<"DeleteObject">(DeleteObject);
        Record<"SetDCBrushColor">(SetDCBrushColor);
        Record<"PatBlt">(PatBlt);
        Record<"BitBlt">(BitBlt);
        Record<"StretchBlt">(StretchBlt);
        Record<"SetStretchBltMode">(SetStretchBltMode);
        Record<"MoveToEx">(MoveToEx);
        Record<"LineTo">(LineTo);
        Record<"SetBkMode">(SetBkMode);
        Record<"SetTextColor">(SetTextColor);
        Record<"TextOutW">(TextOutW);
        Record<"GdipCreateFromHDC">(Gdiplus::DllExports::GdipCreateFromHDC);
        Record<"GdipDeleteGraphics">(Gdiplus::DllExports::GdipDeleteGraphics);
        Record<"GdipCreatePen1">(Gdiplus::DllExports::GdipCreatePen1);
        Record<"GdipDeletePen">(Gdiplus::DllExports::GdipDeletePen);
        Record<"GdipSetPenStartCap">(Gdiplus::DllExports::GdipSetPenStartCap);
        Record<"GdipSetPenEndCap">(Gdiplus::DllExports::GdipSetPenEndCap);
        Record<"GdipDrawLine">(Gdiplus::DllExports::GdipDrawLine);
        Record<"GdipDrawLineI">(Gdiplus::DllExports::GdipDrawLineI);
    }
};

} // namespace zq::LM::test
