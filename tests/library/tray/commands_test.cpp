// What the menu's commands do, in which order, and what they write to the log.
#include "library/tray/tray_test.h"
#include "support/fakes/memory.h"

#include <commdlg.h>

#include <algorithm>
#include <string_view>

namespace zq::LM::test {

namespace {

const Lines LinesOfCommand = {"WM_COMMAND ... ", "InvalidateRect is called.\n", "done\n"};

} // namespace

class CommandsTest : public TrayTest {
protected:
    // The level in force, told by the lines that appear.
    std::uint32_t Level()
    {
        debugger.Clear();
        library.GetElmSize(nullptr, nullptr);
        InputStroke();
        Tick();
        const Lines texts = debugger.Texts();
        const auto has = [&](std::string_view line) {
            return std::find(texts.begin(), texts.end(), line) != texts.end();
        };
        debugger.Clear();
        if (has("\tLivePointsNum is locked.\n")) {
            return 255;
        }
        if (has("\tAddPenDataAryCore_ is locked.\n")) {
            return 3;
        }
        if (has("WM_TIMER ... ")) {
            return 2;
        }
        return has("zq::CallFunc::GetElmSize\n") ? 1 : 0;
    }

    Lines TextsOf(WPARAM command)
    {
        debugger.Clear();
        Command(command);
        return debugger.Texts();
    }

    // What the command asks of the save dialog, which answers as if the file had been chosen or not.
    void AnswerSaveDialog(BOOL answer, const std::function<void()>& whileOpen = nullptr)
    {
        calls.Answer<"GetSaveFileNameA">(GetSaveFileNameA, [this, answer, whileOpen](OPENFILENAMEA* offered) {
            request = *offered;
            offeredName = offered->lpstrFile;
            if (whileOpen) {
                whileOpen();
            }
            lstrcpyA(offered->lpstrFile, "lumora-rates-test.csv");
            return answer;
        });
    }

