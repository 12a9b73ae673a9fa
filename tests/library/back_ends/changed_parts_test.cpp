// Frames touch only what has changed. Each scene runs twice, once with every clip refused and so with whole
// frames: bitmap and screen must be the same after each step.
#include "support/library/back_end_test.h"

#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace zq::LM::test {

struct ChangedPartsScene {
    BackEnd backEnd;
    unsigned seed;
};

inline std::ostream& operator<<(std::ostream& out, const ChangedPartsScene& scene)
{
    return out << scene.backEnd << scene.seed;
}

namespace {

constexpr RECT SmallScreen = {0, 0, 360, 260};
constexpr RECT Seen = {0, 0, 440, 340}; // the screens and what lies around them

// LUMORA_TEST_FRAMES makes long scenes, and more of them.
const char* WantedSteps() { return std::getenv("LUMORA_TEST_FRAMES"); }

int StepCount()
{
    constexpr int Few = 40;
    return WantedSteps() != nullptr ? static_cast<int>(std::strtol(WantedSteps(), nullptr, 10)) : Few;
}

std::vector<ChangedPartsScene> AllScenes()
{
    const unsigned seeds = WantedSteps() != nullptr ? 6 : 2;
    std::vector<ChangedPartsScene> scenes;
    for (const BackEnd& backEnd : {Direct2DBackEnd, GDIBackEnd}) {
        for (unsigned seed = 0; seed < seeds; ++seed) {
            scenes.push_back({backEnd, seed});
        }
    }
    return scenes;
}

} // namespace

class ChangedParts : public BackEndTest, public testing::WithParamInterface<ChangedPartsScene> {
protected:
    ChangedParts() : BackEndTest(GetParam().backEnd, SmallScreen) {}

    struct After {
        std::string step;
        Picture bitmap;
        Picture screen;
    };

    std::vector<After> Run(bool isWhole);

    // Of one rectangle, and of several.
    Hook<"IntersectClipRect", decltype(IntersectClipRect)> clips{library.Module()};
    Hook<"CombineRgn", decltype(CombineRgn)> joins{library.Module()};

private:
    int Random(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Random(count) == 0; }

    void ChangeRecord();
    void Write();
    LM_PenData SomeSample();
    std::string Disturb();
    std::string DisturbWindow();
    RECT SomePart();
    void MoveShell();
    void MoveCover();
    void SwitchAndBack();
    void Rebuild();
    void DrawInformation();
    Picture Bitmap() const;
    void Look(const std::string& step) { all.push_back({step, Bitmap(), TakePicture(Seen)}); }

    std::vector<After> all;

    std::mt19937 random;
    HDC memory = nullptr;
    POINT pen{180, 130};
    std::unique_ptr<Backdrop> cover; // a window above
    const Backdrop below{Seen, Green};

    Hook<"BitBlt", decltype(BitBlt)> copies{library.Module()};
    Hook<"PatBlt", decltype(PatBlt)> fills{library.Module()};
};

RECT ChangedParts::SomePart()
{
    const int left = Random(300);
    const int top = Random(200);
    return {left, top, left + 20 + Random(120), top + 20 + Random(120)};
}

void ChangedParts::ChangeRecord()
{
    LM_Params record = Params();
    record.inkDecayTime = static_cast<std::uint32_t>(20 + Random(200));
    record.inkColor = static_cast<std::uint32_t>(random()) & 0x00FFFFFF;
    record.minBrushSize = static_cast<std::uint32_t>(Random(6));
    record.brushSize = OneIn(20) ? 5000U : static_cast<std::uint32_t>(Random(40));
    record.line = OneIn(5) ? 0 : 1;
    record.outline = OneIn(3) ? 1 : 0;
    record.cursor = OneIn(2) ? 1 : 0;
    record.usePressure = OneIn(2) ? 1 : 0;
    record.useOffset = OneIn(3) ? 1 : 0;
    record.zebraMode = OneIn(3) ? 1 : 0;
    record.colorPicker = OneIn(8) ? 1 : 0;
    SetParams(record);
}

LM_PenData ChangedParts::SomeSample()
{
    constexpr int FarAway = 20'000;
    if (OneIn(12)) {
        pen = {Random(400), Random(300)};
    }
    pen.x += Random(41) - 20;
    pen.y += Random(41) - 20;
    const int x = OneIn(200) ? FarAway : pen.x;
    return Sample(x, pen.y, OneIn(10) ? 0 : Random(FullPressure + 1));
}

void ChangedParts::Write()
{
    std::vector<LM_PenData> samples;
    for (int left = Random(7); left > 0; --left) {
        samples.push_back(SomeSample());
    }
    samples.empty() ? InputNothing() : Input(samples);
}

