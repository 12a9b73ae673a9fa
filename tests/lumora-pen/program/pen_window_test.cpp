// What the hidden window makes of its messages.
#include "program/pen_window.h"

#include <gmock/gmock.h>

#include <wtsapi32.h>

namespace lumora_pen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Events final : public PenWindowEvents {
public:
    void OnRawInput(HRAWINPUT) override { heard.push_back("input"); }
    void OnRawDevice(WPARAM, HANDLE) override { heard.push_back("device"); }
    void OnKey(KeyCommand command) override
    {
        heard.push_back("key " + std::to_string(static_cast<int>(command)));
    }
    void OnIcon(UINT message) override { heard.push_back("icon " + std::to_string(message)); }
    void OnShellRestarted() override { heard.push_back("shell"); }
    void OnDisplayChanged() override { heard.push_back("display"); }
    void OnInterrupted() override { heard.push_back("interrupted"); }
    void OnSessionEnds() override { heard.push_back("end"); }
    bool OnHandedArguments(std::string_view bytes) override
    {
        heard.push_back("arguments " + std::string(bytes));
        return bytes == "yes";
    }
    void OnClose() override { heard.push_back("close"); }
    void OnTimer() override {}

    std::vector<std::string> heard;
};

class PenWindowTest : public testing::Test {
protected:
    PenWindowTest() { window.Listen(true); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return SendMessageW(window.Handle(), message, wParam, lParam);
    }

    LRESULT SendBytes(ULONG_PTR mark, std::string bytes)
    {
        COPYDATASTRUCT data = {mark, static_cast<DWORD>(bytes.size()), bytes.data()};
        return Send(WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
    }

    Events events;
    PenWindow window{events};
};

TEST_F(PenWindowTest, IsFoundByItsClassAndTitle)
{
    EXPECT_EQ(FindWindowW(PenWindowClass, PenWindowTitle().c_str()), window.Handle());
    EXPECT_FALSE(IsWindowVisible(window.Handle()));
}

TEST_F(PenWindowTest, KeysComeByTheirCommandAndUnknownOnesNotAtAll)
{
    Send(WM_HOTKEY, static_cast<WPARAM>(KeyCommand::Colour6));
    Send(WM_HOTKEY, KeyCommandCount);
    Send(WM_HOTKEY, static_cast<WPARAM>(IDHOT_SNAPWINDOW));
    EXPECT_THAT(events.heard, ElementsAre("key 11"));
}

TEST_F(PenWindowTest, IconTellsTheMousesMessage)
{
    Send(IconMessage, 1, WM_RBUTTONUP);
    EXPECT_THAT(events.heard, ElementsAre("icon " + std::to_string(WM_RBUTTONUP)));
}

TEST_F(PenWindowTest, ShellThatStartsAgainIsHeard)
{
    Send(RegisterWindowMessageW(L"TaskbarCreated"));
    EXPECT_THAT(events.heard, ElementsAre("shell"));
}

TEST_F(PenWindowTest, SleepAndAnotherSessionInterrupt)
{
    Send(WM_POWERBROADCAST, PBT_APMSUSPEND);
    Send(WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE);
    Send(WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK);
    EXPECT_THAT(events.heard, ElementsAre("interrupted", "interrupted"));
}

TEST_F(PenWindowTest, EndOfTheSessionIsHeardOnlyWhenItComes)
{
    EXPECT_TRUE(Send(WM_QUERYENDSESSION));
    Send(WM_ENDSESSION, FALSE);
    EXPECT_THAT(events.heard, IsEmpty());
    Send(WM_ENDSESSION, TRUE);
    EXPECT_THAT(events.heard, ElementsAre("end"));
}

TEST_F(PenWindowTest, ArgumentsAreAnsweredAndOtherPeoplesBytesAreNot)
{
    EXPECT_EQ(SendBytes(ArgumentsMark, "yes"), ArgumentsTaken);
    EXPECT_EQ(SendBytes(ArgumentsMark, "no"), ArgumentsRefused);
    EXPECT_EQ(SendBytes(ArgumentsMark + 1, "yes"), 0);
    EXPECT_THAT(events.heard, ElementsAre("arguments yes", "arguments no"));
}

TEST_F(PenWindowTest, NothingIsToldWhileNobodyListens)
{
    window.Listen(false);
    EXPECT_EQ(SendBytes(ArgumentsMark, "yes"), 0);
    Send(WM_HOTKEY, 0);
    Send(WM_DISPLAYCHANGE);
    EXPECT_THAT(events.heard, IsEmpty());
}

TEST_F(PenWindowTest, ClosingIsLeftToTheProgram)
{
    Send(WM_CLOSE);
    EXPECT_THAT(events.heard, ElementsAre("close"));
    EXPECT_TRUE(IsWindow(window.Handle()));
}

TEST_F(PenWindowTest, DisplayAndDevicesAreHeard)
{
    Send(WM_DISPLAYCHANGE);
    Send(WM_INPUT_DEVICE_CHANGE, GIDC_REMOVAL);
    EXPECT_THAT(events.heard, ElementsAre("display", "device"));
}

} // namespace

} // namespace lumora_pen
