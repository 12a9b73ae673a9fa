// What the self-test's report says, and what it marks.
#include "selftest_report.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using testing::HasSubstr;
using testing::Not;

BackEndFindings LikeWine(const char* name)
{
    BackEndFindings findings;
    findings.name = name;
    findings.strokes = 8;
    findings.strokesSeen = 8;
    findings.colour = "FF0000";
    findings.isGoneAfterItsLife = true;
    findings.letsClicksThrough = true;
    findings.medianPaintMs = 1.26;
    findings.medianScreenMs = 3;
    return findings;
}

TEST(SelftestReport, NamesTheSystem)
{
    EXPECT_THAT(SelftestReport({{"Windows", "10.0.19045"}}, {}),
                HasSubstr("\n  Windows               10.0.19045\n"));
}

TEST(SelftestReport, WhatIsAsUnderWineIsNotMarked)
{
    const std::string report = SelftestReport({}, {LikeWine("gdi"), LikeWine("d2d")});
    EXPECT_THAT(report, Not(HasSubstr("DIFFERS")));
    EXPECT_THAT(report, testing::EndsWith("\n0 findings differ from Wine\n"));
}

TEST(SelftestReport, TimesAreToldAndNotCompared)
{
    const std::string report = SelftestReport({}, {LikeWine("gdi")});
    EXPECT_THAT(report, HasSubstr("to the paint's end    1.3 ms\n"));
    EXPECT_THAT(report, HasSubstr("to the screen         3.0 ms\n"));
}

TEST(SelftestReport, ACompositionThatShowsInkDiffersInInkAndColour)
{
    const std::string report = SelftestReport({}, {LikeWine("composition")});
    EXPECT_THAT(report, HasSubstr("ink                   all   (DIFFERS: none under Wine)\n"));
    EXPECT_THAT(report, HasSubstr("colour                FF0000   (DIFFERS: - under Wine)\n"));
    EXPECT_THAT(report, testing::EndsWith("\n2 findings differ from Wine\n"));
}

TEST(SelftestReport, SomeStrokesOfManyAreCounted)
{
    BackEndFindings findings = LikeWine("gdi");
    findings.strokesSeen = 5;
    EXPECT_THAT(SelftestReport({}, {findings}), HasSubstr("5 of 8 strokes   (DIFFERS: all under Wine)"));
}

TEST(SelftestReport, InkThatStaysAndClicksThatStopAreMarked)
{
    BackEndFindings findings = LikeWine("d2d");
    findings.isGoneAfterItsLife = false;
    findings.letsClicksThrough = false;
    const std::string report = SelftestReport({}, {findings});
    EXPECT_THAT(report, HasSubstr("still there   (DIFFERS: gone under Wine)"));
    EXPECT_THAT(report, HasSubstr("stop at the overlay   (DIFFERS: reach what is below under Wine)"));
}

TEST(SelftestReport, AnOverlayThatIsNotMadeHasItsErrorAndNothingElse)
{
    BackEndFindings findings;
    findings.name = "gdi";
    findings.error = "no window";
    const std::string report = SelftestReport({}, {findings});
    EXPECT_THAT(report, HasSubstr("overlay               no window   (DIFFERS: made under Wine)"));
    EXPECT_THAT(report, Not(HasSubstr("after its life")));
    EXPECT_THAT(report, testing::EndsWith("\n1 finding differs from Wine\n"));
}

TEST(SelftestReport, BackEndsStandInOneOrder)
{
    const std::string report =
        SelftestReport({}, {LikeWine("gdi"), LikeWine("d2d"), LikeWine("composition")});
    EXPECT_LT(report.find("\ncomposition\n"), report.find("\nd2d\n"));
    EXPECT_LT(report.find("\nd2d\n"), report.find("\ngdi\n"));
}

} // namespace
} // namespace lumora::replay
