// The dialog that asks for a file for the frame rates.
#include "ui/rate_file_dialog.h"

#include <commdlg.h>

#include <string>

namespace zq::LM {

namespace {

// The process's current directory, which is the host's. The dialog moves it to the folder that the user looks
// into; it is put back when this ends.
class KeptDirectory {
public:
    KeptDirectory() : path(CurrentDirectory_()) {}
    ~KeptDirectory()
    {
        if (!path.empty()) {
            SetCurrentDirectoryW(path.c_str()); // fails when it has gone meanwhile: nothing better is known
        }
    }
    KeptDirectory(const KeptDirectory&) = delete;
    KeptDirectory& operator=(const KeptDirectory&) = delete;

private:
    // Empty when there is none. Another thread may change to a longer one between two questions.
    static std::wstring CurrentDirectory_()
    {
        std::wstring path(MAX_PATH, L'\0');
        for (;;) {
            const DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data());
            const bool fits = length < path.size(); // else it counts the terminator too
            path.resize(length);
            if (fits) {
                return path;
            }
        }
    }

    std::wstring path;
};

} // namespace

void AskForRateFile(HWND owner)
{
    constexpr DWORD NameLength = 260;
    char name[NameLength] = "FPS.csv";
    OPENFILENAMEA request{};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner;
    request.lpstrFilter = "Text files {*.csv}\0*.csv\0";
    request.lpstrFile = name;
    request.nMaxFile = NameLength;
    request.Flags = OFN_OVERWRITEPROMPT | OFN_FILEMUSTEXIST;
    const KeptDirectory kept;
    GetSaveFileNameA(&request); // chosen or cancelled, it is the same
}

} // namespace zq::LM
