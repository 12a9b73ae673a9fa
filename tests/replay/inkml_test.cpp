// The InkML reader: which traces it reads, by which format, and what becomes of the channels.
#include "inkml_text.h"

#include "ink_samples.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using testing::ElementsAre;

std::vector<double> Values(const Recording& recording, double RecordedSample::*field)
{
    std::vector<double> values;
    for (const RecordedSample& sample : recording.samples) {
        values.push_back(sample.*field);
    }
    return values;
}

std::vector<double> Xs(const std::string& text) { return Values(RecordingOf(text), &RecordedSample::x); }

std::vector<double> Ys(const std::string& text) { return Values(RecordingOf(text), &RecordedSample::y); }

std::vector<double> Times(const std::string& text, std::optional<TimeUnit> told = std::nullopt)
{
    return Values(RecordingOf(text, told), &RecordedSample::time);
}

std::vector<double> Pressures(const std::string& text)
{
    return Values(RecordingOf(text), &RecordedSample::pressure);
}

std::vector<bool> Touches(const std::string& text)
{
    std::vector<bool> touches;
    for (const RecordedSample& sample : RecordingOf(text).samples) {
        touches.push_back(sample.touches);
    }
    return touches;
}

TEST(Inkml, TraceWithoutFormatHasXAndY)
{
    const Recording recording = RecordingOf(Ink(Trace("1 2, 3 4")));
    EXPECT_THAT(Values(recording, &RecordedSample::x), ElementsAre(1, 3));
    EXPECT_THAT(Values(recording, &RecordedSample::y), ElementsAre(2, 4));
    EXPECT_FALSE(recording.yUpwards);
}

TEST(Inkml, NamespaceAndPrefixMayBeAnything)
{
    EXPECT_THAT(Xs("<i:ink xmlns:i='http://www.w3.org/2003/InkML'><i:trace>1 2</i:trace></i:ink>"),
                ElementsAre(1));
}

TEST(Inkml, ElementsOfOtherNamespacesAreSkipped)
{
    EXPECT_THAT(Xs("<ink xmlns:o='urn:other'><o:trace>9 9</o:trace><o:x><trace>8 8</trace></o:x>"
                   "<trace>1 2<o:note>5 5</o:note>, 3 4</trace></ink>"),
                ElementsAre(1, 3));
}

TEST(Inkml, EntitiesCommentsAndCdataAreParts)
{
    EXPECT_THAT(Xs(Ink(Trace("10 0, &apos;1<!-- 7 -->&#39;2, <![CDATA[\"1\"1]]>"))), ElementsAre(10, 11, 13));
}

TEST(Inkml, PrefixesHoldNoLongerThanTheirTrace)
{
    EXPECT_THAT(Xs(Ink(Trace("10 20, '1'1") + "<trace type='penUp'>1 2</trace>")), ElementsAre(10, 11, 1));
}

TEST(Inkml, AnnotationsAndBrushesSayNothingOfTheSamples)
{
    EXPECT_THAT(
        Xs(Ink("<annotation type='truth'>a b</annotation><annotationXML><trace>9 9</trace></annotationXML>"
               "<brush/><traceView traceDataRef='#a'/><trace id='a'>1 2</trace>")),
        ElementsAre(1));
}

TEST(Inkml, GroupsAreReadInTheOrderOfTheFile)
{
    EXPECT_THAT(Xs(Ink("<trace>1 0</trace><traceGroup><trace type='penUp'>2 0</trace><traceGroup>"
                       "<trace>3 0</trace></traceGroup></traceGroup><trace type='penUp'>4 0</trace>")),
                ElementsAre(1, 2, 3, 4));
}

TEST(Inkml, TracesInDefinitionsAreNotPlayed)
{
    EXPECT_THAT(Xs(Ink("<definitions><trace>9 9</trace></definitions>" + Trace("1 2"))), ElementsAre(1));
}

TEST(InkmlFormat, ChannelsStandInTheOrderOfTheFormat)
{
    const std::string text = Ink(Format({"Y", "X"}) + Trace("1 2"));
    EXPECT_THAT(Xs(text), ElementsAre(2));
    EXPECT_THAT(Ys(text), ElementsAre(1));
}

TEST(InkmlFormat, ColumnsOfOtherChannelsAreSteppedOver)
{
    EXPECT_THAT(Ys(Ink(Format({"X", "OTx", "Y", "W"}) + Trace("1 90 2 7, 3 90 4 7"))), ElementsAre(2, 4));
}

