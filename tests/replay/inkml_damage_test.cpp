// What the InkML reader says of damaged files: the line and the reason.
#include "inkml_text.h"

#include <gmock/gmock.h>

#include <tuple>

namespace lumora::replay {
namespace {

using testing::HasSubstr;

using Damage = std::tuple<std::string, std::size_t, std::string>;

class InkmlDamage : public testing::TestWithParam<Damage> {};

TEST_P(InkmlDamage, IsToldWithItsLine)
{
    const auto& [text, line, reason] = GetParam();
    const RecordingResult result = ReadInkmlText(text);
    const auto* error = std::get_if<RecordingError>(&result);
    ASSERT_NE(error, nullptr) << "the text was accepted";
    EXPECT_EQ(error->line, line);
    EXPECT_THAT(error->reason, HasSubstr(reason));
    EXPECT_EQ(error->reason.find('\n'), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, InkmlDamage,
    testing::Values(Damage{"<svg/>", 1, "the outermost element is \"svg\" instead of \"ink\""},
                    Damage{"<ink>\n</ink>\n", 3, "the file has no trace with samples"},
                    Damage{"<ink/>", 1, "the file has no trace with samples"},
                    Damage{Ink("<trace/>\n"), 2, "the file has no trace with samples"},
                    Damage{"<ink>\n<trace>1 2</ink>", 2, "</ink> stands where <trace> of line 2 has to end"},
                    Damage{"<ink>\n<trace>1 2", 2, "the file ends inside of <trace> of line 2"},
                    Damage{Ink("\n<trace>&d;</trace>"), 2, "there is no entity \"&d;\""}));

INSTANTIATE_TEST_SUITE_P(
    References, InkmlDamage,
    testing::Values(Damage{Ink("\n<trace contextRef='#a'>1 2</trace>"), 2,
                           "contextRef refers to \"#a\", which no element above has for its id"},
                    Damage{Ink("<trace contextRef='b.inkml#a'>1 2</trace>"), 1, "refers to \"b.inkml#a\""},
                    Damage{Ink("<traceGroup contextRef='#a'/>"), 1, "contextRef refers to \"#a\""},
                    Damage{Ink("<context contextRef='#a'/>"), 1, "contextRef refers to \"#a\""},
                    Damage{Ink("<context inkSourceRef='#a'/>"), 1, "inkSourceRef refers to \"#a\""},
                    Damage{Ink("<context traceFormatRef='#a'/>"), 1, "traceFormatRef refers to \"#a\""}));

INSTANTIATE_TEST_SUITE_P(
    Formats, InkmlDamage,
    testing::Values(Damage{Ink(Format({"X"}) + "\n" + Trace("1")), 2, "the trace format has no channel Y"},
                    Damage{Ink(Format({"Y"}) + Trace("1")), 1, "the trace format has no channel X"},
                    Damage{Ink(Format({"X", "Y", "X"})), 1, "the trace format has two channels \"X\""},
                    Damage{Ink("<traceFormat><channel/></traceFormat>"), 1, "a channel has no name"},
                    Damage{Ink(Format({"X type='text'"})), 1,
                           "the attribute type of <channel> must be integer, decimal, double or boolean, not "
                           "\"text\""},
                    Damage{Ink(Format({"X orientation='up'"})), 1,
                           "the attribute orientation of <channel> must be +ve or -ve, not \"up\""},
                    Damage{Ink(Format({"X max='wide'"})), 1,
                           "the attribute max of <channel> must be a number, not \"wide\""},
                    Damage{Ink("<traceFormat><intermittentChannels><channel name='S' type='boolean' "
                               "default='up'/></intermittentChannels></traceFormat>"),
                           1, "the attribute default of <channel> must be T or F, not \"up\""},
                    Damage{Ink(Format({"F max='0'"})), 1,
                           "the attribute max of <channel> must be more than min, not \"0\""},
                    Damage{Ink(Format({"X", "Y", "T units='dev'"}) + Trace("1 2 3")), 1,
                           "the unit of channel T must be s, ms or us, not \"dev\"; --time-unit tells it"},
                    Damage{Ink("<inkSource><sampleRate value='x'/></inkSource>"), 1,
                           "the attribute value of <sampleRate> must be a number"}));

INSTANTIATE_TEST_SUITE_P(
    Traces, InkmlDamage,
    testing::Values(Damage{Ink("<trace type='up'>1 2</trace>"), 1,
                           "the type of a trace must be penDown, penUp or indeterminate, not \"up\""},
                    Damage{Ink("<trace continuation='x'>1 2</trace>"), 1,
                           "the continuation of a trace must be begin, middle or end, not \"x\""},
                    Damage{Ink("<trace timeOffset='soon'>1 2</trace>"), 1,
                           "the attribute timeOffset of <trace> must be a number"},
                    Damage{Ink("<trace timeOffset='1e300'>1 2</trace>"), 1,
                           "the timeOffset of a trace must be"}));

INSTANTIATE_TEST_SUITE_P(
    Points, InkmlDamage,
    testing::Values(
        Damage{Ink(Trace("\n1 2,\n3\n")), 3, "a point has 1 of the 2 values that it must have (X Y)"},
        Damage{Ink(Trace("1 2,,3 4")), 1, "a point has 0 of the 2 values that it must have (X Y)"},
        Damage{Ink(Trace("1 2,\n3 4\n5")), 3,
               "a point has more values than the trace format has channels (X Y)"},
        Damage{Ink(Trace("1 b")), 1, "a value is expected here, not \"b\""},
        Damage{Ink(Trace("1 --2")), 1, "a value is expected here, not \"--2\""},
        Damage{Ink(Trace("1 -")), 1, "a value is expected here, not \"-\""},
        Damage{Ink(Trace("1 !")), 1, "a value is expected here, not \"\""},
        Damage{Ink(Trace("1 inf")), 1, "a value is expected here, not \"inf\""},
        Damage{Ink(Trace("1 #")), 1, "a value is expected here, not \"#\""},
        Damage{Ink(Trace("1 #G")), 1, "a value is expected here, not \"#G\""},
        Damage{Ink(Trace("1 +2")), 1, "a value is expected here, not \"+2\""},
        Damage{Ink(Trace("1 T")), 1, "T stands where channel Y has a number"},
        Damage{Ink(Trace("* 2")), 1, "* repeats a value of channel X that there is not"},
        Damage{Ink(Trace("1 '2")), 1, "channel Y begins with a difference instead of a value"},
        Damage{Ink(Trace("1 2, \"1 2")), 1, "channel X has a second difference that follows no first one"},
        Damage{Ink(Trace("1 2, '1 2, !1 2, \"1 2")), 1, "a second difference that follows no first one"},
        Damage{Ink(Trace("2147483649 2")), 1,
               "channel X must be -2147483648 to 2147483648; it is 2147483649"},
        Damage{Ink(Trace("1 -3e9")), 1, "channel Y must be -2147483648 to 2147483648; it is -3000000000"},
        Damage{Ink(Trace("1e999 2")), 1, "channel X must be -2147483648 to 2147483648; it is inf"},
        Damage{Ink(Trace("1e999 2, '-1e999 2")), 1, "channel X must be"}));

INSTANTIATE_TEST_SUITE_P(
    Samples, InkmlDamage,
    testing::Values(Damage{Ink(Format({"X", "Y", "F"}) + Trace("1 2 -1")), 1,
                           "channel F must be 0 to 2147483647; it is -1"},
                    Damage{Ink(Format({"X", "Y", "F max='1023'"}) + Trace("1 2 1024")), 1,
                           "channel F must be 0 to 1023; it is 1024"},
                    Damage{Ink(Format({"X", "Y", "T"}) + Trace("1 2 1e17")), 1, "channel T must be"},
                    Damage{Ink(Format({"X", "Y", "T"}) + "\n" + Trace("1 2 30,\n1 2 29")), 3,
                           "time runs backwards: 29 after 30"},
                    Damage{Ink(Format({"X", "Y", "T"}) + Trace("1 2 0, 1 2 4294967296")), 1,
                           "more than 49 days after the first one"},
                    Damage{Ink(Format({"X", "Y", "T units='s'"}) + Trace("1 2 9e15")), 1,
                           "this sample's time is more than 9007199254740991 ms"},
                    Damage{Ink("<inkSource><sampleRate value='1e-9'/></inkSource>" + Trace("1 2, 3 4")), 1,
                           "more than 49 days after the first one"}));

TEST(InkmlLimits, FileThatIsTooLargeIsRefused)
{
    const std::string text = Ink(Trace("1 2"));
    std::istringstream exact(text);
    EXPECT_TRUE(std::holds_alternative<Recording>(ReadInkml(exact, std::nullopt, text.size())));
    std::istringstream tooLarge(text);
    const RecordingResult result = ReadInkml(tooLarge, std::nullopt, text.size() - 1);
    ASSERT_TRUE(std::holds_alternative<RecordingError>(result));
    EXPECT_EQ(std::get<RecordingError>(result).reason,
              "the file is larger than " + std::to_string(text.size() - 1) + " bytes");
}

TEST(InkmlLimits, DeepestNestingOfGroupsIsRead)
{
    std::string text = "<ink>";
    for (int i = 0; i < 98; ++i) {
        text += "<traceGroup>";
    }
    text += "<trace>1 2</trace>";
    for (int i = 0; i < 98; ++i) {
        text += "</traceGroup>";
    }
    EXPECT_EQ(RecordingOf(text + "</ink>").samples.size(), 1U);
}

} // namespace
} // namespace lumora::replay
