// lumora-replay as a user meets it: its output and exit status, as far as they need no library and no screen.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <windows.h>

namespace lumora::replay {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

struct Outcome {
    DWORD status = 0;
    std::string output;
    std::string error;
};

class Program : public testing::Test {
protected:
    void SetUp() override
    {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::temp_directory_path() / (std::string("lumora-program-") + test->name());
        std::filesystem::create_directories(folder);
    }

    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    // Runs the program that lies beside this test with arguments that are written as on a command line.
    Outcome Run(const std::wstring& arguments)
    {
        const HANDLE output = OpenForChild(folder / "output");
        const HANDLE error = OpenForChild(folder / "error");
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = output;
        startup.hStdError = error;
        PROCESS_INFORMATION process = {};
        std::wstring commandLine =
            L"\"" + (ProgramFolder() / L"lumora-replay.exe").native() + L"\" " + arguments;
        const BOOL started = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                            folder.c_str(), &startup, &process);
        Outcome outcome;
        if (started != 0) {
            WaitForSingleObject(process.hProcess, INFINITE);
            GetExitCodeProcess(process.hProcess, &outcome.status);
            CloseHandle(process.hThread);
            CloseHandle(process.hProcess);
        } else {
            ADD_FAILURE() << "the program did not start: " << GetLastError();
        }
        CloseHandle(output);
        CloseHandle(error);
        outcome.output = ReadAll(folder / "output");
        outcome.error = ReadAll(folder / "error");
        return outcome;
    }

    void Write(const std::filesystem::path& name, const std::string& text) const
    {
        std::ofstream(folder / name, std::ios::binary) << text;
    }

private:
    static std::filesystem::path ProgramFolder()
    {
        std::wstring path(32768, L'\0');
        path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
        return std::filesystem::path(path).parent_path();
    }

    static HANDLE OpenForChild(const std::filesystem::path& file)
    {
        SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0,
                           nullptr);
    }

    static std::string ReadAll(const std::filesystem::path& file)
    {
        std::ostringstream text;
        text << std::ifstream(file, std::ios::binary).rdbuf();
        return text.str();
    }

    std::filesystem::path folder;
};

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
