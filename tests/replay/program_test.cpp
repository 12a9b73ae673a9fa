// lumora-replay as a user meets it: its output and exit status, as far as they need no library and no screen.
#include "program_run.h"

#include <algorithm>

namespace lumora::replay {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

void ExpectOneLine(const std::string& text)
{
    EXPECT_THAT(text, EndsWith("\n"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
}

constexpr char OneSample[] = "1\n1 2 3 1 0 0 5\n";

TEST_F(Program, HelpGoesToTheOutputWithStatus0)
{
    const Outcome outcome = Run(L"--help");
    EXPECT_EQ(outcome.status, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("Usage: lumora-replay RECORDING"));
    EXPECT_EQ(outcome.error, "");
}

TEST_F(Program, BadCommandLineIsOneLineWithAHintAndStatus2)
{
    const Outcome outcome = Run(L"a.svc --speed never");
    EXPECT_EQ(outcome.status, 2U);
    EXPECT_EQ(outcome.output, "");
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, HasSubstr("--speed needs"));
    EXPECT_THAT(outcome.error, HasSubstr("--help"));
}

TEST_F(Program, MissingRecordingIsOneLineWithStatus2)
{
    const Outcome outcome = Run(L"none.svc");
    EXPECT_EQ(outcome.status, 2U);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "none.svc:0: there is no such file\n");
}

TEST_F(Program, DamagedRecordingIsOneLineWithFileAndLineAndStatus2)
{
    Write("bad.svc", "1\n1 2 3 9 0 0 5\n");
    const Outcome outcome = Run(L"bad.svc");
    EXPECT_EQ(outcome.status, 2U);
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, StartsWith("bad.svc:2: column 4 (pen)"));
}

TEST_F(Program, NamesBeyondAsciiAreReadAndReportedAsUtf8)
{
    Write(std::filesystem::path(L"\u00fc\u03b1.svc"), "many\n");
    const Outcome outcome = Run(L"\u00fc\u03b1.svc");
    EXPECT_EQ(outcome.status, 2U);
    EXPECT_THAT(outcome.error, StartsWith("\xC3\xBC\xCE\xB1.svc:1: "));
}

TEST_F(Program, SavesARecordingInTheOtherFormatAndBack)
{
    Write("good.svc", OneSample);
    const Outcome there = Run(L"good.svc --save good.inkml");
    EXPECT_EQ(there.status, 0U) << there.error;
    EXPECT_EQ(there.output, "saved good.inkml\n");
    const Outcome back = Run(L"good.inkml --save back.svc");
    EXPECT_EQ(back.status, 0U) << back.error;
    EXPECT_EQ(Content("back.svc"), OneSample);
}

TEST_F(Program, SavesUnderNamesBeyondAscii)
{
    Write("good.svc", OneSample);
    const Outcome outcome = Run(L"good.svc --save \u00fc\u03b1.svc");
    EXPECT_EQ(outcome.output, "saved \xC3\xBC\xCE\xB1.svc\n");
    EXPECT_EQ(Content(std::filesystem::path(L"\u00fc\u03b1.svc")), OneSample);
}

TEST_F(Program, FileThatIsThereIsOnlyReplacedWhenTold)
{
    Write("good.svc", OneSample);
    Write("old.svc", "old");
    const Outcome kept = Run(L"good.svc --save old.svc");
    EXPECT_EQ(kept.status, 1U);
    EXPECT_EQ(kept.output, "");
    EXPECT_EQ(
        kept.error,
        "lumora-replay: old.svc cannot be saved: there is such a file already (--overwrite replaces it)\n");
    EXPECT_EQ(Content("old.svc"), "old");
    EXPECT_EQ(Run(L"good.svc --save old.svc --overwrite").status, 0U);
    EXPECT_EQ(Content("old.svc"), OneSample);
}

TEST_F(Program, RecordingMayBeSavedOverItself)
{
    Write("good.svc", std::string("# mine\n") + OneSample);
    EXPECT_EQ(Run(L"good.svc --save good.svc --overwrite").status, 0U);
    EXPECT_EQ(Content("good.svc"), OneSample);
}

TEST_F(Program, DamagedInkmlIsOneLineWithFileAndLineAndStatus2)
{
    Write("bad.inkml", "<ink>\n<trace>1 b</trace></ink>");
    const Outcome outcome = Run(L"bad.inkml");
    EXPECT_EQ(outcome.status, 2U);
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, StartsWith("bad.inkml:2: a value is expected here"));
}

TEST_F(Program, MissingLibraryIsOneLineWithStatus1)
{
    Write("good.svc", OneSample);
    const Outcome outcome = Run(L"good.svc --dll none.dll");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_EQ(outcome.output, "");
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, HasSubstr("none.dll cannot be loaded"));
}

TEST_F(Program, SelftestWithoutALibraryKeepsAnOldReport)
{
    Write("report.txt", "old");
    const Outcome outcome = Run(L"--selftest report.txt --dll none.dll");
    EXPECT_EQ(outcome.status, 1U);
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, HasSubstr("none.dll cannot be loaded"));
    EXPECT_EQ(Content("report.txt"), "old");
}

TEST_F(Program, LibraryWithoutTheFunctionsIsOneLineWithStatus1)
{
    Write("good.svc", OneSample);
    wchar_t system[MAX_PATH] = {};
    GetSystemDirectoryW(system, MAX_PATH);
    const Outcome outcome = Run(L"good.svc --dll \"" + std::wstring(system) + L"\\version.dll\"");
    EXPECT_EQ(outcome.status, 1U);
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, HasSubstr("no function LM_Create"));
}

} // namespace
} // namespace lumora::replay
