// A Core of the test program's own, with parts that note what they are asked.
#include "parts/core/core_test.h"

#include <shellapi.h>

namespace zq::LM::test {

namespace {

std::array<FakeBackEnd*, 3> g_backEnds{};
CallLog* g_log = nullptr; // of the test that runs

class FakeView final : public ParamsView {
public:
    ~FakeView() override { Note("view destroyed"); }
    void Open() override { Note("view opened"); }
    void Refresh() override { Note("view refreshed"); }
};

template <int place> std::unique_ptr<DrawingLib> MakeFakeBackEnd(PaintRecord&)
{
    auto backEnd = std::make_unique<FakeBackEnd>(place, *g_log);
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

std::unique_ptr<DrawingLib> NoBackEnd(PaintRecord&) { return nullptr; }

void Note(const std::string& line) { g_log->AddLine(line); }

CoreTest::CoreTest()
{
    g_log = &calls.Log();
    calls.Name(shell.Window(), "shell");
}

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
    calls.Record<"GetDC">(GetDC);
    calls.Record<"CreateCompatibleDC">(CreateCompatibleDC);
    calls.Record<"CreateCompatibleBitmap">(CreateCompatibleBitmap);
    calls.Record<"DeleteDC">(DeleteDC);
    calls.Record<"DeleteObject">(DeleteObject);
    calls.Record<"KillTimer">(KillTimer);
}

void CoreTest::RecordHotkey()
{
    constexpr ATOM Atom = 0xC123;
    calls.Answer<"GlobalAddAtomW">(GlobalAddAtomW, [](LPCWSTR) { return Atom; });
    calls.Answer<"GlobalDeleteAtom">(GlobalDeleteAtom, [](ATOM) { return ATOM{0}; });
    calls.Answer<"RegisterHotKey">(RegisterHotKey, [](HWND, int, UINT, UINT) { return TRUE; });
    calls.Answer<"UnregisterHotKey">(UnregisterHotKey, [](HWND, int) { return TRUE; });
}

void CoreTest::RecordTray()
{
    calls.Answer<"LoadImageW">(LoadImageW, [](HINSTANCE, LPCWSTR name, UINT type, int, int, UINT) -> HANDLE {
        return type == IMAGE_ICON ? CopyIcon(LoadIconW(nullptr, IDI_APPLICATION))
                                  : LoadCursorW(nullptr, name);
    });
    calls.Answer<"LoadMenuW">(LoadMenuW, [](HINSTANCE, LPCWSTR) { return CreateMenu(); });
    calls.Answer<"Shell_NotifyIconW">(Shell_NotifyIconW, [](DWORD, NOTIFYICONDATAW*) { return TRUE; });
    calls.Record<"DestroyIcon">(DestroyIcon);
    calls.Record<"DestroyMenu">(DestroyMenu);
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
