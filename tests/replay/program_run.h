// Runs lumora-replay as a user does, in a folder of its own.
#pragma once

#include "replay/folder_test.h"

#include <gmock/gmock.h>

#include <string>

#include <windows.h>

namespace lumora::replay {

struct Outcome {
    DWORD status = 0;
    std::string output;
    std::string error;
};

class Program : public FolderTest {
protected:
    // Runs a program that lies beside this test with arguments that are written as on a command line.
    Outcome Run(const std::wstring& arguments, const std::wstring& program = L"lumora-replay.exe")
    {
        const HANDLE output = OpenForChild(folder / "output");
        const HANDLE error = OpenForChild(folder / "error");
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = output;
        startup.hStdError = error;
        PROCESS_INFORMATION process = {};
        std::wstring commandLine = L"\"" + (ProgramFolder() / program).native() + L"\" " + arguments;
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
        outcome.output = Content("output");
        outcome.error = Content("error");
        return outcome;
    }

    static std::filesystem::path ProgramFolder()
    {
        std::wstring path(32768, L'\0');
        path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
        return std::filesystem::path(path).parent_path();
    }

private:
    static HANDLE OpenForChild(const std::filesystem::path& file)
    {
        SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0,
                           nullptr);
    }
};

} // namespace lumora::replay
