// Numbers typed into the settings.
#include "settings/entered_numbers.h"

#include <gtest/gtest.h>

namespace zq::LM {
namespace {

TEST(EnteredNumber, IsTheDecimalNumberThatTheTextBeginsWithOrZero)
{
    EXPECT_EQ(EnteredNumber("250"), 250U);
    EXPECT_EQ(EnteredNumber("  +42 px"), 42U);
    EXPECT_EQ(EnteredNumber("007"), 7U);
    EXPECT_EQ(EnteredNumber("12.9"), 12U);
    EXPECT_EQ(EnteredNumber("0x10"), 0U);
    EXPECT_EQ(EnteredNumber(""), 0U);
    EXPECT_EQ(EnteredNumber("wide"), 0U);
    EXPECT_EQ(EnteredNumber("-"), 0U);
}

TEST(EnteredNumber, ANegativeOneLiesAboveEveryLimit)
{
    EXPECT_EQ(EnteredNumber("-1"), 0xFFFFFFFFU);
    EXPECT_EQ(LimitedBrushSize(EnteredNumber("-5"), 1), 200U);
    EXPECT_EQ(LimitedInkDecayTime(EnteredNumber("-5")), 1000U);
    EXPECT_EQ(LimitedFramesPerSecond(EnteredNumber("-5")), 120U);
}

TEST(EnteredNumber, WhatDoesNotFitIsTheNearestThatDoes)
{
    EXPECT_EQ(EnteredNumber("2147483647"), 0x7FFFFFFFU);
    EXPECT_EQ(EnteredNumber("2147483648"), 0x7FFFFFFFU);
    EXPECT_EQ(EnteredNumber("99999999999999999999999999"), 0x7FFFFFFFU);
    EXPECT_EQ(EnteredNumber("-99999999999999999999999999"), 0x80000000U);
}

TEST(LimitedBrushSize, LiesBetweenTheLowerBoundAnd200OrAtAHigherBound)
{
    EXPECT_EQ(LimitedBrushSize(0, 1), 1U);
    EXPECT_EQ(LimitedBrushSize(0, 0), 0U);
    EXPECT_EQ(LimitedBrushSize(7, 7), 7U);
    EXPECT_EQ(LimitedBrushSize(200, 1), 200U);
    EXPECT_EQ(LimitedBrushSize(201, 1), 200U);
    EXPECT_EQ(LimitedBrushSize(250, 300), 300U);
    EXPECT_EQ(LimitedBrushSize(300, 300), 200U); // not below the bound, so the upper limit holds
    EXPECT_EQ(LimitedBrushSize(301, 300), 200U);
}

TEST(OtherLimits, Are1000MillisecondsAnd120FramesPerSecond)
{
    EXPECT_EQ(LimitedInkDecayTime(0), 0U);
    EXPECT_EQ(LimitedInkDecayTime(1000), 1000U);
    EXPECT_EQ(LimitedInkDecayTime(1001), 1000U);
    EXPECT_EQ(LimitedFramesPerSecond(120), 120U);
    EXPECT_EQ(LimitedFramesPerSecond(121), 120U);
}

} // namespace
} // namespace zq::LM
