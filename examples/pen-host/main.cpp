// lumora-pen-host: how a pen program uses Lumora. Wet ink is Lumora's, dry ink its own.
#include "options.h"
#include "pen_window.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

constexpr int ExitClosed = 0;
constexpr int ExitFailed = 1;
constexpr int ExitWrongOptions = 2;

// Longer than the host needs to draw what it takes over, even on a bad day, and within what the settings
// dialog allows (1000). Not longer: Lumora draws all living ink anew in each frame.
constexpr std::chrono::milliseconds InkLife{800};
constexpr lumora::Colour WetInk = {30, 110, 230};
constexpr int BrushSize = 6; // pixels, on a screen that is not scaled

// A program with windows has no console of its own. What it has to say goes to the stream that its caller has
// given it, and into a box where there is none.
void Tell(DWORD stream, const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string utf8(text.size() * 3, '\0'); // the most that it takes
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), length * 3, nullptr, nullptr);
    DWORD written = 0;
    if (!WriteFile(GetStdHandle(stream), utf8.data(), static_cast<DWORD>(size), &written, nullptr)) {
        MessageBoxW(nullptr, text.c_str(), L"lumora-pen-host", MB_OK);
    }
}

void Write(const std::wstring& backEnd, std::vector<pen_host::PenSample>& recorded)
{
    lumora::OverlayOptions options; // a back-end that is chosen here shows no other window before
    options.backEnd = backEnd == L"gdi"        ? lumora::BackEnd::GDI
                      : backEnd == L"direct2d" ? lumora::BackEnd::Direct2D
                                               : lumora::BackEnd::DirectComposition;
    lumora::Overlay ink(options);
    ink.ChangeParams([](lumora::Params& params) {
        params.inkDecayTime = InkLife;
        params.inkColor = WetInk;
        params.brushSize =
            static_cast<std::uint32_t>(MulDiv(BrushSize, static_cast<int>(GetDpiForSystem()), 96));
    });
    pen_host::RunPenWindow(ink, recorded);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    // Before any window: on a scaled screen Windows would otherwise tell positions that are not the screen's.
    // A manifest says the same earlier still, which a program with DLLs that make windows needs.
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    const auto options = pen_host::ReadOptions({__wargv + 1, __wargv + __argc});
    if (options.help) {
        Tell(STD_OUTPUT_HANDLE, pen_host::HelpText);
        return ExitClosed;
    }
    if (!options.mistake.empty()) {
        Tell(STD_ERROR_HANDLE, L"lumora-pen-host: " + options.mistake + L" (see lumora-pen-host --help)\n");
        return ExitWrongOptions;
    }
    try {
        std::vector<pen_host::PenSample> recorded;
        std::ofstream recording; // opened first: nobody wants to hear at the end that nothing was kept
        if (!options.recording.empty()) {
            recording.open(std::filesystem::path(options.recording), std::ios::binary);
        }
        if (recording) {
            Write(options.backEnd, recorded);
        }
        if (recording.is_open()) {
            pen_host::WriteSvc(recording, recorded);
            recording.close();
        }
        if (!recording) {
            throw lumora::Error("the recording cannot be written");
        }
        return ExitClosed;
    } catch (const std::exception& failure) {
        const std::string text = failure.what();
        Tell(STD_ERROR_HANDLE, L"lumora-pen-host: " + std::wstring(text.begin(), text.end()) + L"\n");
        return ExitFailed;
    }
}
