// Saving: the files that are written, what is read from them again, and what stands in the way.
#include "inkml_text.h"
#include "read_recording.h"
#include "replay/folder_test.h"
#include "save_recording.h"
#include "svc.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string AsInkml(const Recording& recording)
{
    std::ostringstream output;
    WriteInkml(recording, output);
    return output.str();
}

std::string AsSvc(const Recording& recording)
{
    std::ostringstream output;
    WriteSvc(recording, output);
    return output.str();
}

Recording FromSvc(const std::string& text)
{
    std::istringstream input(text);
    const RecordingResult result = ReadSvc(input);
    if (const auto* error = std::get_if<RecordingError>(&result)) {
        ADD_FAILURE() << "line " << error->line << ": " << error->reason;
        return {};
    }
    return std::get<Recording>(result);
}

// By way of InkML and back.
std::string RoundTrip(const std::string& svc) { return AsSvc(RecordingOf(AsInkml(FromSvc(svc)))); }

class SvcRoundTrip : public testing::TestWithParam<std::string> {};

TEST_P(SvcRoundTrip, GivesTheSameFile) { EXPECT_EQ(RoundTrip(GetParam()), GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Files, SvcRoundTrip,
    testing::Values("1\n4034 7509 354642400 1 1190 720 10852\n", //
                    "1\n1 2 3 0 0 0 0\n",
                    "5\n1 2 3 0 0 0 0\n1 2 11 1 0 0 500\n1 2 19 1 0 0 600\n1 2 27 0 0 0 0\n1 2 35 1 0 0 9\n",
                    "2\n1 2 3 0 0 0 900\n1 2 11 1 0 0 0\n", // a pressure without touch, a touch without
                    "3\n1 2 3 1 0 0 5\n1 2 1003 1 0 0 5\n1 2 2004 1 0 0 5\n", // the last step is a long pause
                    "2\n1 2 3 1 0 0 5\n1 2 3 0 0 0 0\n",                      // two samples at the same time
                    "2\n-1.5 -0.25 3.125 1 119.37 72.01 0.75\n0 0 11 1 0 0 40000\n",
                    "2\n-2147483648 2147483647 0 1 -1 3599 2147483647\n0 0 4294967295 1 0 0 5\n",
                    "1\n1 2 9007199254740991 1 0 0 5\n"));

TEST(SvcRoundTrip, TheShippedRecordingIsTheSame)
{
    const RecordingResult shipped = ReadRecording(u8"" SHIPPED_RECORDING);
    ASSERT_TRUE(std::holds_alternative<Recording>(shipped));
    const std::string svc = AsSvc(std::get<Recording>(shipped));
    EXPECT_EQ(RoundTrip(svc), svc);
}

TEST(WrittenSvc, HasACommentOnlyWhereTheUnitWouldBeGuessedWrong)
{
    EXPECT_THAT(AsSvc({{{1, 2, 0}, {1, 2, 8}}, true}), Not(HasSubstr("#")));
    const std::string fast = AsSvc({{{1, 2, 0}, {1, 2, 0.125}}, true});
    EXPECT_THAT(fast, testing::StartsWith("# time-unit: ms\n2\n"));
    EXPECT_EQ(FromSvc(fast).samples[1].time, 0.125);
}

TEST(WrittenSvc, TurnsYUpwards)
{
    EXPECT_EQ(AsSvc({{{1, 2}, {1, 0}}, false}), "2\n1 -2 0 0 0 0 0\n1 0 0 0 0 0 0\n");
}

TEST(WrittenInkml, IsATraceForEachStroke)
{
    EXPECT_EQ(AsInkml({{{1, 2, 3, 500, true}, {1.5, 2, 11, 0, false}, {4, 5, 19, 0, false}}, true}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<ink xmlns=\"http://www.w3.org/2003/InkML\">\n"
              "  <definitions>\n"
              "    <timestamp xml:id=\"origin\"/>\n"
              "    <inkSource xml:id=\"pen\">\n"
              "      <traceFormat>\n"
              "        <channel name=\"X\" type=\"decimal\" units=\"dev\"/>\n"
              "        <channel name=\"Y\" type=\"integer\" orientation=\"-ve\" units=\"dev\"/>\n"
              "        <channel name=\"F\" type=\"integer\" min=\"0\" max=\"32767\" units=\"dev\"/>\n"
              "        <channel name=\"T\" type=\"integer\" units=\"ms\" respectTo=\"#origin\"/>\n"
              "      </traceFormat>\n"
              "    </inkSource>\n"
              "    <context xml:id=\"recording\" inkSourceRef=\"#pen\"/>\n"
              "  </definitions>\n"
              "  <trace contextRef=\"#recording\" type=\"penDown\">\n"
              "    1 2 500 3\n"
              "  </trace>\n"
              "  <trace contextRef=\"#recording\" type=\"penUp\">\n"
              "    1.5 2 0 11,\n"
              "    4 5 0 19\n"
              "  </trace>\n"
              "</ink>\n");
}

TEST(WrittenInkml, HasAnglesWhereThereAreSome)
{
    const std::string text = AsInkml({{{1, 2, 3, 500, true, 1193, 720}}, true});
    EXPECT_THAT(text, HasSubstr("<channel name=\"OA\" type=\"decimal\" units=\"deg\"/>"));
    EXPECT_THAT(text, HasSubstr("1 2 500 3 119.3 72\n"));
}

TEST(WrittenInkml, KeepsYDownwards)
{
    const Recording again = RecordingOf(AsInkml(RecordingOf(Ink(Trace("1 2")))));
    EXPECT_FALSE(again.yUpwards);
    EXPECT_EQ(again.samples[0].y, 2);
}

TEST(SavedFormat, IsToldByTheEndOfTheName)
{
    EXPECT_EQ(FormatOf("a.svc"), RecordingFormat::Svc);
    EXPECT_EQ(FormatOf("a.SVC"), RecordingFormat::Svc);
    EXPECT_EQ(FormatOf("a.svc.InkML"), RecordingFormat::Inkml);
    EXPECT_EQ(FormatOf("a.xml"), std::nullopt);
    EXPECT_EQ(FormatOf("svc"), std::nullopt);
    EXPECT_EQ(FormatOf(""), std::nullopt);
}

class SaveRecordingTest : public FolderTest {
protected:
    std::optional<std::string> Save(bool overwrite) const
    {
        const Recording recording = {{{1, 2, 3, 500, true}}, true};
        return SaveRecording(recording, folder / "a.svc", RecordingFormat::Svc, overwrite);
    }

    std::size_t FileCount() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
    }
};

TEST_F(SaveRecordingTest, WritesTheFileAndNothingElse)
{
    EXPECT_EQ(Save(false), std::nullopt);
    EXPECT_EQ(Content("a.svc"), "1\n1 2 3 1 0 0 500\n");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SaveRecordingTest, FileThatIsThereIsKept)
{
    Write("a.svc", "mine");
    EXPECT_EQ(Save(false), "there is such a file already (--overwrite replaces it)");
    EXPECT_EQ(Content("a.svc"), "mine");
}

TEST_F(SaveRecordingTest, OverwriteReplacesTheFile)
{
    Write("a.svc", "mine");
    EXPECT_EQ(Save(true), std::nullopt);
    EXPECT_EQ(Content("a.svc"), "1\n1 2 3 1 0 0 500\n");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SaveRecordingTest, FolderIsNeverReplaced)
{
    std::filesystem::create_directories(folder / "a.svc");
    EXPECT_EQ(Save(true), "it is a folder");
}

TEST_F(SaveRecordingTest, FileOfAnotherThatIsNeededOnTheWayIsKept)
{
    Write("a.svc.part", "mine");
    EXPECT_EQ(Save(true), "a file of its name with \".part\" at the end is in the way");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SaveRecordingTest, MissingFolderIsTold)
{
    std::filesystem::remove_all(folder);
    EXPECT_EQ(Save(false), "it cannot be written");
}

} // namespace
} // namespace lumora::replay
