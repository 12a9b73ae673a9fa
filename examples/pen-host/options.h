// The command line. A mistake in it is told, never passed over.
#pragma once

#include <string>
#include <vector>

namespace pen_host {

constexpr wchar_t HelpText[] =
    L"lumora-pen-host: a window to write in, with a pen or the mouse.\n\n"
    L"Usage: lumora-pen-host [--backend composition|direct2d|gdi] [--record FILE]\n\n"
    L"  --backend NAME   how Lumora shows wet ink (default composition)\n"
    L"  --record FILE    at the end, write what the pen reported to FILE, for lumora-replay\n"
    L"  --help           this text\n\n"
    L"Keys: C clears, S opens Lumora's settings, Escape ends.\n"
    L"Exit status: 0 closed, 1 something failed, 2 wrong command line.\n";

struct Options {
    bool help = false;
    std::wstring backEnd = L"composition";
    std::wstring recording; // the name of a file, or empty
    std::wstring mistake;   // in the command line, or empty
};

// `arguments` are those after the program's name.
inline Options ReadOptions(const std::vector<std::wstring>& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& name = arguments[i];
        if (name == L"--help") {
            options.help = true;
            break;
        }
        const bool isBackEnd = name == L"--backend";
        if (!isBackEnd && name != L"--record") {
            options.mistake = L"unknown argument \"" + name + L"\"";
            break;
        }
        std::wstring& value = isBackEnd ? options.backEnd : options.recording;
        value = ++i < arguments.size() ? arguments[i] : L"";
        if (isBackEnd && value != L"composition" && value != L"direct2d" && value != L"gdi") {
            options.mistake = L"--backend needs composition, direct2d or gdi, not \"" + value + L"\"";
            break;
        }
        if (value.empty()) {
            options.mistake = L"--record needs the name of a file";
            break;
        }
    }
    return options;
}

} // namespace pen_host