    OPENFILENAMEA request{};
    std::string offeredName;
};

TEST_F(CommandsTest, EachLevelCommandSetsItsLevel)
{
    CreateWithTray();
    const std::pair<WPARAM, std::uint32_t> commands[] = {
        {40014, 255}, {40010, 0}, {40011, 1}, {40013, 3}, {40012, 2}};
    for (const auto& [command, level] : commands) {
        Command(command);
        EXPECT_EQ(Level(), level) << command;
    }
}

TEST_F(CommandsTest, ALevelCommandsFirstLineIsAtTheOldLevelAndTheRestAtTheNew)
{
    CreateWithTray();
    Command(40010);
    EXPECT_EQ(TextsOf(40014), (Lines{"InvalidateRect is called.\n", "done\n"}));
    EXPECT_EQ(TextsOf(40011), Lines{"WM_COMMAND ... "});
    EXPECT_EQ(TextsOf(40012), (Lines{"InvalidateRect is called.\n", "done\n"}));
    EXPECT_EQ(TextsOf(40013), LinesOfCommand);
}

TEST_F(CommandsTest, EveryCommandRepaintsBeforeItMarksAndEndsWithItsLine)
{
    CreateWithTray(Normal);
    RecordInvalidations();
    calls.RecordLog();
    Command(ChooseDirect2D);
    EXPECT_EQ(calls.Take(),
              (Lines{"log: WM_COMMAND ... ", "log: Direct2D is set.\n", "log: InvalidateRect is called.\n",
                     "InvalidateRect(window 1, null, 0)", "CheckMenuRadioItem(menu, 40010, 40014, 40012, 0)",
                     "CheckMenuRadioItem(menu, 40020, 40022, 40021, 0)", "log: done\n"}));
}

TEST_F(CommandsTest, TheMarksFollowEachCommand)
{
    CreateWithTray();
    for (const UINT command : {40010U, 40011U, 40012U, 40013U, 40014U}) {
        Command(command);
        EXPECT_EQ(Marked(), (std::vector<UINT>{command, 40022}));
    }
    for (const UINT command : {40020U, 40021U, 40022U}) {
        Command(command);
        EXPECT_EQ(Marked(), (std::vector<UINT>{40014, command}));
    }
}

TEST_F(CommandsTest, ALevelSetByTheHostIsMarkedWithTheNextCommand)
{
    CreateWithTray();
    library.SetDebugLevel(3);
    EXPECT_EQ(Marked(), (std::vector<UINT>{40011, 40022}));
    Command(7); // no command of the menu
    EXPECT_EQ(Marked(), (std::vector<UINT>{40013, 40022}));
    library.SetDebugLevel(7);
    Command(7);
    EXPECT_EQ(Marked(), (std::vector<UINT>{40010, 40022}));
}

TEST_F(CommandsTest, ALevelCommandChangesTheNextFrame)
{
    CreateWithTray();
    ASSERT_FALSE(IsInvalid());
    Command(40010);
    EXPECT_TRUE(IsInvalid());
}

TEST_F(CommandsTest, LevelZeroOfTheMenuLeavesTheUserInterfaceToTheNextWindow)
{
    CreateWithTray();
    Command(40010);
    library.Create();
    EXPECT_EQ(calls.Count("LoadMenuW"), 1U);
}

TEST_F(CommandsTest, ALevelOfTheMenuGivesTheNextWindowNoUserInterface)
{
    window = CreateWithGDI();
    Command(40014);
    calls.Take();
    library.Create();
    EXPECT_EQ(calls.Count("LoadMenuW"), 0U);
    EXPECT_EQ(calls.Count("Shell_NotifyIconW"), 0U);
    EXPECT_EQ(calls.Count("RegisterHotKey"), 0U);
}

TEST_F(CommandsTest, TheSettingsCommandOpensTheOverlaysDialog)
{
    CreateWithTray(Normal);
    EXPECT_EQ(Command(SettingsCommand), 0);
    EXPECT_EQ(debugger.Texts(), LinesOfCommand);
    EXPECT_TRUE(IsInvalid());
    const HWND dialog = FindWindowW(L"#32770", L"Orvane Settings");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(GetWindow(dialog, GW_OWNER), window);
}

TEST_F(CommandsTest, SavingAsksForAFile)
{
    CreateWithTray(Normal);
    AnswerSaveDialog(FALSE, [this] {
        const std::string_view filter("Text files {*.csv}\0*.csv\0", 26);
        EXPECT_EQ(std::string_view(request.lpstrFilter, filter.size()), filter);
    });
    EXPECT_EQ(Command(SaveCommand), 0);
    EXPECT_EQ(request.lStructSize, sizeof(request));
    EXPECT_EQ(request.hwndOwner, window);
    EXPECT_EQ(offeredName, "FPS.csv");
    EXPECT_EQ(request.nMaxFile, 260U);
    EXPECT_EQ(request.Flags, DWORD{OFN_OVERWRITEPROMPT | OFN_FILEMUSTEXIST});
    EXPECT_EQ(debugger.Texts(), LinesOfCommand);
}

TEST_F(CommandsTest, SavingWritesNoFileWhateverIsChosen)
{
    CreateWithTray();
    for (const BOOL answer : {FALSE, TRUE}) {
        AnswerSaveDialog(answer);
        offeredName.clear();
        Command(SaveCommand);
        EXPECT_EQ(offeredName, "FPS.csv");
        EXPECT_EQ(GetFileAttributesA("lumora-rates-test.csv"), INVALID_FILE_ATTRIBUTES);
    }
}

TEST_F(CommandsTest, TheDialogIsOpenBetweenTheFirstLineAndTheRepaint)
{
    CreateWithTray(Normal);
    AnswerSaveDialog(FALSE, [this] { EXPECT_EQ(debugger.Texts(), Lines{"WM_COMMAND ... "}); });
    Command(SaveCommand);
    EXPECT_EQ(debugger.Texts(), LinesOfCommand);
}

// A dialog lets the host's code run, which may end the instance.
TEST_F(CommandsTest, AnInstanceThatEndsWhileTheDialogIsOpenIsTouchedNoMore)
{
    const FreedMemory freed(library.Module());
    CreateWithTray(Normal);
    AnswerSaveDialog(FALSE, [this] {
        library.Destroy();
        calls.Take();
        debugger.Clear();
    });
    RecordInvalidations();
    EXPECT_EQ(Command(SaveCommand), 0);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(debugger.Texts(), Lines{"done\n"});
    EXPECT_EQ(freed.Written(), 0U);
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
}

TEST_F(CommandsTest, ARebuildWhileTheDialogIsOpenIsHarmless)
{
    CreateWithTray();
    Command(ChooseDirect2D);
    AnswerSaveDialog(FALSE, [this] { InputStroke(); });
    Command(SaveCommand);
    HWND rebuilt = library.GetWindowHandle();
    EXPECT_TRUE(IsWindow(rebuilt));
    window = rebuilt;
    Command(40013);
    EXPECT_EQ(Marked(), (std::vector<UINT>{40013, 40021}));
}

TEST_F(CommandsTest, AWindowLeftOrClosedWhileTheDialogIsOpenIsNotRepainted)
{
    CreateWithTray();
    Command(ChooseDirect2D);
    RecordInvalidations();
    AnswerSaveDialog(FALSE, [this] {
        InputStroke(); // leaves it
        calls.Take();
    });
    Command(SaveCommand);
    EXPECT_EQ(Invalidations(), 0U);
    window = library.GetWindowHandle();
    AnswerSaveDialog(FALSE, [this] { SendMessageW(window, WM_CLOSE, 0, 0); });
    Command(SaveCommand);
    EXPECT_EQ(Invalidations(), 0U);
}

} // namespace zq::LM::test