TEST(InkmlFormat, IntermittentChannelsComeLast)
{
    EXPECT_THAT(Pressures(Ink("<traceFormat><intermittentChannels><channel name='F'/></intermittentChannels>"
                              "<channel name='X'/><channel name='Y'/></traceFormat>" +
                              Trace("1 2 300, 3 4, 5 6 400"))),
                ElementsAre(300, 300, 400));
}

TEST(InkmlFormat, FormatHoldsForTheTracesThatFollow)
{
    EXPECT_THAT(Xs(Ink(Trace("1 2") + Format({"Y", "X"}) + Trace("3 4"))), ElementsAre(1, 1, 4));
}

TEST(InkmlFormat, ContextIsFoundByItsId)
{
    EXPECT_THAT(Xs(Ink("<definitions><context xml:id='a'>" + Format({"Y", "X"}) +
                       "</context><context id='b'>" + Format({"W", "X", "Y"}) +
                       "</context></definitions><trace contextRef='#a'>1 2</trace>"
                       "<trace contextRef='#b' type='penUp'>9 3 0</trace>")),
                ElementsAre(2, 3));
}

TEST(InkmlFormat, ContextRefersToInkSourceAndFormat)
{
    EXPECT_THAT(
        Xs(Ink("<definitions><inkSource xml:id='pen'>" + Format({"Y", "X"}) +
               "</inkSource><traceFormat xml:id='wide'><channel name='W'/><channel name='X'/>"
               "<channel name='Y'/></traceFormat><context xml:id='a' inkSourceRef='#pen'/>"
               "<context xml:id='b' inkSourceRef='#pen' traceFormatRef='#wide'/></definitions>"
               "<trace contextRef='#a'>1 2</trace><trace contextRef='#b' type='penUp'>9 3 0</trace>")),
        ElementsAre(2, 3));
}

TEST(InkmlFormat, ContextInheritsFromAnother)
{
    EXPECT_THAT(Xs(Ink("<definitions><context xml:id='a'>" + Format({"Y", "X"}) +
                       "</context><context xml:id='b' contextRef='#a' brushRef='#c'/></definitions>"
                       "<trace contextRef='#b'>1 2</trace>")),
                ElementsAre(2));
}

TEST(InkmlFormat, ContextOfAGroupHoldsInIt)
{
    EXPECT_THAT(
        Xs(Ink("<definitions><context xml:id='a'>" + Format({"Y", "X"}) +
               "</context><context xml:id='b'/></definitions><traceGroup contextRef='#a'>" + Trace("1 2") +
               "</traceGroup><trace type='penUp' contextRef='#DefaultContext'>3 4</trace>")),
        ElementsAre(2, 3));
}

TEST(InkmlFormat, ContextOutsideOfTheDefinitionsHoldsForTheTracesThatFollow)
{
    EXPECT_THAT(Xs(Ink("<context>" + Format({"Y", "X"}) + "</context>" + Trace("1 2"))), ElementsAre(2));
}

TEST(InkmlFormat, OnlyFormatIsUsedEvenIfNothingRefersToIt)
{
    EXPECT_THAT(Xs(Ink("<definitions>" + Format({"Y", "X"}) + "</definitions>" + Trace("1 2"))),
                ElementsAre(2));
}

TEST(InkmlFormat, OneOfSeveralFormatsIsNotGuessed)
{
    EXPECT_THAT(
        Xs(Ink("<definitions>" + Format({"Y", "X"}) + Format({"Y", "X"}) + "</definitions>" + Trace("1 2"))),
        ElementsAre(1));
}

TEST(InkmlPosition, ReversedYPointsUpwards)
{
    const Recording recording = RecordingOf(Ink(Format({"X", "Y orientation='-ve'"}) + Trace("1 2")));
    EXPECT_TRUE(recording.yUpwards);
    EXPECT_EQ(recording.samples[0].y, 2);
}

TEST(InkmlPosition, LaterTraceIsTurnedAsTheFirst)
{
    EXPECT_THAT(
        Ys(Ink(Trace("1 2") + Format({"X", "Y orientation='-ve'"}) + "<trace type='penUp'>1 3</trace>")),
        ElementsAre(2, -3));
}

TEST(InkmlPosition, ReversedXIsMirrored)
{
    EXPECT_THAT(Xs(Ink(Format({"X orientation='-ve'", "Y"}) + Trace("1 2"))), ElementsAre(-1));
}

