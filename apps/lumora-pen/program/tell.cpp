// Texts for a console or a box.
#include "program/tell.h"
#include "text/wide_text.h"

#include <windows.h>

namespace lumora_pen {

void Tell(Stream stream, std::string_view utf8)
{
    const bool isError = stream == Stream::Error;
    DWORD written = 0;
    if (WriteFile(GetStdHandle(isError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE), utf8.data(),
                  static_cast<DWORD>(utf8.size()), &written, nullptr) == 0) {
        MessageBoxW(nullptr, lumora::text::ToWide(utf8).c_str(), L"Lumora Pen",
                    MB_OK | (isError ? MB_ICONERROR : MB_ICONINFORMATION));
    }
}

} // namespace lumora_pen
