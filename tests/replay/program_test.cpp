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

TEST_F(Program, MissingLibraryIsOneLineWithStatus1)
{
    Write("good.svc", OneSample);
    const Outcome outcome = Run(L"good.svc --dll none.dll");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_EQ(outcome.output, "");
    ExpectOneLine(outcome.error);
    EXPECT_THAT(outcome.error, HasSubstr("none.dll cannot be loaded"));
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
