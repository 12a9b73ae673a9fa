// The device chain's set-up: its calls, and what follows when one of them fails.
#include "support/library/composition_test.h"
#include "support/row_name.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

using testing::ContainerEq;
using testing::ElementsAre;
using testing::IsEmpty;

// Everything up to the first frame, for an overlay of 640 x 480.
Lines SetUpCalls(HWND window)
{
    return {
        "D3D11CreateDevice(null, 1, null, 32, null, 0, 7, null) = 0 -> D3DDevice#1",
        "D3DDevice#1.QueryInterface({54EC77FA-1377-44E6-8C32-88FD5F44C84C}) = 0 -> DxgiDevice#1",
        "CreateDXGIFactory2(0, {50C83A1C-E072-4C48-87B0-3630FA36A6D0}) = 0 -> DxgiFactory#1",
        "DxgiFactory#1.CreateSwapChainForComposition(DxgiDevice#1, {width=640, height=480, format=87, "
        "stereo=0, samples=1, quality=0, usage=32, buffers=2, scaling=0, effect=3, alpha=1, flags=0}, null) "
        "= 0 -> SwapChain#1",
        "D2D1CreateFactory(0, {94F81A73-9212-4376-9C58-B16A3A0D3992}, {debug=0}) = 0 -> D2DFactory#1",
        "D2DFactory#1.CreateDevice(DxgiDevice#1) = 0 -> D2DDevice#1",
        "D2DDevice#1.CreateDeviceContext(0) = 0 -> DeviceContext#1",
        "SwapChain#1.GetBuffer(0, {ABA496DD-B617-4CB8-A866-BC44D7EB1FA2}) = 0 -> BackBuffer#1",
        "DeviceContext#1.CreateBitmapFromDxgiSurface(BackBuffer#1, {format=87, alpha=1, dpiX=0, dpiY=0, "
        "options=3} context null) = 0 -> Bitmap#1",
        "DeviceContext#1.SetTarget(Bitmap#1)",
        "Bitmap#1.Release() = 0x1", // the device context keeps it
        "BackBuffer#1.Release() = 0",
        "DCompositionCreateDevice(DxgiDevice#1, {C37EA93A-E7AA-450D-B16F-9746CB0407F3}) = 0 -> "
        "CompositionDevice#1",
        "DCompositionCreateDevice3(DxgiDevice#1, {C37EA93A-E7AA-450D-B16F-9746CB0407F3}) = 0 -> "
        "CompositionDevice#2",
        "CompositionDevice#2.QueryInterface({0987CB06-F916-48BF-8D35-CE7641781BD9}) = 0 -> "
        "CompositionDevice3#1",
        "CompositionDevice#2.CreateTargetForHwnd(" + Show(window) + ", 1) = 0 -> Target#1",
        "CompositionDevice#2.CreateVisual() = 0 -> Visual#1",
        "Visual#1.SetContent(SwapChain#1) = 0",
        "Target#1.SetRoot(Visual#1) = 0",
        "CompositionDevice#2.Commit() = 0",
        "DWriteCreateFactory(0, {B859EE5A-D838-4B5B-A2E8-1ADC7D93DB48}) = 0 -> WriteFactory#1",
        "D2DFactory#1.CreateStrokeStyle({start=2, end=2, dash=0, join=0, miter=10, style=0, offset=0}, null, "
        "0) = 0 -> StrokeStyle#1",
        "WriteFactory#1.CreateTextFormat(\"Gabriola\", null, 400, 0, 5, 24, \"en-us\") = 0 -> TextFormat#1",
    };
}

const Lines FrameWithoutTarget = {"DeviceContext#1.BeginDraw()", "DeviceContext#1.Clear(null)",
                                  "DeviceContext#1.EndDraw(null, null) = 0x88990001",
                                  "SwapChain#1.Present(0, 0) = 0"};
const Lines EmptyFrame = {"DeviceContext#1.BeginDraw()", "DeviceContext#1.Clear(null)",
                          "DeviceContext#1.EndDraw(null, null) = 0", "SwapChain#1.Present(0, 0) = 0"};

