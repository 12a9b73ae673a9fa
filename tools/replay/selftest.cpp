// The self-test of lumora-replay.
#include "selftest.h"
#include "console.h"
#include "latency.h"
#include "library_file.h"
#include "recording.h"
#include "replay_error.h"
#include "selftest_report.h"
#include "system_facts.h"
#include "text/wide_text.h"

#include "lumora/lumora.hpp"

#include <array>
#include <cstdio>
#include <fstream>

namespace lumora::replay {

namespace {

constexpr COLORREF Below = RGB(0, 160, 0);
constexpr Colour Red = {255, 0, 0};
constexpr int Strokes = 8;
constexpr int StrokeLength = 120;
constexpr int RowHeight = 20;
constexpr std::chrono::milliseconds InkLife{1500};
constexpr auto FullTouch = static_cast<std::int32_t>(FullPressure);
constexpr double LongestWaitMs = 1000; // for one stroke, most of it a first frame's
constexpr double SettleMs = 30;        // Wine 10 shows the shape of a layered window before its colours
constexpr double NoticeMs = 500;       // the overlay notices the end of its ink by a timer

double NowMs()
{
    LARGE_INTEGER ticks = {};
    LARGE_INTEGER frequency = {};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

// Within every overlay: without a shell it is a small one in the corner.
POINT MiddleOfTheTest()
{
    constexpr POINT WithoutShell = {125, 120};
    return GetShellWindow() != nullptr
               ? POINT{GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2}
               : WithoutShell;
}

// The window below the overlay.
class Backdrop {
public:
    explicit Backdrop(POINT middle)
    {
        static const ATOM Class = RegisterClass_();
        window =
            CreateWindowExW(WS_EX_TOOLWINDOW, MAKEINTATOM(Class), L"", WS_POPUP, middle.x - StrokeLength,
                            middle.y - Strokes * RowHeight / 2 - RowHeight, 2 * StrokeLength,
                            (Strokes + 1) * RowHeight, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        ShowWindow(window, SW_SHOWNOACTIVATE);
        UpdateWindow(window);
    }
    ~Backdrop() { DestroyWindow(window); }
    Backdrop(const Backdrop&) = delete;
    Backdrop& operator=(const Backdrop&) = delete;

    HWND Window() const { return window; }

private:
    // For as long as the process lives, and its brush with it.
    static ATOM RegisterClass_()
    {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"Lumora self-test";
        windowClass.hbrBackground = CreateSolidBrush(Below);
        return RegisterClassW(&windowClass);
    }

    HWND window;
};

// The middle of the n-th stroke.
POINT PlaceOf(POINT middle, int stroke) { return {middle.x, middle.y + (stroke - Strokes / 2) * RowHeight}; }

COLORREF ColourAt(POINT place)
{
    HDC screen = GetDC(nullptr);
    const COLORREF colour = GetPixel(screen, place.x, place.y);
    ReleaseDC(nullptr, screen);
    return colour;
}

std::string TextOf(COLORREF colour)
{
    std::array<char, 8> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%02X%02X%02X", GetRValue(colour),
                                    GetGValue(colour), GetBValue(colour)));
    return text.data();
}

// Dispatches what waits; true when the window was painted.
bool PumpSeesPaintOf(HWND window)
{
    bool painted = false;
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        DispatchMessageW(&message);
        painted = painted || (message.message == WM_PAINT && message.hwnd == window);
    }
    return painted;
}

void PumpFor(double milliseconds)
{
    for (const double end = NowMs() + milliseconds; NowMs() < end;) {
        PumpSeesPaintOf(nullptr);
        MsgWaitForMultipleObjectsEx(0, nullptr, 10, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
}

std::optional<double> MedianOf(const std::vector<double>& values)
{
    return values.empty() ? std::nullopt : std::optional<double>(Summarise(values).median);
}

// One stroke, until it is on the screen or will not be.
void Stroke(Overlay& overlay, POINT middle, BackEndFindings& findings, std::vector<double>& paintMs,
            std::vector<double>& screenMs)
{
    const LONG half = StrokeLength / 2;
    const double begin = NowMs();
    overlay.Input({overlay.SampleAt({middle.x - half, middle.y}, FullTouch),
                   overlay.SampleAt({middle.x + half, middle.y}, FullTouch),
                   overlay.SampleAt({middle.x + half, middle.y}, 0)});
    ++findings.strokes;
    bool isPainted = false;
    while (NowMs() - begin < LongestWaitMs) {
        if (PumpSeesPaintOf(overlay.Window()) && !isPainted) {
            isPainted = true;
            paintMs.push_back(NowMs() - begin);
        }
        if (ColourAt(middle) != Below) {
            screenMs.push_back(NowMs() - begin);
            ++findings.strokesSeen;
            PumpFor(SettleMs);
            findings.colour = TextOf(ColourAt(middle));
            return;
        }
    }
}

void Try(Overlay& overlay, POINT middle, const Backdrop& backdrop, BackEndFindings& findings)
{
    overlay.ChangeParams([](Params& params) {
        params.inkDecayTime = InkLife;
        params.inkColor = Red;
        params.usePressure = false;
        params.cursor = false;
    });
    PumpFor(NoticeMs);

    std::vector<double> paintMs;
    std::vector<double> screenMs;
    for (int i = 0; i < Strokes; ++i) {
        Stroke(overlay, PlaceOf(middle, i), findings, paintMs, screenMs);
    }
    findings.medianPaintMs = MedianOf(paintMs);
    findings.medianScreenMs = MedianOf(screenMs);
    findings.letsClicksThrough = WindowFromPoint(middle) == backdrop.Window();

    PumpFor(static_cast<double>(InkLife.count()) + NoticeMs);
    findings.isGoneAfterItsLife = true;
    for (int i = 0; i < Strokes; ++i) {
        findings.isGoneAfterItsLife = findings.isGoneAfterItsLife && ColourAt(PlaceOf(middle, i)) == Below;
    }
}

BackEndFindings FindingsOf(const char* name, lumora::BackEnd backEnd, const Library& library)
{
    BackEndFindings findings;
    findings.name = name;
    const POINT middle = MiddleOfTheTest();
    // First: Wine shows what is made later above, even above a topmost window.
    const Backdrop backdrop(middle);
    try {
        OverlayOptions options;
        options.backEnd = backEnd;
        Overlay overlay(options, library);
        Try(overlay, middle, backdrop, findings);
    } catch (const Error& error) {
        findings.error = error.what();
    }
    return findings;
}

} // namespace

void Selftest(const std::filesystem::path& libraryFile, const std::filesystem::path& reportFile,
              const MakeUnderlay& makeUnderlay)
{
    const Library library = LoadLibraryFile(libraryFile); // first: without one an old report stays
    std::ofstream report(reportFile, std::ios::binary);
    if (!report) {
        throw ReplayError("the report cannot be written to " + text::ToUtf8(reportFile.native()));
    }
    const std::shared_ptr<void> underlay = makeUnderlay ? makeUnderlay(library.module) : nullptr;
    std::vector<BackEndFindings> findings;
    for (const auto& [name, backEnd] :
         {std::pair{"composition", lumora::BackEnd::DirectComposition},
          std::pair{"d2d", lumora::BackEnd::Direct2D}, std::pair{"gdi", lumora::BackEnd::GDI}}) {
        PrintLine(Channel::Output, std::string("drawing with ") + name);
        findings.push_back(FindingsOf(name, backEnd, library));
    }
    const std::string text = SelftestReport(FactsOfThisSystem(), findings);
    report << text;
    if (!report.flush()) {
        throw ReplayError("the report cannot be written to " + text::ToUtf8(reportFile.native()));
    }
    PrintLine(Channel::Output, text);
}

} // namespace lumora::replay
