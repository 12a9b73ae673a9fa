// The dialog that asks for a file for the frame rates.
#include "ui/rate_file_dialog.h"

#include <commdlg.h>

namespace zq::LM {

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
    GetSaveFileNameA(&request); // chosen or cancelled, it is the same
}

} // namespace zq::LM
