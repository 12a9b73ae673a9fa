// The choice of a back-end by the C++ layer, and where its ink lies beside the screen's origin.
#include "library/cxx/layer_test.h"
#include "support/library/back_end_test.h"

namespace zq::LM::test {
namespace {

class LayerBackEnds : public BackEndTest, public testing::WithParamInterface<BackEnd> {
protected:
    static constexpr RECT BesideTheOrigin = {30, 20, 30 + All.right, 20 + All.bottom};

    LayerBackEnds() : BackEndTest(GetParam(), BesideTheOrigin) {}

    void Start() override
    {
        graphics.emplace(ModuleWithDevices());
        lumora::OverlayOptions options;
        options.backEnd = Wanted();
        overlay.emplace(options, lumora::Library::Load());
    }
    void TearDown() override { overlay.reset(); }

    static lumora::BackEnd Wanted() { return static_cast<lumora::BackEnd>(GetParam().command); }

    std::optional<lumora::Overlay> overlay;
};

TEST_P(LayerBackEnds, StartsWithTheWantedOneAndItsInkMeetsThePen)
{
    graphics->Take();
    overlay->Input(
        {overlay->SampleAt({130, 120}, FullPressure), overlay->SampleAt({230, 120}, FullPressure)});
    Paint();
    EXPECT_TRUE(DrewAllFrames(GetParam()));
    const Picture picture = Look();
    const RECT ink = picture.BoundsOfOther(Green);
    EXPECT_NEAR((ink.left + ink.right) / 2, 150, 1);
    EXPECT_NEAR((ink.top + ink.bottom) / 2, 100, 1);
}

TEST_P(LayerBackEnds, TheWantedOneIsInUse) { EXPECT_EQ(lumora::Overlay::UsedBackEnd(), Wanted()); }

TEST_P(LayerBackEnds, AChangeLosesNoInputAfterIt)
{
    for (const BackEnd& next : {GDIBackEnd, GetParam()}) {
        overlay->Use(static_cast<lumora::BackEnd>(next.command));
        graphics->Take();
        overlay->Input(
            {overlay->SampleAt({130, 120}, FullPressure), overlay->SampleAt({230, 120}, FullPressure)});
        Paint();
        EXPECT_TRUE(DrewAllFrames(next));
        EXPECT_EQ(Look().At(150, 100), Red);
    }
}

TEST_P(LayerBackEnds, AChangeKeepsTheParameters)
{
    overlay->Use(lumora::BackEnd::GDI);
    EXPECT_EQ(overlay->ReadParams().inkColor, (lumora::Colour{255, 0, 0}));
}

INSTANTIATE_TEST_SUITE_P(Each, LayerBackEnds, testing::ValuesIn(AllBackEnds),
                         [](const testing::TestParamInfo<BackEnd>& info) { return info.param.name; });

} // namespace
} // namespace zq::LM::test
