// The values of InkML traces: how they are written, and what prefixes and wildcards make of them.
#include "ink_points.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using testing::ElementsAre;

InkFormat FormatWith(std::size_t regular, std::size_t intermittent = 0, bool boolean = false)
{
    InkFormat format;
    format.channels.resize(regular + intermittent);
    for (std::size_t i = 0; i < format.channels.size(); ++i) {
        format.channels[i].name = std::string(1, static_cast<char>('A' + i));
        format.channels[i].intermittent = i >= regular;
        format.channels[i].boolean = boolean && i >= regular;
    }
    return format;
}

std::string Shown(std::optional<double> value)
{
    std::ostringstream text;
    if (value) {
        text << *value;
    } else {
        text << "?";
    }
    return text.str();
}

// Each point as its values with blanks between.
std::vector<std::string> Points(const std::string& trace, const InkFormat& format)
{
    InkText text;
    text.Append(trace, 1);
    std::vector<std::string> points;
    ReadInkPoints(text, format, [&points](const InkPoint& point) {
        std::string line;
        for (const std::optional<double>& value : point) {
            line += (line.empty() ? "" : " ") + Shown(value);
        }
        points.push_back(line);
        return std::nullopt;
    });
    return points;
}

std::vector<std::string> Points(const std::string& trace) { return Points(trace, FormatWith(2)); }

TEST(InkPoints, ValuesStandBetweenBlanksAndPointsBetweenCommas)
{
    EXPECT_THAT(Points("10 0, 9 14,\n\t8 28 ,7\r\n42"), ElementsAre("10 0", "9 14", "8 28", "7 42"));
}

TEST(InkPoints, CommaMayFollowTheLastPoint) { EXPECT_THAT(Points("1 2,"), ElementsAre("1 2")); }

TEST(InkPoints, EmptyTraceHasNoPoint) { EXPECT_THAT(Points(" \n"), ElementsAre()); }

TEST(InkPoints, DecimalsAndExponentsAreRead)
{
    EXPECT_THAT(Points("1.5 -.25, 2. 1e2, -1.5E-1 0"), ElementsAre("1.5 -0.25", "2 100", "-0.15 0"));
}

TEST(InkPoints, HexadecimalIsRead) { EXPECT_THAT(Points("#1F -#a, #0 #FF"), ElementsAre("31 -10", "0 255")); }

TEST(InkPoints, SignsAndPointsSeparateAsBlanksDo)
{
    EXPECT_THAT(Points("1-2, -3-4, 1.5.5"), ElementsAre("1 -2", "-3 -4", "1.5 0.5"));
}

TEST(InkPoints, ValueIsExplicitWithoutPrefix) { EXPECT_THAT(Points("1 2, 3 4"), ElementsAre("1 2", "3 4")); }

TEST(InkPoints, SingleQuoteIsADifference)
{
    EXPECT_THAT(Points("10 20, '1'-2"), ElementsAre("10 20", "11 18"));
}

TEST(InkPoints, DoubleQuoteIsADifferenceOfDifferences)
{
    EXPECT_THAT(Points("10 20, '1'-2, \"1\"1"), ElementsAre("10 20", "11 18", "13 17"));
}

TEST(InkPoints, PrefixHoldsUntilTheChannelHasAnother)
{
    EXPECT_THAT(Points("10 20, '1 20, 2 21, !5 22, 6 '1, 7 1"),
                ElementsAre("10 20", "11 20", "13 21", "5 22", "6 23", "7 24"));
}

TEST(InkPoints, PrefixMayStandApartFromItsNumber)
{
    EXPECT_THAT(Points("! 10 20, ' 1 ' - 2"), ElementsAre("10 20", "11 18"));
}

// Written out from a table of positions and speeds.
TEST(InkPoints, MixOfAllOrdersAndTruths)
{
    EXPECT_THAT(
        Points("1125 18432,'23'43,\"7\"-8,3-5,7 -3,6 2,6 8,3 6 T,2 4*T,3 6,3-3F F", FormatWith(2, 2, true)),
        ElementsAre("1125 18432 ? ?", "1148 18475 ? ?", "1178 18510 ? ?", "1211 18540 ? ?", "1251 18567 ? ?",
                    "1297 18596 ? ?", "1349 18633 ? ?", "1404 18676 1 ?", "1461 18723 1 1", "1521 18776 1 1",
                    "1584 18826 0 0"));
}

TEST(InkPoints, StarRepeatsAnExplicitValue) { EXPECT_THAT(Points("1 2, * 3"), ElementsAre("1 2", "1 3")); }

TEST(InkPoints, StarGoesOnByTheLastDifference)
{
    EXPECT_THAT(Points("1 2, '5'6, * *"), ElementsAre("1 2", "6 8", "11 14"));
}

TEST(InkPoints, StarGoesOnByTheLastSecondDifference)
{
    EXPECT_THAT(Points("0 0, '1'1, \"2\"0, * *"), ElementsAre("0 0", "1 1", "4 2", "9 3"));
}

TEST(InkPoints, QuestionMarkIsNotKnown) { EXPECT_THAT(Points("1 2, ? 3"), ElementsAre("1 2", "? 3")); }

TEST(InkPoints, DifferenceAfterAQuestionMarkBuildsOnTheLastKnownValue)
{
    EXPECT_THAT(Points("1 2, ? 3, '1 4"), ElementsAre("1 2", "? 3", "2 4"));
}

TEST(InkPoints, IntermittentChannelThatIsLeftOutKeepsItsValue)
{
    EXPECT_THAT(Points("1 2, 3, 4 5", FormatWith(1, 1)), ElementsAre("1 2", "3 2", "4 5"));
}

TEST(InkPoints, IntermittentChannelBeginsWithItsDefault)
{
    InkFormat format = FormatWith(1, 1);
    format.channels[1].initial = 7;
    EXPECT_THAT(Points("1, 2 8, 3", format), ElementsAre("1 7", "2 8", "3 8"));
}

TEST(InkText, KnowsTheLineOfEachCharacter)
{
    InkText text;
    text.Append("1\n2", 5);
    text.Append("3\n", 9);
    EXPECT_EQ(text.Text(), "1\n23\n");
    EXPECT_EQ(text.LineAt(0), 5U);
    EXPECT_EQ(text.LineAt(2), 6U);
    EXPECT_EQ(text.LineAt(3), 9U);
    EXPECT_EQ(text.LineAt(5), 10U);
}

} // namespace
} // namespace lumora::replay
