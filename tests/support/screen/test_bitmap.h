// A bitmap that tests draw on and read back, without a screen.
#pragma once

#include "support/screen/memory_bitmap.h"
#include "support/screen/screen.h"

namespace zq::LM::test {

class TestBitmap : public MemoryBitmap {
public:
    TestBitmap(int width, int height, COLORREF background)
        : MemoryBitmap(width, height), place{0, 0, width, height}
    {
        HBRUSH brush = CreateSolidBrush(background);
        FillRect(DC(), &place, brush);
        DeleteObject(brush);
    }

    Picture Look() const { return TakePicture(DC(), place); }

private:
    RECT place;
};

} // namespace zq::LM::test
