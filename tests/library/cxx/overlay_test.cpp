// The life of an Overlay: its window, its ink, its end, and whose request to quit is whose.
#include "library/cxx/layer_test.h"

#include <array>

namespace zq::LM::test {
namespace {

using OverlayClass = LayerTest;

TEST_F(OverlayClass, ShowsTheInkThatItIsGiven)
{
    overlay->Input({Sample(100, 100), Sample(200, 100)});
    Paint();
    EXPECT_EQ(Look().At(150, 100), Red);
}

TEST_F(OverlayClass, TakesAnyRowOfSamples)
{
    overlay->Input(std::vector<LM_PenData>{Sample(100, 100), Sample(200, 100), Sample(200, 100, 0)});
    overlay->Input(std::array<LM_PenData, 2>{Sample(100, 200), Sample(200, 200)});
    Paint();
    const Picture picture = Look();
    EXPECT_EQ(picture.At(150, 100), Red);
    EXPECT_EQ(picture.At(150, 200), Red);
}

TEST_F(OverlayClass, GivesTheWindowOfTheLibrary)
{
    EXPECT_NE(overlay->Window(), nullptr);
    EXPECT_EQ(overlay->Window(), library.GetWindowHandle());
}

TEST_F(OverlayClass, EndsWithItsObjectAndAsksNobodyToQuit)
{
    EXPECT_EQ(TakeQuitMessage(), std::nullopt);
    overlay.reset();
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    EXPECT_EQ(TakeQuitMessage(), std::nullopt);
}

TEST_F(OverlayClass, LeavesTheHostsOwnRequestToQuit)
{
    constexpr int ExitCode = 7;
    PostQuitMessage(ExitCode);
    overlay.reset();
    EXPECT_EQ(TakeQuitMessage(), ExitCode);
    EXPECT_EQ(TakeQuitMessage(), std::nullopt);
}

TEST_F(OverlayClass, ReplacesAnInstanceOfTheHostWithoutItsRequestToQuit)
{
    overlay.reset();
    library.Create();
    overlay.emplace(lumora::OverlayOptions(), functions);
    EXPECT_EQ(TakeQuitMessage(), std::nullopt);
}

TEST_F(OverlayClass, MovesWithoutAnEndOfTheInstance)
{
    HWND window = overlay->Window();
    lumora::Overlay moved = std::move(*overlay);
    overlay.reset();
    EXPECT_EQ(moved.Window(), window);
    EXPECT_TRUE(IsWindow(window));
}

TEST_F(OverlayClass, EndsOnceAfterItWasMovedInto)
{
    HWND window = overlay->Window();
    {
        lumora::Overlay moved = std::move(*overlay);
        *overlay = std::move(moved);
    }
    EXPECT_TRUE(IsWindow(window));
    overlay.reset();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(OverlayClass, IsTheOnlyOneAndGoesOn)
{
    HWND window = overlay->Window();
    EXPECT_EQ(ErrorOf([this] { lumora::Overlay(OnGDI(), functions); }),
              "Lumora: there is an overlay already");
    EXPECT_EQ(overlay->Window(), window);
    EXPECT_TRUE(IsWindow(window));
}

TEST_F(OverlayClass, FollowsAnotherOne)
{
    overlay.reset();
    overlay.emplace(OnGDI(), functions);
    EXPECT_NE(overlay->Window(), nullptr);
}

TEST_F(OverlayClass, PenOnTheFirstColumnAndRowDropsNothing)
{
    overlay->Input({overlay->SampleAt({Desktop.left, Desktop.top + 100}, FullPressure),
                    overlay->SampleAt({Desktop.left + 100, Desktop.top + 100}, FullPressure),
                    overlay->SampleAt({Desktop.left + 100, Desktop.top}, FullPressure)});
    Paint();
    const Picture picture = Look();
    EXPECT_EQ(picture.At(50, 100), Red);
    EXPECT_EQ(picture.At(100, 50), Red);
}

TEST_F(OverlayClass, SetsTheLogLevelBeforeTheWindowIsMade)
{
    overlay.reset();
    lumora::OverlayOptions options = OnGDI();
    options.debugLevel = 1;
    overlay.emplace(options, functions);
    const std::vector<std::string> texts = debugger.Texts();
    EXPECT_THAT(texts, testing::Contains("zq::CallFunc::Create\n"));
}

TEST_F(OverlayClass, LibraryStaysLoadedWhenAllIsOver)
{
    overlay.reset();
    FreeLibrary(library.Module());
    EXPECT_NE(GetModuleHandleW(L"LumoraDLL.dll"), nullptr);
    LoadLibraryW(LibraryPath()); // the fixture frees what it has loaded
}

std::vector<std::string> g_made; // and ended, in the order of the calls

// Without an overlay at first. A process begins with DirectComposition, so one on GDI is made twice.
class OverlayStart : public LayerTest {
protected:
    OverlayStart()
    {
        functions.create = [] {
            g_made.emplace_back("create");
            return lumora::Library::Load().create();
        };
        functions.destroy = [] {
            g_made.emplace_back("destroy");
            lumora::Library::Load().destroy();
        };
    }

    void SetUp() override {}
};

TEST_F(OverlayStart, OnAnotherBackEndIsAnEndAndASecondCreation)
{
    overlay.emplace(OnGDI(), functions);
    EXPECT_THAT(g_made, testing::ElementsAre("create", "destroy", "create"));
}

TEST_F(OverlayStart, OnTheBackEndInUseIsOneCreation)
{
    overlay.emplace(OnGDI(), functions);
    overlay.reset();
    g_made.clear();
    overlay.emplace(OnGDI(), functions);
    overlay.reset();
    EXPECT_THAT(g_made, testing::ElementsAre("create", "destroy"));
}

TEST_F(OverlayStart, LeavesTheHostsOwnRequestToQuit)
{
    constexpr int ExitCode = 7;
    PostQuitMessage(ExitCode);
    overlay.emplace(OnGDI(), functions);
    EXPECT_EQ(TakeQuitMessage(), ExitCode);
    EXPECT_EQ(TakeQuitMessage(), std::nullopt);
}

TEST_F(OverlayStart, IsTheOnlyOneOnAnotherBackEndToo)
{
    overlay.emplace(OnGDI(), functions);
    EXPECT_EQ(ErrorOf([this] { lumora::Overlay(OnGDI(), functions); }),
              "Lumora: there is an overlay already");
}

} // namespace
} // namespace zq::LM::test
