// lumora-pen-host as a user meets it before a window comes: its output and exit status.
#include "replay/program_run.h"

namespace {

using testing::HasSubstr;

class PenHost : public lumora::replay::Program {
protected:
    lumora::replay::Outcome RunHost(const std::wstring& arguments)
    {
        return Run(arguments, L"lumora-pen-host.exe");
    }
};

TEST_F(PenHost, HelpGoesToTheOutputWithStatus0)
{
    const auto outcome = RunHost(L"--help");
    EXPECT_EQ(outcome.status, 0U);
    EXPECT_THAT(outcome.output, HasSubstr("Usage: lumora-pen-host "));
    EXPECT_EQ(outcome.error, "");
}

TEST_F(PenHost, BadCommandLineIsOneLineOfUtf8WithAHintAndStatus2)
{
    const auto outcome = RunHost(L"--backend \u00fc\u03b1");
    EXPECT_EQ(outcome.status, 2U);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error,
              "lumora-pen-host: --backend needs composition, direct2d or gdi, not \"\xC3\xBC\xCE\xB1\" "
              "(see lumora-pen-host --help)\n");
}

TEST_F(PenHost, RecordingThatCannotBeWrittenIsToldBeforeTheWindowWithStatus1)
{
    const auto outcome = RunHost(L"--record none\\pen.svc");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.error, "lumora-pen-host: the recording cannot be written\n");
}

} // namespace
