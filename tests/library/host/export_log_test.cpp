// What the exported functions write to the log: each its own line, by level and on its channel.
#include "support/library/overlay_test.h"

#include <string>

namespace zq::LM {
namespace {

using test::LogLine;
using test::OverlayTest;
using test::Sample;
using Lines = std::vector<LogLine>;

constexpr const char* SizeLine = "sizeof (zq::LM::Params) is 32 in the DLL.\n";

bool BelongsToAnExport(const LogLine& line)
{
    return line.text.starts_with("zq::CallFunc::") || line.text.starts_with("sizeof") ||
           line.text.starts_with("Debug level");
}

class ExportLog : public OverlayTest {
protected:
    // Every export but the two that make and end the instance.
    void CallTheOthers(std::uint32_t level)
    {
        LM_Params params{};
        LM_PenData sample = Sample(100, 100);
        std::uint64_t size = 0;
        unsigned char message[16] = {};
        library.GetCopiedParams(&params);
        library.GetElmSize(&size, &size);
        library.GetWindowHandle();
        library.InputPenDataArray(&sample, 1);
        library.SetData_from_App(message, sizeof(message));
        library.SetDebugLevel(level);
        library.SetParams(&params);
    }

    static Lines LinesOfTheOthers(std::uint32_t level)
    {
        if (level == 0) {
            return {};
        }
        Lines lines = {
            {true, "zq::CallFunc::GetCopiedParams\n"},   {true, SizeLine},
            {true, "zq::CallFunc::GetElmSize\n"},        {true, "zq::CallFunc::GetWindowHandle\n"},
            {true, "zq::CallFunc::InputPenDataArray\n"}, {true, "zq::CallFunc::SetData_from_App\n"},
            {true, "zq::CallFunc::SetDebugLevel\n"},     {true, "Debug level set\n"},
            {true, "zq::CallFunc::SetParams\n"}};
        if (level == 1) {
            lines.erase(lines.begin() + 4); // pen input comes too often for the basic level
        }
        return lines;
    }

