// A Core of the test program's own, with its calls to the system recorded.
#include "windows/window/core_window_test.h"

#include <shellapi.h>

namespace zq::LM::test {

CoreWindowTest::CoreWindowTest() { calls.Name(shell.Window(), "shell"); }

CoreWindowTest::~CoreWindowTest()
{
    if (core != nullptr) {
        DestroyWindowAndCore();
    }
    PumpMessages();
    g_renderingType = RenderingType::DirectComposition;
    g_userInterfaceSwitch = false;
}

void CoreWindowTest::MakeCore(RenderingType type)
{
    g_renderingType = type;
    core = std::make_unique<Core>(Program(), 0U);
    Core::BackEnds& backEnds = core->AllBackEnds();
    for (std::size_t i = 0; i < backEnds.size(); ++i) {
        backEnds[i] = std::make_unique<TracedBackEnd>(static_cast<int>(i));
    }
}

HWND CoreWindowTest::CreateWindowed(RenderingType type)
{
    MakeCore(type);
    HWND window = core->CreateOverlayWindow();
    UpdateWindow(window);
    return window;
}

void CoreWindowTest::RecordDestruction()
{
    calls.Record<"GetDC">("USER32.dll", GetDC);
    calls.Record<"CreateCompatibleDC">("GDI32.dll", CreateCompatibleDC);
    calls.Record<"CreateCompatibleBitmap">("GDI32.dll", CreateCompatibleBitmap);
    calls.Record<"DeleteDC">("GDI32.dll", DeleteDC);
    calls.Record<"DeleteObject">("GDI32.dll", DeleteObject);
    calls.Record<"KillTimer">("USER32.dll", KillTimer);
}

void CoreWindowTest::RecordHotkey()
{
    constexpr ATOM Atom = 0xC123;
    calls.Answer<"GlobalAddAtomW">("KERNEL32.dll", GlobalAddAtomW, [](LPCWSTR) { return Atom; });
    calls.Answer<"GlobalDeleteAtom">("KERNEL32.dll", GlobalDeleteAtom, [](ATOM) { return ATOM{0}; });
    calls.Answer<"RegisterHotKey">("USER32.dll", RegisterHotKey, [](HWND, int, UINT, UINT) { return TRUE; });
    calls.Answer<"UnregisterHotKey">("USER32.dll", UnregisterHotKey, [](HWND, int) { return TRUE; });
}

void CoreWindowTest::RecordTray()
{
    calls.Answer<"LoadImageW">("USER32.dll", LoadImageW,
                               [](HINSTANCE, LPCWSTR name, UINT type, int, int, UINT) -> HANDLE {
                                   return type == IMAGE_ICON ? CopyIcon(LoadIconW(nullptr, IDI_APPLICATION))
                                                             : LoadCursorW(nullptr, name);
                               });
    calls.Answer<"LoadMenuW">("USER32.dll", LoadMenuW, [](HINSTANCE, LPCWSTR) { return CreateMenu(); });
    calls.Answer<"Shell_NotifyIconW">("SHELL32.dll", Shell_NotifyIconW,
                                      [](DWORD, NOTIFYICONDATAW*) { return TRUE; });
    calls.Record<"DestroyIcon">("USER32.dll", DestroyIcon);
    calls.Record<"DestroyMenu">("USER32.dll", DestroyMenu);
}

void CoreWindowTest::DestroyWindowAndCore()
{
    if (core->Window() != nullptr) {
        DestroyWindow(core->Window());
    }
    core.reset();
}

TracedBackEnd& CoreWindowTest::BackEnd(RenderingType type)
{
    return static_cast<TracedBackEnd&>(*core->AllBackEnds()[static_cast<std::size_t>(type)]);
}

} // namespace zq::LM::test