Lines Together(Lines first, const Lines& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

class SetUpTest : public CompositionTest {
protected:
    SetUpTest() { composition.Show(false); }
    ~SetUpTest() override { library.SetDebugLevel(0); }

    // Frames carry information from then on.
    void StartLog()
    {
        library.SetDebugLevel(NormalLevel);
        debugger.Clear();
    }

    // What the back-end writes of its set-up and its frames.
    Lines BackEndTexts() const
    {
        Lines texts = debugger.Texts();
        std::erase_if(texts, [](const std::string& text) {
            return text.find("DirectComposition") == std::string::npos &&
                   text.find("InitTransparentWindowCore_") == std::string::npos &&
                   text != "Exception is thrown!\n";
        });
        return texts;
    }
};

TEST_F(SetUpTest, MakesEveryCallInOrderAndDrawsAnEmptyFrame)
{
    const HWND window = library.Create();
    EXPECT_THAT(composition.Take(), ContainerEq(Together(SetUpCalls(window), EmptyFrame)));
}

TEST_F(SetUpTest, SaysThatItSucceeded)
{
    StartLog();
    library.Create();
    EXPECT_THAT(BackEndTexts(), ElementsAre("DirectCompositionImpl(Constructor)\n",
                                            "zq::LM::DirectComposition::InitTransparentWindow\n",
                                            "InitTransparentWindowCore_ is successful."));
}

TEST_F(SetUpTest, FirstFrameIsFullyTransparent)
{
    library.Create();
    const auto& frame = composition.LastFrame();
    EXPECT_EQ(frame.serial, 1U);
    EXPECT_EQ(frame.width, 640U);
    EXPECT_EQ(frame.height, 480U);
    EXPECT_EQ(frame.Count(0), 640U * 480U);
}

TEST_F(SetUpTest, AntialiasingIsLeftAsItIs)
{
    library.Create();
    EXPECT_EQ(composition.Count("DeviceContext.SetAntialiasMode"), 0U);
    EXPECT_EQ(composition.Count("DeviceContext.SetTextAntialiasMode"), 0U);
}

TEST_F(SetUpTest, AnotherInstanceSetsUpAnew)
{
    library.Create();
    DestroyAndForget();
    library.Create();
    setUps = 2;
    EXPECT_EQ(composition.Count("D3D11CreateDevice"), 2U);
    EXPECT_EQ(composition.LastFrame().serial, 1U); // of a new swap chain
}

TEST_F(SetUpTest, NothingIsMadeForAnotherBackEnd)
{
    library.Create();
    Choose(ChooseGDI);
    DestroyAndForget();
    composition.Take();
    StartLog();
    library.Create();
    EXPECT_THAT(composition.Take(), IsEmpty());
    EXPECT_THAT(BackEndTexts(), ElementsAre("DirectCompositionImpl(Constructor)\n"));
}

enum class Frames { None, WithoutTarget, Complete };

struct FailingStep {
    const char* name;
    int devicesLeft; // composition devices that stay behind on purpose
    Frames frames;   // what has been made is enough for
};

class FailingSetUpTest : public SetUpTest, public testing::WithParamInterface<FailingStep> {
protected:
    FailingSetUpTest()
    {
        composition.Answer(GetParam().name, E_FAIL);
        setUps = GetParam().devicesLeft;
    }

    // The recorded calls up to the one that fails, that one included.
    Lines CallsUpToFailure() const
    {
        Lines lines;
        for (const RecordedCall& call : composition.Calls()) {
            lines.push_back(call.Text());
            if (call.Step() == GetParam().name) {
                break;
            }
        }
        return lines;
    }

    // As many as in a set-up that succeeds, the last of them failed.
    Lines ExpectedCalls(HWND window) const
    {
        const std::string step = GetParam().name;
        const std::string method = step.substr(step.find('.') + 1) + '(';
        const std::string kind = step.substr(0, step.find('.'));
        Lines lines = SetUpCalls(window);
        const auto failed = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.starts_with(kind) && line.find(method) != std::string::npos;
        });
        lines.erase(failed + 1, lines.end());
        lines.back() = lines.back().substr(0, lines.back().rfind(" = 0")) + " = 0x80004005";
        return lines;
    }
};

