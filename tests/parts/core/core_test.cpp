// A Core of the test program's own, with parts that note what they are asked.
#include "parts/core/core_test.h"

#include <shellapi.h>

namespace zq::LM::test {

namespace {

std::array<FakeBackEnd*, 3> g_backEnds{};

class FakeView final : public ParamsView {
public:
    ~FakeView() override { AddLine("view destroyed"); }
    void Open() override { AddLine("view opened"); }
    void Refresh() override { AddLine("view refreshed"); }
};

template <int place> std::unique_ptr<DrawingLib> MakeFakeBackEnd()
{
    auto backEnd = std::make_unique<FakeBackEnd>(place);
    g_backEnds[place] = backEnd.get();
    return backEnd;
}

Owned<ParamsView> MakeFakeView(HWND, HMODULE, Params*) { return Owned<ParamsView>(new FakeView); }

} // namespace

const Makers FakeMakers = {
    .backEnds = {MakeFakeBackEnd<0>, MakeFakeBackEnd<1>, MakeFakeBackEnd<2>},
    .paramsView = MakeFakeView,
    .brushDataServer = LibraryMakers.brushDataServer,
};

std::unique_ptr<DrawingLib> NoBackEnd() { return nullptr; }

CoreTest::CoreTest() { calls.Name(shell.Window(), "shell"); }

CoreTest::~CoreTest()
{
    if (core != nullptr) {
        DestroyWindowAndCore();
    }
    PumpMessages();
    g_renderingType = RenderingType::DirectComposition;
    g_userInterfaceSwitch = false;
}

void CoreTest::MakeCore(RenderingType type)
{
    Activate(type);
    core.reset(new Core({.module = Program()}, makers));
}

HWND CoreTest::CreateWindowed(RenderingType type)
{
    MakeCore(type);
    HWND window = core->CreateOverlayWindow();
    UpdateWindow(window);
    calls.Take();
    return window;
}

void CoreTest::DestroyWindowAndCore()
{
    if (core->Window() != nullptr) {
        DestroyWindow(core->Window());
    }
    core.reset();
}

void CoreTest::RecordDestruction()
{
    calls.Record<"GetDC">("USER32.dll", GetDC);
    calls.Record<"CreateCompatibleDC">("GDI32.dll", CreateCompatibleDC);
    calls.Record<"CreateCompatibleBitmap">("GDI32.dll", CreateCompatibleBitmap);
    calls.Record<"DeleteDC">("GDI32.dll", DeleteDC);
    calls.Record<"DeleteObject">("GDI32.dll", DeleteObject);
    calls.Record<"KillTimer">("USER32.dll", KillTimer);
}

void CoreTest::RecordHotkey()
{
    constexpr ATOM Atom = 0xC123;
    calls.Answer<"GlobalAddAtomW">("KERNEL32.dll", GlobalAddAtomW, [](LPCWSTR) { return Atom; });
    calls.Answer<"GlobalDeleteAtom">("KERNEL32.dll", GlobalDeleteAtom, [](ATOM) { return ATOM{0}; });
    calls.Answer<"RegisterHotKey">("USER32.dll", RegisterHotKey, [](HWND, int, UINT, UINT) { return TRUE; });
    calls.Answer<"UnregisterHotKey">("USER32.dll", UnregisterHotKey, [](HWND, int) { return TRUE; });
}

void CoreTest::RecordTray()
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

FakeBackEnd& CoreTest::BackEnd(RenderingType type) { return *g_backEnds[static_cast<std::size_t>(type)]; }

Params CoreTest::EngineRecord() const
{
    Params params{};
    core->Ink().Engine()->GetCopiedParams(&params);
    return params;
}

PenData Touch(std::int32_t x)
{
    PenData sample{};
    sample.time = 1;
    sample.x = x;
    sample.y = 100;
    sample.pressure = 1;
    return sample;
}

} // namespace zq::LM::test
