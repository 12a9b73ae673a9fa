// The looks of ink from the settings, and what a person changes in the library's dialog.
#include "ink/ink_style.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

constexpr int Dpi = 96;

lumora::Params Style(Mode mode, const Settings& settings, int dpi = Dpi)
{
    return StyleFor(mode, settings, dpi, {});
}

TEST(InkStyle, TrailLivesAsSet)
{
    Settings settings;
    settings.trailLifeMs = 1234;
    EXPECT_EQ(Style(Mode::Trail, settings).inkDecayTime.count(), 1234);
}

TEST(InkStyle, BoardKeepsInkItselfSoThatItsWetInkIsShort)
{
    EXPECT_TRUE(KeepsInk(Mode::Board, {}));
    EXPECT_EQ(Style(Mode::Board, {}).inkDecayTime.count(), WetInkMs);
}

TEST(InkStyle, BoardWithALifeLeavesInkToTheLibrary)
{
    Settings settings;
    settings.boardLifeMs = 9000;
    EXPECT_FALSE(KeepsInk(Mode::Board, settings));
    EXPECT_EQ(Style(Mode::Board, settings).inkDecayTime.count(), 9000);
    EXPECT_FALSE(KeepsInk(Mode::Trail, {}));
}

TEST(InkStyle, WidthFollowsTheScaleOfTheMonitor)
{
    Settings settings;
    settings.width = 6;
    EXPECT_EQ(Style(Mode::Trail, settings, 96).brushSize, 6U);
    EXPECT_EQ(Style(Mode::Trail, settings, 144).brushSize, 9U);
    EXPECT_EQ(Style(Mode::Trail, settings, 192).brushSize, 12U);
    settings.width = 1;
    EXPECT_EQ(Style(Mode::Trail, settings, 48).brushSize, 1U) << "never nothing";
}

TEST(InkStyle, LightPressureStillLeavesALine)
{
    Settings settings;
    settings.width = 20;
    EXPECT_EQ(Style(Mode::Trail, settings).minBrushSize, 5U);
    settings.width = 2;
    EXPECT_EQ(Style(Mode::Trail, settings).minBrushSize, 1U);
}

TEST(InkStyle, ColourThatStandsForSeeThroughIsTakenNextToIt)
{
    Settings settings;
    settings.palette[0] = {255, 0, 255};
    EXPECT_EQ(Style(Mode::Trail, settings).inkColor, (lumora::Colour{254, 0, 255}));
}

TEST(InkStyle, CrossHairIsShownWhenWanted)
{
    Settings settings;
    EXPECT_FALSE(Style(Mode::Trail, settings).cursor);
    settings.crossHair = true;
    EXPECT_TRUE(Style(Mode::Trail, settings).cursor);
}

TEST(InkStyle, WhatTheSettingsDoNotKnowStays)
{
    lumora::Params current;
    current.reserved0 = 5;
    current.colorPicker = true;
    const auto style = StyleFor(Mode::Trail, {}, Dpi, current);
    EXPECT_EQ(style.reserved0, 5U);
    EXPECT_TRUE(style.colorPicker) << "a person is choosing a colour in the dialog";
}

TEST(DialogChoices, NothingChangedChangesNothing)
{
    for (const Mode mode : {Mode::Trail, Mode::Board}) {
        for (const int dpi : {96, 120, 144, 192}) {
            EXPECT_EQ(WithChoicesOf(Style(mode, {}, dpi), mode, dpi, {}), Settings()) << dpi;
        }
    }
}

TEST(DialogChoices, AreTaken)
{
    lumora::Params style = Style(Mode::Trail, {});
    style.inkColor = {1, 2, 3};
    style.brushSize = 30;
    style.inkDecayTime = std::chrono::milliseconds(700);
    style.outline = true;
    style.usePressure = false;
    style.useOffset = true;
    style.zebraMode = true;
    style.cursor = true;
    const Settings settings = WithChoicesOf(style, Mode::Trail, Dpi, {});
    EXPECT_EQ(settings.palette[0], (lumora::Colour{1, 2, 3}));
    EXPECT_EQ(settings.width, 30);
    EXPECT_EQ(settings.trailLifeMs, 700);
    EXPECT_TRUE(settings.outline);
    EXPECT_FALSE(settings.pressure);
    EXPECT_TRUE(settings.offset);
    EXPECT_TRUE(settings.zebra);
    EXPECT_TRUE(settings.crossHair);
    EXPECT_EQ(settings.boardLifeMs, 0);
}

