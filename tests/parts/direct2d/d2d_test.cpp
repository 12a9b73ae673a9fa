// The common set-up of tests that link the Direct2D back-end.
#include "parts/direct2d/d2d_test.h"

namespace zq::LM::test {

D2DTest::D2DTest()
    : window(CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_LAYERED, L"STATIC", L"Overlay", WS_POPUP, 0, 0, Width,
                             Height, nullptr, nullptr, nullptr, nullptr))
{
}

D2DTest::~D2DTest() { DestroyWindow(window); }

Lines D2DTest::MakeBackEnd()
{
    backEnd = std::make_unique<D2D>(record);
    return graphics.Take();
}

void D2DTest::MakeBoundBackEnd()
{
    MakeBackEnd();
    backEnd->InitTransparentWindow(window, g_colorKey);
    backEnd->SetMemoryDC(bitmap.DC());
    graphics.Take();
}

void D2DTest::TearDown()
{
    backEnd.reset();
    EXPECT_THAT(graphics.Held(), testing::IsEmpty());
    EXPECT_THAT(graphics.ReleasedTooOften(), testing::IsEmpty());
    EXPECT_TRUE(graphics.WereAnswersUsed());
}

} // namespace zq::LM::test
