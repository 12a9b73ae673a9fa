// A GDI back-end on a bitmap of one colour.
#pragma once

#include "parts/render/drawing_calls.h"
#include "render/gdi.h"
#include "support/screen/test_bitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM::test {

inline constexpr COLORREF Green = 0x00008000; // the bitmap's
inline constexpr COLORREF Red = 0x000000FF;

class GdiTest : public testing::Test {
protected:
    explicit GdiTest(int width = 120, int height = 100) : bitmap(width, height, Green)
    {
        gdi.SetMemoryDC(bitmap.DC());
    }

    TestBitmap bitmap;
    PaintRecord record;
    GDI gdi{record};
};

} // namespace zq::LM::test