TEST(InkmlPosition, SampleWhosePlaceIsNotKnownIsLeftOut)
{
    EXPECT_THAT(Xs(Ink(Trace("1 2, ? 3, 4 ?, 5 6"))), ElementsAre(1, 5));
}

TEST(InkmlPressure, IsFullWhereThereIsNone) { EXPECT_THAT(Pressures(Ink(Trace("1 2"))), ElementsAre(32767)); }

TEST(InkmlPressure, IsNoneWhileHoveringWhereThereIsNone)
{
    EXPECT_THAT(Pressures(Ink("<trace type='penUp'>1 2</trace>")), ElementsAre(0));
}

TEST(InkmlPressure, IsTakenAsItIsWithoutALimit)
{
    EXPECT_THAT(Pressures(Ink(Format({"X", "Y", "F"}) + Trace("1 2 700"))), ElementsAre(700));
}

TEST(InkmlPressure, IsScaledFromItsLimits)
{
    EXPECT_THAT(Pressures(Ink(Format({"X", "Y", "F max='1023'"}) + Trace("1 2 1023, 1 2 0"))),
                ElementsAre(32767, 0));
    EXPECT_THAT(Pressures(Ink(Format({"X", "Y", "F min='-1' max='1'"}) + Trace("1 2 0"))),
                ElementsAre(16383.5));
}

TEST(InkmlPressure, SharesAreScaled)
{
    EXPECT_THAT(Pressures(Ink(Format({"X", "Y", "F"}) + Trace("1 2 0.5, 1 2 1"))),
                ElementsAre(16383.5, 32767));
}

TEST(InkmlPressure, FaintOnesOfAKnownLimitAreNoShares)
{
    EXPECT_THAT(Pressures(Ink(Format({"X", "Y", "F max='32767'"}) + Trace("1 2 0.5"))), ElementsAre(0.5));
}

TEST(InkmlPressure, UnknownOneIsFull)
{
    EXPECT_THAT(Pressures(Ink(Format({"X", "Y", "F"}) + Trace("1 2 ?"))), ElementsAre(32767));
}

TEST(InkmlTouch, PenUpHovers)
{
    EXPECT_THAT(Touches(Ink("<trace type='penUp'>1 2</trace><trace type='penDown'>1 2</trace>")),
                ElementsAre(false, true));
}

TEST(InkmlTouch, IndeterminateTouchesWherePressureIs)
{
    EXPECT_THAT(Touches(Ink(Format({"X", "Y", "F"}) + "<trace type='indeterminate'>1 2 0, 3 4 9</trace>")),
                ElementsAre(false, true));
}

TEST(InkmlTouch, IndeterminateWithoutPressureTouches)
{
    EXPECT_THAT(Touches(Ink("<trace type='indeterminate'>1 2</trace>")), ElementsAre(true));
}

TEST(InkmlTouch, TipSwitchDecides)
{
    EXPECT_THAT(Touches(Ink(Format({"X", "Y", "S type='boolean'"}) + Trace("1 2 F, 3 4 T"))),
                ElementsAre(false, true));
}

TEST(InkmlStrokes, HoveringSampleSeparatesTwoTraces)
{
    const Recording recording = RecordingOf(Ink(Trace("1 2, 3 4") + Trace("5 6")));
    ASSERT_EQ(recording.samples.size(), 4U);
    EXPECT_FALSE(recording.samples[2].touches);
    EXPECT_EQ(recording.samples[2].x, 3);
    EXPECT_EQ(recording.samples[2].pressure, 0);
    EXPECT_EQ(recording.samples[2].time, recording.samples[1].time);
}

TEST(InkmlStrokes, LongPauseSeparatesByItself)
{
    const std::string text = Ink(Format({"X", "Y", "T"}) + Trace("1 2 0") + Trace("3 4 1001"));
    EXPECT_THAT(Touches(text), ElementsAre(true, true));
}

TEST(InkmlStrokes, ContinuationGoesOnWithTheStroke)
{
    const std::string text = Ink("<trace id='a' continuation='begin'>1 2</trace>"
                                 "<trace id='b' continuation='middle' priorRef='#a'>3 4</trace>"
                                 "<trace continuation='end'>5 6</trace>");
    EXPECT_THAT(Touches(text), ElementsAre(true, true, true));
    EXPECT_THAT(Times(text), ElementsAre(0, DefaultInkStepMs, 2 * DefaultInkStepMs));
}

