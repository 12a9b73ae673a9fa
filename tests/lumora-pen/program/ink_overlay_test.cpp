// The overlay's care: it is made anew when it has to be, in the same style.
#include "program/ink_overlay.h"
#include "support/library/window_test.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

lumora::Params Red()
{
    lumora::Params style;
    style.inkColor = {200, 0, 0};
    style.brushSize = 12;
    style.inkDecayTime = std::chrono::milliseconds(3000);
    return style;
}

TEST(InkOverlay, KeepsItsStyleWithAnotherBackEnd)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    ink.Use(BackEndName::Direct2D);
    EXPECT_EQ(ink.BackEnd(), BackEndName::Direct2D);
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
    EXPECT_EQ(ink.Style().brushSize, 12U);
}

TEST(InkOverlay, LeavesNoWindowBehindWhenTheBackEndChanges)
{
    InkOverlay ink(BackEndName::GDI, 0);
    HWND before = ink.Window();
    ink.Use(BackEndName::Direct2D);
    EXPECT_FALSE(IsWindow(before));
}

TEST(InkOverlay, IsMadeAnewWhenItsWindowHasGone)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    EXPECT_FALSE(ink.LookAfter(1000));
    DestroyWindow(ink.Window());
    EXPECT_TRUE(ink.LookAfter(2000));
    EXPECT_TRUE(IsWindow(ink.Window()));
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
}

TEST(InkOverlay, IsMadeAnewWhenTheClockBeginsAgain)
{
    InkOverlay ink(BackEndName::GDI, 0);
    EXPECT_FALSE(ink.LookAfter(0xFFFFFFF0));
    HWND before = ink.Window();
    EXPECT_TRUE(ink.LookAfter(20));
    EXPECT_FALSE(IsWindow(before));
    EXPECT_FALSE(ink.LookAfter(1000)) << "once";
}

TEST(InkOverlay, WipingKeepsTheStyle)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    ink.Input({{100, 100, FullPressure, 1}, {120, 100, FullPressure, 2}, {120, 100, 0, 3}});
    ink.Wipe();
    EXPECT_EQ(ink.Style().inkDecayTime, Red().inkDecayTime);
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
}

TEST(InkOverlay, OwnWindowIsNoOtherProgramsOverlay)
{
    const InkOverlay ink(BackEndName::GDI, 0);
    EXPECT_FALSE(IsAnotherOverlayShown());
}

} // namespace

} // namespace lumora_pen
