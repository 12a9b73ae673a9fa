// lumora-demo-desktop's command line.
#include "program_run.h"

namespace lumora::replay {
namespace {

class DemoDesktop : public Program {
protected:
    Outcome RunWith(const std::wstring& arguments) { return Run(arguments, L"lumora-demo-desktop.exe"); }
};

TEST_F(DemoDesktop, HelpGoesToTheOutputWithStatus0)
{
    for (const wchar_t* help : {L"--help", L"-h"}) {
        const Outcome outcome = RunWith(help);
        EXPECT_EQ(outcome.status, 0U);
        EXPECT_THAT(outcome.output, testing::StartsWith("Usage: lumora-demo-desktop [--seconds N]"));
        EXPECT_EQ(outcome.error, "");
    }
}

TEST_F(DemoDesktop, WrongArgumentsAreAnsweredByTheUsageWithStatus2)
{
    for (const wchar_t* wrong : {L"--seconds", L"--seconds 0", L"--seconds -1", L"--seconds 86401",
                                 L"--seconds 5x", L"--seconds \"\"", L"--seconds 99999999999999999999", L"5",
                                 L"--minutes 5", L"--seconds 5 6", L"--help --help", L"\"\""}) {
        const Outcome outcome = RunWith(wrong);
        EXPECT_EQ(outcome.status, 2U);
        EXPECT_EQ(outcome.output, "");
        EXPECT_THAT(outcome.error, testing::StartsWith("Usage: "));
    }
}

TEST_F(DemoDesktop, EndsByItself) { EXPECT_EQ(RunWith(L"--seconds 1").status, 0U); }

} // namespace
} // namespace lumora::replay