TEST(InkmlStrokes, ContinuationOfAnEarlierTraceIsAStrokeOfItsOwn)
{
    EXPECT_THAT(Touches(Ink("<trace id='a' continuation='begin'>1 2</trace><trace id='b'>3 4</trace>"
                            "<trace continuation='end' priorRef='#a'>5 6</trace>")),
                ElementsAre(true, false, true, false, true));
}

TEST(InkmlTime, IsInMillisecondsUnlessTheFormatSaysElse)
{
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T"}) + Trace("1 2 10, 1 2 17.5"))), ElementsAre(10, 17.5));
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T units='ms'"}) + Trace("1 2 10"))), ElementsAre(10));
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T units='s'"}) + Trace("1 2 0.5, 1 2 1"))),
                ElementsAre(500, 1000));
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T units='us'"}) + Trace("1 2 500"))), ElementsAre(0.5));
}

TEST(InkmlTime, ToldUnitStandsAboveTheFormat)
{
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T units='ms'"}) + Trace("1 2 2")), TimeUnit::Seconds),
                ElementsAre(2000));
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T units='ticks'"}) + Trace("1 2 2")), TimeUnit::Seconds),
                ElementsAre(2000));
}

TEST(InkmlTime, WithoutAChannelStepsAreEvenAndTracesApart)
{
    EXPECT_THAT(Times(Ink(Trace("1 2, 3 4") + "<trace type='penUp'>5 6</trace>")),
                ElementsAre(0, DefaultInkStepMs, DefaultInkStepMs + InkPauseMs));
}

TEST(InkmlTime, TraceOfOneSampleIsFollowedByAPauseToo)
{
    EXPECT_THAT(Times(Ink(Trace("1 2") + "<trace type='penUp'>5 6</trace>")), ElementsAre(0, InkPauseMs));
}

TEST(InkmlTime, WithoutAChannelTheSampleRateGivesTheStep)
{
    EXPECT_THAT(
        Times(Ink("<definitions><inkSource xml:id='p'><sampleRate value='200'/>" + Format({"X", "Y"}) +
                  "</inkSource><context xml:id='a' inkSourceRef='#p'/></definitions>"
                  "<trace contextRef='#a'>1 2, 3 4, 5 6</trace>")),
        ElementsAre(0, 5, 10));
}

TEST(InkmlTime, TimeOffsetIsWhereTheTraceBegins)
{
    EXPECT_THAT(Times(Ink("<trace timeOffset='50'>1 2, 3 4</trace>")),
                ElementsAre(50, 50 + DefaultInkStepMs));
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T"}) + "<trace timeOffset='50'>1 2 3</trace>")),
                ElementsAre(53));
}

TEST(InkmlTime, TimeOffsetDoesNotMoveTimesOfACommonOrigin)
{
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T respectTo='#t'"}) + "<trace timeOffset='50'>1 2 60</trace>")),
                ElementsAre(60));
}

TEST(InkmlTime, TraceThatBeginsBeforeTheLastEndsFollowsIt)
{
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T"}) + Trace("1 2 0, 3 4 30") +
                          "<trace type='penUp'>5 6 0, 7 8 20</trace>")),
                ElementsAre(0, 30, 30 + InkPauseMs, 50 + InkPauseMs));
}

TEST(InkmlTime, NegativeTimesAreMovedToZero)
{
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T"}) + Trace("1 2 -20, 3 4 -5, 5 6 10"))),
                ElementsAre(0, 15, 30));
}

TEST(InkmlTime, UnknownTimeIsAStepAfterTheLast)
{
    EXPECT_THAT(Times(Ink(Format({"X", "Y", "T"}) + Trace("1 2 100, 3 4 ?, 5 6 120"))),
                ElementsAre(100, 108, 120));
}

TEST(InkmlAngles, AreKeptInTenthsOfADegree)
{
    const Recording degrees =
        RecordingOf(Ink(Format({"X", "Y", "OA", "OE units='deg'"}) + Trace("1 2 119.3 72")));
    EXPECT_EQ(degrees.samples[0].azimuth, 1193);
    EXPECT_EQ(degrees.samples[0].altitude, 720);
    const Recording radians =
        RecordingOf(Ink(Format({"X", "Y", "OA units='rad'"}) + Trace("1 2 3.14159265358979")));
    EXPECT_EQ(radians.samples[0].azimuth, 1800);
}

} // namespace
} // namespace lumora::replay
