// Every program meets every bad argument and file alike: it ends by itself with a status that says so, and a
// word about it.
#include "program_run.h"

#include <algorithm>

namespace lumora::replay {
namespace {

std::string NameOf(const testing::TestParamInfo<const wchar_t*>& info)
{
    std::string name;
    for (const wchar_t character : std::wstring(info.param)) {
        if (character != L'-' && character != L'.') {
            name += static_cast<char>(character);
        }
    }
    return name;
}

class Sweep : public Program, public testing::WithParamInterface<const wchar_t*> {
protected:
    // 1 and 2 are the statuses of failures and wrong input; a crash has another one.
    void ExpectRefusal(const std::wstring& arguments)
    {
        SCOPED_TRACE(testing::PrintToString(arguments.substr(0, 80)));
        const Outcome outcome = Run(arguments, GetParam());
        EXPECT_THAT(outcome.status, testing::AnyOf(1U, 2U));
        EXPECT_EQ(outcome.output, "");
        EXPECT_GT(outcome.error.size(), 1U);
        EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1) << outcome.error;
    }
};

TEST_P(Sweep, BadArgumentsAreRefused)
{
    for (const std::wstring& arguments :
         {std::wstring(L"--no-such-option"), std::wstring(L"-x"), std::wstring(L"\"\" \"\""),
          std::wstring(L"--= =--"), std::wstring(L"--record"), std::wstring(L"--backend vulkan"),
          std::wstring(L"--seconds 1e3"), std::wstring(L"--screenshot 5 --save"),
          std::wstring(L"\xD800 \xDFFF"), std::wstring(L"--\u202e\u0000", 3),
          L"--" + std::wstring(20'000, L'a')}) {
        ExpectRefusal(arguments);
    }
}

class FileSweep : public Sweep {};

TEST_P(FileSweep, BadFilesAreRefused)
{
    Write("empty.svc", "");
    Write("zeros.svc", std::string(100'000, '\0'));
    Write("long-line.svc", std::string(1'000'000, '7'));
    Write("program.svc", "MZ\x90\x00\x03\xff\xff");
    Write("cut.inkml", "<ink xmlns=\"http://www.w3.org/2003/InkML\"><trace>1 2, 3");
    Write("deep.inkml", [] {
        std::string text;
        for (int i = 0; i < 100'000; ++i) {
            text += "<traceGroup>";
        }
        return text;
    }());
    std::filesystem::create_directory(folder / "folder.svc");
    for (const wchar_t* file :
         {L"empty.svc", L"zeros.svc", L"long-line.svc", L"program.svc", L"cut.inkml", L"deep.inkml",
          L"folder.svc", L"none.svc", L"NUL", L"a:b:c", L"\"<>|\"", L"..", L"\\\\.\\none"}) {
        ExpectRefusal(file);
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Sweep,
                         testing::Values(L"lumora-replay.exe", L"lumora-pen-host.exe",
                                         L"lumora-demo-desktop.exe"),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(Each, FileSweep, testing::Values(L"lumora-replay.exe"), NameOf);

} // namespace
} // namespace lumora::replay