    Lines LinesOfExports() const
    {
        Lines lines;
        for (const LogLine& line : debugger.Lines()) {
            if (BelongsToAnExport(line)) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    template <typename Call> Lines LinesOf(Call call)
    {
        debugger.Clear();
        call();
        return debugger.Lines();
    }
    template <typename Call> LogLine FirstLineOf(Call call) { return LinesOf(call).at(0); }
};

class ExportLogAtLevel : public ExportLog, public ::testing::WithParamInterface<std::uint32_t> {
protected:
    void SetUp() override
    {
        library.SetDebugLevel(GetParam());
        debugger.Clear();
    }
};

TEST_P(ExportLogAtLevel, HasTheExportsLinesAndNoOthersBeforeAnInstance)
{
    CallTheOthers(GetParam());
    EXPECT_EQ(debugger.Lines(), LinesOfTheOthers(GetParam()));
}

TEST_P(ExportLogAtLevel, HasTheExportsLinesAndNoOthersAfterAnInstance)
{
    library.Create();
    DestroyAndForget();
    debugger.Clear();
    CallTheOthers(GetParam());
    EXPECT_EQ(debugger.Lines(), LinesOfTheOthers(GetParam()));
}

TEST_P(ExportLogAtLevel, HasTheSameExportsLinesWithAnInstance)
{
    library.Create();
    debugger.Clear();
    CallTheOthers(GetParam());
    EXPECT_EQ(LinesOfExports(), LinesOfTheOthers(GetParam()));
}

TEST_P(ExportLogAtLevel, HasOneLineForCreatingAndOneForDestroying)
{
    library.Create();
    library.Destroy();
    const Lines expected = GetParam() == 0
                               ? Lines{}
                               : Lines{{true, "zq::CallFunc::Create\n"}, {true, "zq::CallFunc::Destroy\n"}};
    EXPECT_EQ(LinesOfExports(), expected);
}

TEST_P(ExportLogAtLevel, HasTheLineOfDestroyingWithoutAnInstance)
{
    library.Destroy();
    EXPECT_EQ(debugger.Lines(), GetParam() == 0 ? Lines{} : (Lines{{true, "zq::CallFunc::Destroy\n"}}));
}

INSTANTIATE_TEST_SUITE_P(Levels, ExportLogAtLevel,
                         ::testing::Values(0U, 1U, 2U, 3U, 254U, 255U, 256U, 0xFFFFFFFFU),
                         ::testing::PrintToStringParamName());

TEST_F(ExportLog, IsEmptyAtLevelZeroWhateverTheInstanceDoes)
{
    library.Create();
    Choose(test::ChooseGDI);
    Input({Sample(100, 100)}); // rebuilds
    InputAndPaint({Sample(100, 100), Sample(150, 120)});
    CallTheOthers(0);
    clock.Advance(1000);
    Tick();
    Tick();
    Paint();
    library.Create();
    library.Destroy();
    EXPECT_EQ(debugger.Lines(), Lines{});
}

TEST_F(ExportLog, AtLevelOneHasNothingButTheExportsAndTheVersion)
{
    library.SetDebugLevel(1);
    debugger.Clear();
    const HWND window = library.Create();
    Input({Sample(100, 100), Sample(150, 120)});
    UpdateWindow(window);
    SendMessageW(window, WM_TIMER, 12345, 0);
    library.Destroy();
    ASSERT_EQ(debugger.Lines().size(), 3U);
    EXPECT_EQ(debugger.Lines()[0], (LogLine{true, "zq::CallFunc::Create\n"}));
    EXPECT_TRUE(debugger.Lines()[1].text.starts_with("LumoraDLL.dll ("));
    EXPECT_EQ(debugger.Lines()[2], (LogLine{true, "zq::CallFunc::Destroy\n"}));
}

TEST_F(ExportLog, BeginsWithTheExportsOwnLine)
{
    library.SetDebugLevel(255);
    const LM_PenData sample = Sample(100, 100);
    const LM_Params params{};
    EXPECT_EQ(FirstLineOf([&] { library.Create(); }).text, "zq::CallFunc::Create\n");
    EXPECT_EQ(FirstLineOf([&] { library.Create(); }).text, "zq::CallFunc::Create\n"); // replaces
    EXPECT_EQ(FirstLineOf([&] { library.SetParams(&params); }).text, "zq::CallFunc::SetParams\n");
    EXPECT_EQ(FirstLineOf([&] { library.InputPenDataArray(&sample, 1); }).text,
              "zq::CallFunc::InputPenDataArray\n");
    Choose(test::ChooseGDI);
    EXPECT_EQ(FirstLineOf([&] { library.InputPenDataArray(&sample, 1); }).text, // rebuilds
              "zq::CallFunc::InputPenDataArray\n");
    EXPECT_EQ(FirstLineOf([&] { library.Destroy(); }).text, "zq::CallFunc::Destroy\n");
}

TEST_F(ExportLog, HasTheLineOfPenInputWithANullArrayToo)
{
    library.SetDebugLevel(2);
    library.Create();
    EXPECT_EQ(LinesOf([&] { library.InputPenDataArray(nullptr, 3); }),
              (Lines{{true, "zq::CallFunc::InputPenDataArray\n"}}));
}

TEST_F(ExportLog, TellsOfTheInvalidationByPenInputFromLevelTwoOn)
{
    library.SetDebugLevel(2);
    library.Create();
    EXPECT_EQ(LinesOf([&] { Input({Sample(100, 100)}); }),
              (Lines{{true, "zq::CallFunc::InputPenDataArray\n"}, {true, "InvalidateRect is called.\n"}}));
}

TEST_F(ExportLog, ComparesTheLineOfSetDebugLevelWithTheOldLevelAndThatOfTheSetLevelWithTheNew)
{
    const LogLine called = {true, "zq::CallFunc::SetDebugLevel\n"};
    const LogLine set = {true, "Debug level set\n"};
    EXPECT_EQ(LinesOf([&] { library.SetDebugLevel(255); }), Lines{set});
    EXPECT_EQ(LinesOf([&] { library.SetDebugLevel(1); }), (Lines{called, set}));
    EXPECT_EQ(LinesOf([&] { library.SetDebugLevel(0); }), Lines{called});
}

TEST_F(ExportLog, HasTheSizeLineForANullRecordToo)
{
    library.SetDebugLevel(1);
    EXPECT_EQ(LinesOf([&] { library.GetCopiedParams(nullptr); }),
              (Lines{{true, "zq::CallFunc::GetCopiedParams\n"}, {true, SizeLine}}));
}

TEST_F(ExportLog, KeepsItsLevelBeyondTheInstance)
{
    library.SetDebugLevel(1);
    library.Create();
    DestroyAndForget();
    EXPECT_EQ(LinesOf([&] { library.GetWindowHandle(); }).size(), 1U);
}

} // namespace
} // namespace zq::LM