TEST(DialogChoices, WidthIsThatOfAScreenThatIsNotScaled)
{
    lumora::Params style = Style(Mode::Trail, {}, 192);
    style.brushSize = 40;
    EXPECT_EQ(WithChoicesOf(style, Mode::Trail, 192, {}).width, 20);
}

TEST(DialogChoices, LifeThatTheDialogLoweredByItselfIsNoChoice)
{
    Settings settings;
    settings.trailLifeMs = 4000;
    lumora::Params style = Style(Mode::Trail, settings);
    style.inkDecayTime = std::chrono::milliseconds(1000);
    EXPECT_EQ(WithChoicesOf(style, Mode::Trail, Dpi, settings).trailLifeMs, 4000);
    style.inkDecayTime = std::chrono::milliseconds(999);
    EXPECT_EQ(WithChoicesOf(style, Mode::Trail, Dpi, settings).trailLifeMs, 999);
}

TEST(DialogChoices, LifeOfWetInkIsNoChoice)
{
    lumora::Params style = Style(Mode::Board, {});
    style.inkDecayTime = std::chrono::milliseconds(300);
    EXPECT_EQ(WithChoicesOf(style, Mode::Board, Dpi, {}).boardLifeMs, 0);
}

TEST(InkStyle, BoardThatKeepsInkHasNoBorderAndNoStripes)
{
    Settings settings;
    settings.outline = true;
    settings.zebra = true;
    EXPECT_TRUE(Style(Mode::Trail, settings).outline);
    EXPECT_TRUE(Style(Mode::Trail, settings).zebraMode);
    EXPECT_FALSE(Style(Mode::Board, settings).outline);
    EXPECT_FALSE(Style(Mode::Board, settings).zebraMode);
    EXPECT_EQ(WithChoicesOf(Style(Mode::Board, settings), Mode::Board, Dpi, settings), settings)
        << "nor are they lost";
}

TEST(DialogChoices, StayWithinWhatTheProgramKnows)
{
    lumora::Params style = Style(Mode::Trail, {});
    style.brushSize = 0;
    style.inkDecayTime = std::chrono::milliseconds(0);
    const Settings settings = WithChoicesOf(style, Mode::Trail, Dpi, {});
    EXPECT_EQ(settings.width, LeastWidth);
    EXPECT_EQ(settings.trailLifeMs, LeastLifeMs);
    style.brushSize = 200;
    EXPECT_EQ(WithChoicesOf(style, Mode::Trail, Dpi, {}).width, MostWidth);
}

TEST(WithColour, TakesAPlaceOrAColourForTheChosenPlace)
{
    EXPECT_EQ(WithColour({}, "4").colour, 3U);
    const Settings settings = WithColour(WithColour({}, "2"), "0A0B0C");
    EXPECT_EQ(settings.colour, 1U);
    EXPECT_EQ(settings.palette[1], (lumora::Colour{10, 11, 12}));
    for (const char* text : {"0", "7", "", "red"}) {
        EXPECT_EQ(WithColour({}, text), Settings()) << text;
    }
}

TEST(Widths, GoUpAndDownTheSameWayAndEnd)
{
    int width = LeastWidth;
    for (int step = 0; step < 50; ++step) {
        const int wider = WiderThan(width);
        EXPECT_GE(wider, width);
        if (wider > width) {
            EXPECT_EQ(NarrowerThan(wider), width);
        }
        width = wider;
    }
    EXPECT_EQ(WiderThan(width), width);
    EXPECT_EQ(WiderThan(MostWidth), MostWidth) << "not thinner";
    EXPECT_EQ(NarrowerThan(LeastWidth), LeastWidth);
    EXPECT_EQ(WiderThan(7), 8);
    EXPECT_EQ(NarrowerThan(7), 6);
}

} // namespace

} // namespace lumora_pen
