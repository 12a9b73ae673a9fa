// Hosts that use the library badly: odd counts, absurd samples and records. Everything is painted for real.
#include "library/host/working_overlay.h"

#include <cstring>
#include <limits>

namespace zq::LM {
namespace {

using test::FullPressure;
using test::Sample;

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();
constexpr std::uint32_t AllBits = 0xFFFFFFFF;

class BadUse : public WorkingOverlayTest {
protected:
    void SetUp() override
    {
        ASSERT_NE(CreateWithGDI(), nullptr);
        Paint();
    }

    void PaintWith(const LM_Params& params, const std::vector<LM_PenData>& samples)
    {
        SetParams(params);
        Input(samples);
        PaintWhole();
        EXPECT_FALSE(IsInvalid());
    }

    // As plain strokes and as hollow ones.
    void PaintWithWidths(const std::vector<std::uint32_t>& widths)
    {
        LM_Params params = RedInk();
        for (const std::uint32_t width : widths) {
            for (const bool hollow : {false, true}) {
                params.brushSize = width;
                params.minBrushSize = AllBits - width;
                params.line = hollow ? 0 : 1;
                params.outline = hollow ? 1 : 0;
                PaintWith(params, {Sample(100, 100), Sample(140, 120), Sample(180, 100)});
            }
        }
    }
};

TEST_F(BadUse, ACountOfZeroStoresNoSample)
{
    SetParams(RedInk());
    const LM_PenData samples[] = {Sample(300, 240), Sample(340, 240)};
    library.InputPenDataArray(samples, 0);
    ExpectNoInkInTheMiddle();
    ExpectWorking();
}

TEST_F(BadUse, ANullArrayWithAnyCountIsIgnored)
{
    library.InputPenDataArray(nullptr, 1);
    library.InputPenDataArray(nullptr, ~std::uint64_t{0});
    EXPECT_FALSE(IsInvalid());
    ExpectWorking();
}

TEST_F(BadUse, AMillionSamplesInOneCallArePainted)
{
    std::vector<LM_PenData> samples(1'000'000, Sample(100, 100, 0)); // hovering: nothing to draw between them
    samples.push_back(Sample(300, 240));
    samples.push_back(Sample(340, 240));
    SetParams(RedInk());
    Input(samples);
    ExpectInkInTheMiddle();
    ExpectWorking();
}

TEST_F(BadUse, ResetMarkersOnlyLeaveNothingToPaint)
{
    SetParams(RedInk());
    LM_PenData untimed = Sample(300, 240);
    untimed.time = 0;
    Input({Sample(300, 240), Sample(340, 240), Sample(0, 5)});
    ExpectNoInkInTheMiddle();
    Input({Sample(300, 240), Sample(340, 240), Sample(5, 0)});
    ExpectNoInkInTheMiddle();
    Input({Sample(300, 240), Sample(340, 240), untimed});
    ExpectNoInkInTheMiddle();
    ExpectWorking();
}

TEST_F(BadUse, ExtremeCoordinatesArePainted)
{
    LM_Params params = RedInk();
    for (const bool shifted : {false, true}) {
        params.useOffset = shifted ? 1 : 0;
        PaintWith(params,
                  {Sample(Lowest, Lowest), Sample(Highest, Highest), Sample(Lowest, Highest),
                   Sample(Highest, Lowest), Sample(-1, -1), Sample(320, Lowest), Sample(320, Highest)});
    }
    ExpectWorking();
}

TEST_F(BadUse, AHoveringPenAtExtremeCoordinatesHasItsCrossHair)
{
    LM_Params params = RedInk();
    params.cursor = 1;
    for (const int edge : {Lowest, Highest}) {
        PaintWith(params, {Sample(edge, edge, 0)});
        params.colorPicker = 1;
        PaintWith(params, {Sample(edge, edge, 0)});
        params.colorPicker = 0;
    }
    ExpectWorking();
}

TEST_F(BadUse, ExtremePressuresArePainted)
{
    LM_Params params = RedInk();
    params.usePressure = 1;
    for (const std::uint32_t most : {0U, 1U, AllBits}) {
        params.maxPressure = most;
        PaintWith(params, {Sample(100, 100, 1), Sample(120, 100, Highest), Sample(140, 100, 1),
                           Sample(160, 100, Lowest), Sample(180, 100, Highest), Sample(200, 100, Highest)});
    }
    ExpectWorking();
}

TEST_F(BadUse, ExtremeWidthsArePainted)
{
    PaintWithWidths({0, 1, 2, 30'000, 100'000, 0x7FFFFFFF, 0x80000000, AllBits - 1, AllBits});
    ExpectWorking();
}

TEST_F(BadUse, ExtremeLivesArePainted)
{
    LM_Params params = RedInk();
    for (const std::uint32_t life : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, AllBits}) {
        params.inkDecayTime = life;
        PaintWith(params, {Sample(100, 100), Sample(140, 120)});
        Tick();
    }
    ExpectWorking();
}

TEST_F(BadUse, RecordsOfOneRepeatedByteArePainted)
{
    for (const int byte : {0xFF, 0x80, 0x7F, 0x02, 0x01, 0x00}) {
        LM_Params params;
        std::memset(&params, byte, sizeof(params));
        std::vector<LM_PenData> samples(4);
        std::memset(samples.data(), byte, samples.size() * sizeof(samples[0]));
        PaintWith(params, samples);
    }
    ExpectWorking();
}

class BadFlags : public BadUse, public ::testing::WithParamInterface<int> {};

// Flags are read in two ways, as "is 1" and as "is not 0"; another number is neither on nor off.
TEST_P(BadFlags, ThatAreNeitherZeroNorOneArePainted)
{
    const auto flag = static_cast<std::uint8_t>(GetParam());
    for (int which = 0; which <= 7; ++which) {
        LM_Params params = RedInk();
        params.usePressure = 1;
        std::uint8_t* const flags[] = {&params.line,        &params.outline,   &params.cursor,
                                       &params.usePressure, &params.useOffset, &params.zebraMode,
                                       &params.colorPicker};
        for (int i = 0; i < 7; ++i) {
            if (which == i || which == 7) { // each by itself, then all
                *flags[i] = flag;
            }
        }
        PaintWith(params, {Sample(100, 100), Sample(140, 120), Sample(180, 100), Sample(200, 100, 0)});
        EXPECT_EQ(Params().inkDecayTime, params.inkDecayTime);
    }
    ExpectWorking();
}

INSTANTIATE_TEST_SUITE_P(Values, BadFlags, ::testing::Values(2, 128, 255),
                         ::testing::PrintToStringParamName());

} // namespace
} // namespace zq::LM
