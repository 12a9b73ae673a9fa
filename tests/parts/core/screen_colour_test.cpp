// Picking the screen's colour: what is read, where the colour goes, and who hears of it.
#include "core/bindings.h"
#include "parts/core/core_test.h"

#include <algorithm>
#include <cstring>

namespace zq::LM::test {

namespace {

class ScreenColourTest : public CoreTest {
protected:
    ScreenColourTest()
    {
        CreateWindowed();
        calls.Answer<"GetCursorPos">(GetCursorPos, [](POINT* position) {
            *position = {123, 45};
            return TRUE;
        });
        calls.Answer<"GetPixel">(GetPixel, [this](HDC, int, int) { return screenColour; });
    }

    void SetPicking(std::uint8_t flag)
    {
        Params params = DefaultParams;
        params.colorPicker = flag;
        SetParams(params);
        calls.Take();
    }

    // With the pen at the place or, without pressure, above it.
    void Input(std::int32_t x, std::int32_t pressure)
    {
        PenData sample = Touch(x);
        sample.pressure = pressure;
        core->InputPenData(&sample, 1);
    }
    void Paint() { SendMessageW(core->Window(), WM_PAINT, 0, 0); }

    std::size_t Refreshes()
    {
        return static_cast<std::size_t>(std::ranges::count(calls.Take(), "view refreshed"));
    }

    COLORREF screenColour = 0x00A0B0C0;
};

TEST_F(ScreenColourTest, IsThePixelUnderTheMouseCursorAndTheDeviceContextIsGivenBack)
{
    calls.Record<"GetDC">(GetDC);
    calls.Record<"ReleaseDC">(ReleaseDC);
    calls.Name(GetDesktopWindow(), "desktop");
    EXPECT_EQ(PickScreenColorCallback(false), 0x00A0B0C0U);
    EXPECT_EQ(calls.Take(), (Lines{"GetDC(desktop)", "GetCursorPos(*)", "GetPixel(dc of desktop, 123, 45)",
                                   "ReleaseDC(desktop, dc of desktop)"}));
}

TEST_F(ScreenColourTest, IsBlackWithoutADeviceContext)
{
    SetPicking(1);
    calls.Answer<"GetDC">(GetDC, [](HWND) -> HDC { return nullptr; });
    EXPECT_EQ(PickScreenColorCallback(true), 0U);
    EXPECT_EQ(Record().inkColor, 0U);
    EXPECT_EQ(Record().colorPicker, 0);
    EXPECT_EQ(EngineRecord().inkColor, 0U);
}

TEST_F(ScreenColourTest, BecomesTheInkOfRecordAndEngineWherePickingEndsWithTheFlagAlone)
{
    for (const bool endsPicking : {false, true}) {
        SetPicking(1);
        PickScreenColorCallback(endsPicking);
        for (const Params& params : {Record(), EngineRecord()}) {
            EXPECT_EQ(params.inkColor, 0x00A0B0C0U);
            EXPECT_EQ(params.colorPicker, endsPicking ? 0 : 1);
        }
    }
}

TEST_F(ScreenColourTest, ChangesNothingElseInTheRecord)
{
    Params params = DefaultParams;
    params.reserved0 = 7;
    params.inkDecayTime = 777;
    params.brushSize = 33;
    params.reserved31 = 9;
    SetParams(params);
    PickScreenColorCallback(true);
    params.inkColor = 0x00A0B0C0;
    const Params engine = EngineRecord();
    EXPECT_EQ(std::memcmp(&Record(), &params, sizeof(params)), 0);
    EXPECT_EQ(std::memcmp(&engine, &params, sizeof(params)), 0);
}

TEST_F(ScreenColourTest, APenContactPicksOnceAndEndsThePicking)
{
    SetPicking(1);
    Input(50, 100);
    Paint();
    EXPECT_EQ(EngineRecord().inkColor, 0x00A0B0C0U);
    EXPECT_EQ(EngineRecord().colorPicker, 0);
    screenColour = 0x00010203;
    Input(60, 100);
    Paint();
    EXPECT_EQ(EngineRecord().inkColor, 0x00A0B0C0U) << "the second contact writes instead of picking";
}

TEST_F(ScreenColourTest, AHoveringPenFollowsTheScreenAndGoesOnPicking)
{
    SetPicking(1);
    Input(50, 0);
    Paint();
    EXPECT_EQ(EngineRecord().inkColor, 0x00A0B0C0U);
    EXPECT_EQ(EngineRecord().colorPicker, 1);
    screenColour = 0x00010203;
    Input(51, 0);
    Paint();
    EXPECT_EQ(EngineRecord().inkColor, 0x00010203U);
}

TEST_F(ScreenColourTest, TheViewFollowsSetParams)
{
    calls.Take();
    SetParams(DefaultParams);
    SetParams(DefaultParams);
    EXPECT_EQ(Refreshes(), 2U);
}

TEST_F(ScreenColourTest, TheViewIsNotToldWhileThePenHovers)
{
    SetPicking(1);
    Input(50, 0);
    Paint();
    Input(51, 0);
    Paint();
    EXPECT_EQ(Refreshes(), 0U);
}

TEST_F(ScreenColourTest, TheViewIsToldOnceByTheInputAfterThePickingEnded)
{
    SetPicking(1);
    Input(50, 100);
    Paint();
    EXPECT_EQ(Refreshes(), 0U) << "the frame that picks does not tell it";
    Input(51, 100);
    EXPECT_EQ(Refreshes(), 1U);
    Input(52, 100);
    EXPECT_EQ(Refreshes(), 0U);
}

TEST_F(ScreenColourTest, AnInputWithoutSamplesTellsTheViewToo)
{
    SetPicking(1);
    const PenData contact = Touch(50);
    core->InputPenData(&contact, 1);
    Paint();
    core->InputPenData(&contact, 0);
    EXPECT_EQ(Refreshes(), 1U);
}

TEST_F(ScreenColourTest, ANullInputTellsTheViewNothing)
{
    SetPicking(1);
    Input(50, 100);
    Paint();
    core->InputPenData(nullptr, 1);
    EXPECT_EQ(Refreshes(), 0U);
}

TEST_F(ScreenColourTest, OnlyAFlagOf1CountsAsPickingForTheView)
{
    SetPicking(2);
    Input(50, 100);
    SetPicking(0);
    Input(51, 100);
    EXPECT_EQ(Refreshes(), 0U);
}

TEST_F(ScreenColourTest, WithoutAViewNothingBreaks)
{
    DestroyWindowAndCore();
    makers.paramsView = [](HWND, HMODULE, Params*) { return Owned<ParamsView>(); };
    CreateWindowed();
    SetPicking(1);
    Input(50, 100);
    Paint();
    Input(51, 100);
    EXPECT_EQ(EngineRecord().inkColor, 0x00A0B0C0U);
}

} // namespace

} // namespace zq::LM::test
