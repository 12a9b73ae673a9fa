// Picking the screen's colour: what is read, where the colour goes, and who hears of it.
#include "support/core_test.h"

#include "support/import_patch.h"
#include "support/overlay_test.h"

#include <cstring>
#include <memory>

namespace zq::LM {

namespace {

using test::AsAddress;
using test::ImportPatch;
using test::Sample;

HDC g_desktopDC = nullptr;
POINT g_cursor = {};
POINT g_readPixel = {};
COLORREF g_screenColour = 0;
int g_openDCs = 0;

HDC WINAPI RefuseDC(HWND) { return nullptr; }
HDC WINAPI GiveDC(HWND window)
{
    EXPECT_EQ(window, GetDesktopWindow());
    ++g_openDCs;
    return g_desktopDC;
}
int WINAPI TakeDC(HWND window, HDC dc)
{
    EXPECT_EQ(window, GetDesktopWindow());
    EXPECT_EQ(dc, g_desktopDC);
    --g_openDCs;
    return 1;
}
BOOL WINAPI SayCursor(POINT* position)
{
    *position = g_cursor;
    return TRUE;
}
COLORREF WINAPI SayPixel(HDC, int x, int y)
{
    g_readPixel = {x, y};
    return g_screenColour;
}

class RefreshCount : public ParamsView {
public:
    explicit RefreshCount(int& count) : count(count) {}
    void Open() override { ADD_FAILURE() << "nobody opens it"; }
    void Refresh() override { ++count; }

private:
    int& count;
};

class ScreenColourTest : public test::CoreTest {
protected:
    ScreenColourTest()
    {
        CreateWindowOfCore();
        g_cursor = {123, 45};
        g_screenColour = 0x00A0B0C0;
        TheCore().SetParamsView(std::make_unique<RefreshCount>(refreshes));
    }

    void SetPicking(std::uint8_t flag)
    {
        Params params = DefaultParams;
        params.colorPicker = flag;
        TheCore().SetParams(params);
        refreshes = 0;
    }

    void Input(const LM_PenData& sample) { TheCore().InputPenData(&sample, 1); }
    void Paint() { SendMessageW(TheCore().Window(), WM_PAINT, 0, 0); }

