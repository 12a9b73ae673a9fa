// What one creation of the overlay window asks of the system, and in which order it says so.
#include "support/library/window_test.h"

#include <string>

namespace zq::LM::test {

namespace {

constexpr UINT ClassStyle = CS_HREDRAW | CS_VREDRAW;

Lines Concat(std::initializer_list<Lines> parts)
{
    Lines all;
    for (const Lines& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

// Up to the place where the tray begins, for a class of this number and the window that is asked for.
Lines UntilTheTray(const std::string& lookup, int number, const std::string& style)
{
    const std::string name = "\"Lumora Window Class_0000" + std::to_string(number) + "\"";
    return {"log: zq::CallFunc::Create\n",
            "log: " + VersionLine(),
            "log: DirectCompositionImpl(Constructor)\n",
            "log: zq::LM::GDI::GDI(Constructor)\n",
            "LoadImageW(null, #32512, 2, 0, 0, 32832)",
            "RegisterClassExW(" + name + ")",
            lookup,
            "CreateWindowExW(" + style + ", " + name +
                ", \"Lumora DLL Window\", 0x90000000, 200, 60, 640, 480, null, null, module, null)",
            "log: WM_CREATE ... "};
}

const Lines TrayAndMeasures = {"LoadImageW(module, #5, 1, 0, 0, 0)",
                               "Shell_NotifyIconW(0, *)",
                               "LoadMenuW(module, \"IDR_MENU_LUMORA_CORE_TASKTRAY\")",
                               "GetDC(window 1)",
                               "GetDeviceCaps(dc of window 1, 4)",
                               "GetDeviceCaps(dc of window 1, 6)"};

Lines Marks(std::uint32_t level, int ofType)
{
    return {"CheckMenuRadioItem(menu, 40010, 40014, " + std::string(level == 3 ? "40013" : "40014") + ", 0)",
            "CheckMenuRadioItem(menu, 40020, 40022, " + std::to_string(ofType) + ", 0)"};
}

// The frame of the set-up, whose clear and present look the back-end up.
// The frame's information needs the pen's rate, whose lock is a line of the level ALL alone.
Lines EmptyFrame(const std::string& lookup, std::uint32_t level)
{
    Lines lines = {"log: \tMovePenData_ is locked.\n", "log: \tMovePenData_ is unlocked.\n", lookup, lookup};
    if (level == 255) {
        lines.insert(lines.end(),
                     {"log: \tPenReoprtRate is locked.\n", "log: \tPenReoprtRate is unlocked.\n"});
    }
    return lines;
}

} // namespace

class CreationTest : public WindowTest {
protected:
    // The description that the library registers next.
    void WatchClass()
    {
        calls.Answer<"RegisterClassExW">(RegisterClassExW, [this](const WNDCLASSEXW* offered) {
            description = *offered;
            className = offered->lpszClassName;
            return ::RegisterClassExW(offered);
        });
    }

    Lines LinesOfACreation(std::uint32_t level);
    void ExpectOrderForGDI(std::uint32_t level);
    void ExpectOrderForDirectComposition(std::uint32_t level);

    WNDCLASSEXW description{};
    std::wstring className;
};

TEST_F(CreationTest, RegistersAClassOfWhichEveryFieldIsSet)
{
    WatchClass();
    HWND window = library.Create();
    EXPECT_EQ(description.cbSize, 80U);
    EXPECT_EQ(description.style, ClassStyle);
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(description.lpfnWndProc), GetWindowLongPtrW(window, GWLP_WNDPROC));
    EXPECT_EQ(description.cbClsExtra, 0);
    EXPECT_EQ(description.cbWndExtra, 0);
    EXPECT_EQ(description.hInstance, library.Module());
    EXPECT_EQ(description.hIcon, nullptr);
    EXPECT_EQ(description.hCursor, LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(description.hbrBackground, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(description.lpszMenuName, nullptr);
    EXPECT_EQ(description.hIconSm, nullptr);
}

TEST_F(CreationTest, EveryWindowHasAClassOfANewNumber)
{
    WatchClass();
    library.Create();
    EXPECT_EQ(className, L"Lumora Window Class_00000");
    DestroyAndForget();
    library.Create();
    EXPECT_EQ(className, L"Lumora Window Class_00001");
    library.Create();
    EXPECT_EQ(className, L"Lumora Window Class_00002");
}

TEST_F(CreationTest, WindowsOfTheOtherTypesArePlainTopmostToolWindows)
{
    const Lines expected = {"CreateWindowExW(136, \"Lumora Window Class_00001\", \"Lumora DLL Window\", "
                            "0x90000000, 200, 60, 640, 480, null, null, module, null)",
                            "CreateWindowExW(136, \"Lumora Window Class_00002\", \"Lumora DLL Window\", "
                            "0x90000000, 200, 60, 640, 480, null, null, module, null)"};
    SelectGDI();
    calls.Record<"CreateWindowExW">(CreateWindowExW);
    library.Create();
    Choose(ChooseDirect2D);
    DestroyAndForget();
    library.Create();
    EXPECT_EQ(calls.Take(), expected);
}

TEST_F(CreationTest, TheWindowCoversTheShellsDesktop)
{
    HWND window = library.Create();
    EXPECT_TRUE(IsAt(window, Desktop));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetParent(window), nullptr);
    wchar_t title[64]{};
    GetWindowTextW(window, title, 64);
    EXPECT_STREQ(title, L"Lumora DLL Window");
}

TEST_F(CreationTest, TheWindowIsLayeredAndLetsTheMouseThrough)
{
    constexpr LONG Expected = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_TRANSPARENT | WS_EX_LAYERED;
    SelectGDI();
    HWND window = library.Create();
    EXPECT_EQ(GetWindowLongW(window, GWL_EXSTYLE) & Expected, Expected);
    COLORREF key = 0;
    BYTE opacity = 0;
    DWORD flags = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(window, &key, &opacity, &flags));
    EXPECT_EQ(key, 0x00FF00FFU);
    EXPECT_EQ(opacity, 192);
    EXPECT_EQ(flags, 3U);
}

Lines CreationTest::LinesOfACreation(std::uint32_t level)
{
    library.SetDebugLevel(level);
    RecordCreation();
    RecordHotkey(false);
    calls.RecordLog();
    library.Create();
    return calls.Take();
}

void CreationTest::ExpectOrderForGDI(std::uint32_t level)
{
    const std::string lookup = "log: Rendering type is DirectGDI.\n";
    const Lines untilTheFrame = {
        "SetTimer(window 1, 12345, 50, null)",
        "log: done\n",
        "GetWindowLongW(window 1, -20)",
        "SetWindowLongW(window 1, -20, 0x800A8)",
        lookup,
        "log: zq::LM::GDI::InitTransparentWindow",
        "SetLayeredWindowAttributes(window 1, 0xFF00FF, 192, 3)",
    };
    const Lines afterTheFrame = {
        lookup,
        "GetDC(window 1)",
        "CreateSolidBrush(0xFF00FF)",
        "PatBlt(dc of window 1, 0, 0, 640, 480, 0xF00021)",
        "DeleteObject(brush 0xFF00FF)",
        "ReleaseDC(window 1, dc of window 1)",
        "GlobalAddAtomW(\"Lumora Hotkey\")",
        "RegisterHotKey(window 1, 49443, 7, 87)",
        lookup,
        "GetDC(window 1)",
        "CreateCompatibleDC(dc of window 1)",
        "CreateCompatibleBitmap(dc of window 1, 640, 480)",
        "CreateSolidBrush(0xFF00FF)",
        "PatBlt(memory dc, 0, 0, 640, 480, 0xF00021)",
        "DeleteObject(brush 0xFF00FF)",
        "ReleaseDC(window 1, dc of window 1)",
    };
    SelectGDI();
    EXPECT_EQ(LinesOfACreation(level),
              Concat({UntilTheTray(lookup, 1, "136"), TrayAndMeasures, Marks(level, 40022), untilTheFrame,
                      EmptyFrame(lookup, level), afterTheFrame}));
}

void CreationTest::ExpectOrderForDirectComposition(std::uint32_t level)
{
    const std::string lookup = "log: Rendering type is Direct Composition.\n";
    const Lines untilTheFrame = {
        "SetTimer(window 1, 12345, 50, null)",
        "log: done\n",
        "GetWindowLongW(window 1, -20)",
        "SetWindowLongW(window 1, -20, 0x2800A8)",
        lookup,
        "log: zq::LM::DirectComposition::InitTransparentWindow\n",
        "log: InitTransparentWindowCore_ is failed.",
        "log: Exception is thrown!\n",
    };
    const Lines afterTheFrame = {lookup, "GlobalAddAtomW(\"Lumora Hotkey\")",
                                 "RegisterHotKey(window 1, 49443, 7, 87)", lookup};
    EXPECT_EQ(LinesOfACreation(level),
              Concat({UntilTheTray(lookup, 0, "0x200088"), TrayAndMeasures, Marks(level, 40020),
                      untilTheFrame, EmptyFrame(lookup, level), afterTheFrame}));
}

TEST_F(CreationTest, TheOrderOfCallsAndLinesForGDIAtLevel3) { ExpectOrderForGDI(3); }
TEST_F(CreationTest, TheOrderOfCallsAndLinesForGDIAtLevel255) { ExpectOrderForGDI(255); }
TEST_F(CreationTest, TheOrderOfCallsAndLinesForDirectCompositionAtLevel3)
{
    ExpectOrderForDirectComposition(3);
}
TEST_F(CreationTest, TheOrderOfCallsAndLinesForDirectCompositionAtLevel255)
{
    ExpectOrderForDirectComposition(255);
}

} // namespace zq::LM::test