TEST_P(FailingSetUpTest, SaysSo)
{
    StartLog();
    library.Create();
    EXPECT_THAT(BackEndTexts(),
                ElementsAre("DirectCompositionImpl(Constructor)\n",
                            "zq::LM::DirectComposition::InitTransparentWindow\n",
                            "InitTransparentWindowCore_ is failed.", "Exception is thrown!\n"));
}

TEST_P(FailingSetUpTest, EndsThereWithoutTakingAnythingBack)
{
    const HWND window = library.Create();
    const Lines upToFailure = CallsUpToFailure();
    EXPECT_THAT(upToFailure, ContainerEq(ExpectedCalls(window)));
    Lines rest = composition.Take();
    rest.erase(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(upToFailure.size()));
    std::erase(rest, "BackBuffer#1.Release() = 0"); // needed for the call alone
    const bool complete = GetParam().frames == Frames::Complete;
    const Lines& drawn = complete ? EmptyFrame : FrameWithoutTarget;
    EXPECT_THAT(rest, ContainerEq(GetParam().frames == Frames::None ? Lines{} : drawn));
}

TEST_P(FailingSetUpTest, WindowFramesAndExportsGoOn)
{
    StartLog(); // information is drawn on whatever there is
    const HWND window = library.Create();
    EXPECT_NE(window, nullptr);
    EXPECT_EQ(library.GetWindowHandle(), window);
    SetParams(Params());
    const Lines calls = FrameWith({Sample(100, 100), Sample(150, 120)});
    EXPECT_EQ(calls.empty(), GetParam().frames == Frames::None);
    shell.Move({100, 100, 400, 300});
    Frame();
    Frame();
    Tick();
    EXPECT_FALSE(IsInvalid());
}

INSTANTIATE_TEST_SUITE_P(
    Steps, FailingSetUpTest,
    testing::Values(FailingStep{"D3D11CreateDevice", 0, Frames::None},
                    FailingStep{"D3DDevice.QueryInterface", 0, Frames::None},
                    FailingStep{"CreateDXGIFactory2", 0, Frames::None},
                    FailingStep{"DxgiFactory.CreateSwapChainForComposition", 0, Frames::None},
                    FailingStep{"D2D1CreateFactory", 0, Frames::None},
                    FailingStep{"D2DFactory.CreateDevice", 0, Frames::None},
                    FailingStep{"D2DDevice.CreateDeviceContext", 0, Frames::None},
                    FailingStep{"SwapChain.GetBuffer", 0, Frames::WithoutTarget},
                    FailingStep{"DeviceContext.CreateBitmapFromDxgiSurface", 0, Frames::WithoutTarget},
                    FailingStep{"DCompositionCreateDevice", 0, Frames::Complete},
                    FailingStep{"DCompositionCreateDevice3", 1,
                                Frames::Complete}, // the first one is lost sight of
                    FailingStep{"CompositionDevice.QueryInterface", 1, Frames::Complete},
                    FailingStep{"CompositionDevice.CreateTargetForHwnd", 1, Frames::Complete},
                    FailingStep{"CompositionDevice.CreateVisual", 1, Frames::Complete},
                    FailingStep{"Visual.SetContent", 1, Frames::Complete},
                    FailingStep{"Target.SetRoot", 1, Frames::Complete},
                    FailingStep{"CompositionDevice.Commit", 1, Frames::Complete},
                    FailingStep{"DWriteCreateFactory", 1, Frames::Complete},
                    FailingStep{"D2DFactory.CreateStrokeStyle", 1, Frames::Complete},
                    FailingStep{"WriteFactory.CreateTextFormat", 1, Frames::Complete}),
    RowName());

} // namespace

} // namespace zq::LM::test
