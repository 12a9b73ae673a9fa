// The common set-up of the DirectComposition back-end's tests.
#include "support/library/composition_test.h"

#include "support/library/leftovers.h"

#include <algorithm>

namespace zq::LM::test {

HWND CompositionTest::CreateQuietly()
{
    composition.Show(false);
    const HWND window = library.Create();
    PumpMessages();
    composition.Take();
    return window;
}

Lines CompositionTest::FrameWith(const std::vector<LM_PenData>& samples)
{
    composition.Take();
    Input(samples);
    UpdateWindow(library.GetWindowHandle());
    return composition.Take();
}

Lines CompositionTest::Frame()
{
    composition.Take();
    InputNothing();
    UpdateWindow(library.GetWindowHandle());
    return composition.Take();
}

std::size_t CompositionTest::LinesLike(const std::string& text) const
{
    const std::vector<std::string> texts = debugger.Texts();
    return static_cast<std::size_t>(std::count(texts.begin(), texts.end(), text));
}

void CompositionTest::TearDown()
{
    OverlayTest::TearDown();
    ExpectOnlyDevicesLeft(composition, setUps);
    EXPECT_TRUE(composition.WereAnswersUsed());
}

} // namespace zq::LM::test
