// Reading of recordings from files.
#include "read_recording.h"
#include "replay/folder_test.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using ReadRecordingTest = FolderTest;

RecordingError ErrorOf(const RecordingResult& result)
{
    const auto* error = std::get_if<RecordingError>(&result);
    return error != nullptr ? *error : RecordingError{0, "accepted"};
}

TEST_F(ReadRecordingTest, FileIsReadAsSvc)
{
    Write("a.svc", "1\n1 2 3 1 0 0 5\n");
    const RecordingResult result = ReadRecording(folder / "a.svc");
    ASSERT_TRUE(std::holds_alternative<Recording>(result));
    EXPECT_EQ(std::get<Recording>(result).samples.size(), 1U);
}

TEST_F(ReadRecordingTest, ContentTellsInkmlWhateverTheName)
{
    Write("a.svc", "\xEF\xBB\xBF\n <ink><trace>1 2, 3 4</trace></ink>");
    const RecordingResult result = ReadRecording(folder / "a.svc");
    ASSERT_TRUE(std::holds_alternative<Recording>(result)) << ErrorOf(result).reason;
    EXPECT_EQ(std::get<Recording>(result).samples.size(), 2U);
}

TEST_F(ReadRecordingTest, ContentTellsSvcWhateverTheName)
{
    Write("a.inkml", "1\n1 2 3 1 0 0 5\n");
    EXPECT_TRUE(std::holds_alternative<Recording>(ReadRecording(folder / "a.inkml")));
}

TEST_F(ReadRecordingTest, EmptyFileIsReadAsSvc)
{
    Write("a.inkml", "");
    EXPECT_EQ(ErrorOf(ReadRecording(folder / "a.inkml")).reason, "the file is empty");
}

TEST_F(ReadRecordingTest, Utf16IsNamedSo)
{
    Write("a.inkml", std::string("\xFF\xFE<\0i\0", 6));
    const RecordingError error = ErrorOf(ReadRecording(folder / "a.inkml"));
    EXPECT_EQ(error.line, 1U);
    EXPECT_EQ(error.reason, "the file is UTF-16 text; only UTF-8 is read");
}

TEST_F(ReadRecordingTest, ToldUnitReachesBothReaders)
{
    Write("a.svc", "2\n1 2 3 1 0 0 5\n1 2 4 1 0 0 5\n");
    const RecordingResult svc = ReadRecording(folder / "a.svc", TimeUnit::Seconds);
    ASSERT_TRUE(std::holds_alternative<Recording>(svc)) << ErrorOf(svc).reason;
    EXPECT_EQ(std::get<Recording>(svc).samples.back().time, 4000);

    Write("a.svc", "<ink><traceFormat><channel name='X'/><channel name='Y'/><channel name='T' units='ms'/>"
                   "</traceFormat><trace>1 2 3, 1 2 4</trace></ink>");
    const RecordingResult inkml = ReadRecording(folder / "a.svc", TimeUnit::Seconds);
    ASSERT_TRUE(std::holds_alternative<Recording>(inkml)) << ErrorOf(inkml).reason;
    EXPECT_EQ(std::get<Recording>(inkml).samples.back().time, 4000);
}

TEST_F(ReadRecordingTest, NameBeyondAsciiIsFound)
{
    const std::filesystem::path name(u8"\u00fcbung-\u03b1.svc");
    Write(name, "1\n1 2 3 1 0 0 5\n");
    EXPECT_TRUE(std::holds_alternative<Recording>(ReadRecording(folder / name)));
}

TEST_F(ReadRecordingTest, ReaderErrorsKeepTheirLine)
{
    Write("a.svc", "1\n1 2 3 7 0 0 5\n");
    EXPECT_EQ(ErrorOf(ReadRecording(folder / "a.svc")).line, 2U);
}

TEST_F(ReadRecordingTest, MissingFileIsNamedSo)
{
    const RecordingError error = ErrorOf(ReadRecording(folder / "none.svc"));
    EXPECT_EQ(error.line, 0U);
    EXPECT_EQ(error.reason, "there is no such file");
}

TEST_F(ReadRecordingTest, FolderIsNamedSo)
{
    EXPECT_EQ(ErrorOf(ReadRecording(folder)).reason, "is a folder, not a recording");
}

TEST(ShippedRecording, IsWellFormedAndPlaysForFourToSixSeconds)
{
    // UTF-8 wherever the tree lies; an ordinary literal would be read in the system's code page.
    const RecordingResult result = ReadRecording(u8"" SHIPPED_RECORDING);
    ASSERT_TRUE(std::holds_alternative<Recording>(result)) << std::get<RecordingError>(result).reason;
    const auto& samples = std::get<Recording>(result).samples;
    const double duration = samples.back().time - samples.front().time;
    EXPECT_GE(duration, 4000);
    EXPECT_LE(duration, 6000);
}

TEST(ErrorDescription, IsFileLineAndReason)
{
    EXPECT_EQ(DescribeError("a.svc", {7, "is odd"}), "a.svc:7: is odd");
}

} // namespace
} // namespace lumora::replay