void ChangedParts::MoveShell()
{
    constexpr RECT Places[] = {SmallScreen, {0, 0, 300, 320}, {20, 10, 380, 270}, {0, 0, 200, 100}};
    shell.Move(Places[Random(static_cast<int>(std::size(Places)))]);
}

// Comes, goes to another place, or goes away.
void ChangedParts::MoveCover()
{
    const RECT part = SomePart();
    if (cover == nullptr) {
        cover = std::make_unique<Backdrop>(part, Blue);
    } else if (OneIn(2)) {
        cover.reset();
        return;
    }
    SetWindowPos(cover->Window(), HWND_TOPMOST, part.left, part.top, part.right - part.left,
                 part.bottom - part.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    UpdateWindow(cover->Window());
}

// Until the rebuild another back-end draws, which has no window. Choosing the old one again rebuilds too.
void ChangedParts::SwitchAndBack()
{
    Choose(AllBackEnds[Random(static_cast<int>(std::size(AllBackEnds)))].command);
    Paint();
    Choose(backEnd.command);
    Paint();
}

void ChangedParts::Rebuild()
{
    SwitchAndBack();
    InputNothing();
}

// The second frame within a millisecond has no frequency: how many there were before is the display's affair.
void ChangedParts::DrawInformation()
{
    library.SetDebugLevel(1);
    Write();
    Paint();
    PaintAgain(library.GetWindowHandle());
    SettleScreen();
    Look("information");
    library.SetDebugLevel(0);
}

std::string ChangedParts::DisturbWindow()
{
    HWND window = library.GetWindowHandle();
    const RECT part = SomePart();
    switch (Random(5)) {
    case 0:
        InvalidateRect(window, &part, FALSE);
        return "part wanted";
    case 1:
        RedrawWindow(window, &part, nullptr, RDW_INVALIDATE | RDW_ERASE);
        return "part wanted and erased";
    case 2:
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ERASENOW);
        return "erased";
    case 3:
        SetWindowPos(window, nullptr, 0, 0, part.right, part.bottom,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return "resized by somebody";
    default:
        UpdateWindow(window);
        MoveCover();
        return "window above between two frames";
    }
}

std::string ChangedParts::Disturb()
{
    switch (Random(12)) {
    case 0:
        MoveShell();
        return "screen";
    case 1:
    case 2:
    case 3:
        MoveCover();
        return "window above";
    case 4:
        SwitchAndBack();
        return "switch and back";
    case 5:
        Rebuild();
        return "rebuild";
    case 6:
        DrawInformation();
        return "after information";
    case 7:
        copies.Fail(FALSE, 1, 1);
        return "copy that fails";
    case 8:
        fills.Fail(FALSE, 1, 1);
        return "clear that fails";
    default:
        return DisturbWindow();
    }
}

Picture ChangedParts::Bitmap() const
{
    BITMAP size{};
    GetObjectW(GetCurrentObject(memory, OBJ_BITMAP), sizeof(size), &size);
    return TakePicture(memory, {0, 0, size.bmWidth, size.bmHeight});
}

std::vector<ChangedParts::After> ChangedParts::Run(bool isWhole)
{
    random.seed(GetParam().seed);
    pen = {180, 130};
    cover.reset();
    shell.Move(SmallScreen);
    clock.Set(100'000);
    DestroyAndForget();
    copies.Before([this](HDC, int, int, int, int, HDC source, int, int, DWORD) { memory = source; });
    clips.PassOn();
    joins.PassOn();
    if (isWhole) {
        clips.Fail(ERROR);
        joins.Fail(ERROR);
    }
    library.Create();
    Paint();
    all.clear();
    for (int left = StepCount(); left > 0; --left) {
        std::string step = "writing";
        if (OneIn(4)) {
            ChangeRecord();
        }
        if (OneIn(3)) {
            step = Disturb();
        }
        clock.Advance(static_cast<DWORD>(Random(40)));
        if (OneIn(4)) {
            Tick();
        }
        Write();
        Paint();
        Look(step);
    }
    return std::move(all);
}

TEST_P(ChangedParts, LookAsIfEachFrameWereWhole)
{
    const std::vector<After> whole = Run(true);
    clips.Forget();
    joins.Forget();
    const std::vector<After> parts = Run(false);
    ASSERT_EQ(parts.size(), whole.size());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        ASSERT_EQ(parts[i].bitmap.Differences(whole[i].bitmap), 0U) << i << " " << parts[i].step;
        ASSERT_EQ(parts[i].screen.Differences(whole[i].screen), 0U) << i << " " << parts[i].step;
    }
    EXPECT_GT(clips.Count() + joins.Count(), parts.size() / 10) << "not every frame is whole";
}

INSTANTIATE_TEST_SUITE_P(Memory, ChangedParts, testing::ValuesIn(AllScenes()),
                         testing::PrintToStringParamName());

} // namespace zq::LM::test