    int refreshes = 0;
    ImportPatch pixel{GetModuleHandleW(nullptr), "GDI32.dll", "GetPixel", AsAddress(SayPixel)};
    ImportPatch cursor{GetModuleHandleW(nullptr), "USER32.dll", "GetCursorPos", AsAddress(SayCursor)};
};

TEST_F(ScreenColourTest, IsThePixelUnderTheMouseCursor)
{
    EXPECT_EQ(PickScreenColorCallback(false), 0x00A0B0C0U);
    EXPECT_EQ(g_readPixel.x, 123);
    EXPECT_EQ(g_readPixel.y, 45);
}

TEST_F(ScreenColourTest, TheDesktopsDeviceContextIsGivenBack)
{
    g_desktopDC = CreateCompatibleDC(nullptr);
    {
        const ImportPatch give(GetModuleHandleW(nullptr), "USER32.dll", "GetDC", AsAddress(GiveDC));
        const ImportPatch take(GetModuleHandleW(nullptr), "USER32.dll", "ReleaseDC", AsAddress(TakeDC));
        g_openDCs = 0;
        PickScreenColorCallback(false);
        EXPECT_EQ(g_openDCs, 0);
    }
    DeleteDC(g_desktopDC);
}

TEST_F(ScreenColourTest, IsBlackWithoutADeviceContext)
{
    SetPicking(1);
    const ImportPatch refuse(GetModuleHandleW(nullptr), "USER32.dll", "GetDC", AsAddress(RefuseDC));
    EXPECT_EQ(PickScreenColorCallback(true), 0U);
    EXPECT_EQ(TheCore().Record()->inkColor, 0U);
    EXPECT_EQ(TheCore().Record()->colorPicker, 0);
    EXPECT_EQ(EngineParams().inkColor, 0U);
}

TEST_F(ScreenColourTest, BecomesTheInkOfRecordAndEngineWhilePickingGoesOn)
{
    SetPicking(1);
    PickScreenColorCallback(false);
    EXPECT_EQ(TheCore().Record()->inkColor, 0x00A0B0C0U);
    EXPECT_EQ(TheCore().Record()->colorPicker, 1);
    EXPECT_EQ(EngineParams().inkColor, 0x00A0B0C0U);
    EXPECT_EQ(EngineParams().colorPicker, 1);
}

TEST_F(ScreenColourTest, WithTheFlagEndsThePickingInRecordAndEngine)
{
    SetPicking(1);
    PickScreenColorCallback(true);
    EXPECT_EQ(TheCore().Record()->inkColor, 0x00A0B0C0U);
    EXPECT_EQ(TheCore().Record()->colorPicker, 0);
    EXPECT_EQ(EngineParams().inkColor, 0x00A0B0C0U);
    EXPECT_EQ(EngineParams().colorPicker, 0);
}

TEST_F(ScreenColourTest, ChangesNothingElseInTheRecord)
{
    Params params = DefaultParams;
    params.reserved0 = 7;
    params.inkDecayTime = 777;
    params.brushSize = 33;
    params.reserved31 = 9;
    TheCore().SetParams(params);
    PickScreenColorCallback(true);
    params.inkColor = 0x00A0B0C0;
    const Params engine = EngineParams();
    EXPECT_EQ(std::memcmp(TheCore().Record(), &params, sizeof(params)), 0);
    EXPECT_EQ(std::memcmp(&engine, &params, sizeof(params)), 0);
}

TEST_F(ScreenColourTest, APenContactPicksOnceAndEndsThePicking)
{
    SetPicking(1);
    Input(Sample(50, 50, 100));
    Paint();
    EXPECT_EQ(EngineParams().inkColor, 0x00A0B0C0U);
    EXPECT_EQ(EngineParams().colorPicker, 0);
    g_screenColour = 0x00010203;
    Input(Sample(60, 60, 100));
    Paint();
    EXPECT_EQ(EngineParams().inkColor, 0x00A0B0C0U) << "the second contact writes instead of picking";
}

TEST_F(ScreenColourTest, AHoveringPenFollowsTheScreenAndGoesOnPicking)
{
    SetPicking(1);
    Input(Sample(50, 50, 0));
    Paint();
    EXPECT_EQ(EngineParams().inkColor, 0x00A0B0C0U);
    EXPECT_EQ(EngineParams().colorPicker, 1);
    g_screenColour = 0x00010203;
    Input(Sample(51, 50, 0));
    Paint();
    EXPECT_EQ(EngineParams().inkColor, 0x00010203U);
}

TEST_F(ScreenColourTest, TheViewFollowsSetParams)
{
    TheCore().SetParams(DefaultParams);
    TheCore().SetParams(DefaultParams);
    EXPECT_EQ(refreshes, 2);
}

TEST_F(ScreenColourTest, TheViewIsNotToldWhileThePenHovers)
{
    SetPicking(1);
    Input(Sample(50, 50, 0));
    Paint();
    Input(Sample(51, 50, 0));
    Paint();
    EXPECT_EQ(refreshes, 0);
}

TEST_F(ScreenColourTest, TheViewIsToldOnceByTheInputAfterThePickingEnded)
{
    SetPicking(1);
    Input(Sample(50, 50, 100));
    Paint();
    EXPECT_EQ(refreshes, 0) << "the frame that picks does not tell it";
    Input(Sample(51, 50, 100));
    EXPECT_EQ(refreshes, 1);
    Input(Sample(52, 50, 100));
    EXPECT_EQ(refreshes, 1);
}

TEST_F(ScreenColourTest, AnInputWithoutSamplesTellsTheViewToo)
{
    SetPicking(1);
    const LM_PenData contact = Sample(50, 50, 100);
    Input(contact);
    Paint();
    TheCore().InputPenData(&contact, 0);
    EXPECT_EQ(refreshes, 1);
}

TEST_F(ScreenColourTest, ANullInputTellsTheViewNothing)
{
    SetPicking(1);
    Input(Sample(50, 50, 100));
    Paint();
    TheCore().InputPenData(nullptr, 1);
    EXPECT_EQ(refreshes, 0);
}

TEST_F(ScreenColourTest, OnlyAFlagOf1CountsAsPickingForTheView)
{
    SetPicking(2);
    Input(Sample(50, 50, 100));
    SetPicking(0);
    Input(Sample(51, 50, 100));
    EXPECT_EQ(refreshes, 0);
}

TEST_F(ScreenColourTest, WithoutAViewNothingBreaks)
{
    TheCore().SetParamsView(nullptr);
    SetPicking(1);
    Input(Sample(50, 50, 100));
    Paint();
    Input(Sample(51, 50, 100));
    EXPECT_EQ(EngineParams().inkColor, 0x00A0B0C0U);
}

} // namespace

} // namespace zq::LM
