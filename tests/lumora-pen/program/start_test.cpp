// lumora-pen as a user meets it before it has an icon: its output and exit status.
#include "replay/program_run.h"

#include "lumora/version.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class PenStart : public lumora::replay::Program {
protected:
    lumora::replay::Outcome RunPen(const std::wstring& arguments)
    {
        return Run(arguments, L"lumora-pen.exe");
    }
};

TEST_F(PenStart, HelpGoesToTheOutputWithStatus0)
{
    const auto outcome = RunPen(L"--help");
    EXPECT_EQ(outcome.status, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("Ctrl+Shift"));
    EXPECT_EQ(outcome.error, "");
}

TEST_F(PenStart, VersionIsThatOfTheHeader)
{
    const auto outcome = RunPen(L"--version");
    EXPECT_EQ(outcome.status, 0U);
    EXPECT_THAT(outcome.output, HasSubstr(std::to_string(LUMORA_VERSION_MAJOR) + "." +
                                          std::to_string(LUMORA_VERSION_MINOR) + "."));
}

TEST_F(PenStart, BadCommandLineIsToldWithStatus2)
{
    for (const wchar_t* arguments :
         {L"--colour purple", L"--unknown", L"--back-end", L"--log-level 900", L"file"}) {
        const auto outcome = RunPen(arguments);
        EXPECT_EQ(outcome.status, 2U) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_NE(outcome.error, "") << arguments;
    }
}

TEST_F(PenStart, QuitWithNobodyRunningFails)
{
    const auto outcome = RunPen(L"--quit");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_EQ(outcome.error, "lumora-pen: no Lumora Pen is running\n");
}

TEST_F(PenStart, MissingLibraryIsToldWithStatus1)
{
    std::filesystem::copy_file(ProgramFolder() / "lumora-pen.exe", folder / "lumora-pen.exe");
    const auto outcome = Run(L"--settings pen.json", (folder / "lumora-pen.exe").native());
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_THAT(outcome.error, StartsWith("lumora-pen: "));
    EXPECT_THAT(outcome.error, HasSubstr("LumoraDLL.dll cannot be loaded"));
}

TEST_F(PenStart, RecordingThatCannotBeWrittenIsToldAtOnceWithStatus1)
{
    const auto outcome = RunPen(L"--settings pen.json --back-end gdi --record none\\pen.svc");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_THAT(outcome.error, HasSubstr("the recording cannot be written to"));
}

TEST_F(PenStart, RecordingReplacesNoFile)
{
    Write("mine.svc", "mine");
    const auto outcome = RunPen(L"--settings pen.json --back-end gdi --record mine.svc");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_THAT(outcome.error, HasSubstr("there is such a file already"));
    EXPECT_EQ(Content("mine.svc"), "mine");
}

} // namespace
