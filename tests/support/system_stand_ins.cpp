// Stand-ins for what the library asks of the system.
#include "support/system_stand_ins.h"

#include <d2d1.h>

#include <string_view>

namespace zq::LM::test {

namespace {

DWORD g_now = 0;
std::vector<LogLine> g_lines;
HWND g_shell = nullptr;
unsigned g_timerFailures = 0;
std::vector<TimerStandIn::Call> g_timers;
std::vector<UINT_PTR> g_killedTimers;

DWORD WINAPI StandInTimeGetTime() { return g_now; }

void WINAPI StandInOutputDebugStringW(const wchar_t* text)
{
    std::string narrow;
    for (const wchar_t character : std::wstring_view(text)) {
        narrow += static_cast<char>(character);
    }
    g_lines.push_back({true, std::move(narrow)});
}

void WINAPI StandInOutputDebugStringA(const char* text) { g_lines.push_back({false, text}); }

HWND WINAPI StandInGetShellWindow() { return g_shell; }

UINT_PTR WINAPI StandInSetTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC)
{
    g_timers.push_back({window, id, period});
    if (g_timerFailures > 0) {
        --g_timerFailures;
        return 0;
    }
    return id;
}

BOOL WINAPI StandInKillTimer(HWND, UINT_PTR id)
{
    g_killedTimers.push_back(id);
    return TRUE;
}

HRESULT WINAPI RefuseDevice() { return E_FAIL; }

using CreateFactory = HRESULT WINAPI(D2D1_FACTORY_TYPE, const GUID&, const D2D1_FACTORY_OPTIONS*, void**);
CreateFactory* g_createFactory = nullptr;

// The back-end asks for the first interface of a factory, and nobody else does.
HRESULT WINAPI RefuseFirstFactory(D2D1_FACTORY_TYPE type, const GUID& id, const D2D1_FACTORY_OPTIONS* options,
                                  void** factory)
{
    return id == __uuidof(ID2D1Factory) ? E_FAIL : g_createFactory(type, id, options, factory);
}

} // namespace

ClockStandIn::ClockStandIn(HMODULE library, DWORD start)
    : patch(library, "WINMM.dll", "timeGetTime", AsAddress(StandInTimeGetTime))
{
    g_now = start;
}

void ClockStandIn::Set(DWORD milliseconds) { g_now = milliseconds; }
void ClockStandIn::Advance(DWORD milliseconds) { g_now += milliseconds; }
DWORD ClockStandIn::Now() const { return g_now; }

DebuggerStandIn::DebuggerStandIn(HMODULE library)
    : wide(library, "KERNEL32.dll", "OutputDebugStringW", AsAddress(StandInOutputDebugStringW)),
      narrow(library, "KERNEL32.dll", "OutputDebugStringA", AsAddress(StandInOutputDebugStringA))
{
    g_lines.clear();
}

const std::vector<LogLine>& DebuggerStandIn::Lines() const { return g_lines; }

std::vector<std::string> DebuggerStandIn::Texts() const
{
    std::vector<std::string> texts;
    for (const LogLine& line : g_lines) {
        texts.push_back(line.text);
    }
    return texts;
}

void DebuggerStandIn::Clear() { g_lines.clear(); }

ShellStandIn::ShellStandIn(HMODULE library, const RECT& place)
    : patch(library, "USER32.dll", "GetShellWindow", AsAddress(StandInGetShellWindow)),
      window(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"Shell stand-in", WS_POPUP, place.left, place.top,
                             place.right - place.left, place.bottom - place.top, nullptr, nullptr, nullptr,
                             nullptr))
{
    g_shell = window;
}

ShellStandIn::~ShellStandIn()
{
    g_shell = nullptr;
    DestroyWindow(window);
}

void ShellStandIn::Move(const RECT& place)
{
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void ShellStandIn::Remove() { g_shell = nullptr; }

TimerStandIn::TimerStandIn(HMODULE library, unsigned failures)
    : set(library, "USER32.dll", "SetTimer", AsAddress(StandInSetTimer)),
      kill(library, "USER32.dll", "KillTimer", AsAddress(StandInKillTimer))
{
    g_timerFailures = failures;
    g_timers.clear();
    g_killedTimers.clear();
}

const std::vector<TimerStandIn::Call>& TimerStandIn::Started() const { return g_timers; }
const std::vector<UINT_PTR>& TimerStandIn::Killed() const { return g_killedTimers; }

NoDirect2DBackEnd::NoDirect2DBackEnd(HMODULE library)
    : patch(library, "d2d1.dll", "D2D1CreateFactory", AsAddress(RefuseFirstFactory))
{
    g_createFactory = reinterpret_cast<CreateFactory*>(patch.Original());
}

// Takes none of its arguments: they stay with the caller.
NoGraphicsDevice::NoGraphicsDevice(HMODULE library)
    : patch(library, "d3d11.dll", "D3D11CreateDevice", AsAddress(RefuseDevice)), noDirect2D(library)
{
}

} // namespace zq::LM::test
