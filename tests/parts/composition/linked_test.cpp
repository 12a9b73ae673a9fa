// The common set-up of tests that link the back-end.
#include "parts/composition/linked_test.h"

#include "render/line_rules.h"
#include "support/library/leftovers.h"

namespace zq::LM::test {

LinkedTest::LinkedTest()
    : window(CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_LAYERED | WS_EX_TRANSPARENT, L"STATIC", L"Overlay",
                             WS_POPUP, 50, 60, Width, Height, nullptr, nullptr, nullptr, nullptr))
{
    composition.Show(false);
}

LinkedTest::~LinkedTest() { DestroyWindow(window); }

bool LinkedTest::SetUpChain()
{
    const bool made = backEnd->InitTransparentWindow(window, g_colorKey);
    composition.Take();
    return made;
}

void LinkedTest::TearDown()
{
    backEnd.reset();
    ExpectOnlyDevicesLeft(composition, setUps);
    EXPECT_TRUE(composition.WereAnswersUsed());
}

} // namespace zq::LM::test
