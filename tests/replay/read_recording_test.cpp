// Reading of recordings from files.
#include "read_recording.h"

#include <gmock/gmock.h>

#include <fstream>

namespace lumora::replay {
namespace {

class ReadRecordingTest : public testing::Test {
protected:
    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
    }

    void Write(const std::filesystem::path& name, const std::string& text)
    {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        file = std::filesystem::temp_directory_path() / (std::string("lumora-") + test->name());
        file += name;
        std::ofstream(file, std::ios::binary) << text;
    }

    std::filesystem::path file;
};

RecordingError ErrorOf(const RecordingResult& result)
{
    const auto* error = std::get_if<RecordingError>(&result);
    return error != nullptr ? *error : RecordingError{0, "accepted"};
}

TEST_F(ReadRecordingTest, FileIsReadAsSvc)
{
    Write(".svc", "1\n1 2 3 1 0 0 5\n");
    const RecordingResult result = ReadRecording(file);
    ASSERT_TRUE(std::holds_alternative<Recording>(result));
    EXPECT_EQ(std::get<Recording>(result).samples.size(), 1U);
}

TEST_F(ReadRecordingTest, ContentTellsInkmlWhateverTheName)
{
    Write(".svc", "\xEF\xBB\xBF\n <ink><trace>1 2, 3 4</trace></ink>");
    const RecordingResult result = ReadRecording(file);
    ASSERT_TRUE(std::holds_alternative<Recording>(result)) << ErrorOf(result).reason;
    EXPECT_EQ(std::get<Recording>(result).samples.size(), 2U);
}

TEST_F(ReadRecordingTest, ContentTellsSvcWhateverTheName)
{
    Write(".inkml", "1\n1 2 3 1 0 0 5\n");
    EXPECT_TRUE(std::holds_alternative<Recording>(ReadRecording(file)));
}

TEST_F(ReadRecordingTest, EmptyFileIsReadAsSvc)
{
    Write(".inkml", "");
    EXPECT_EQ(ErrorOf(ReadRecording(file)).reason, "the file is empty");
}

TEST_F(ReadRecordingTest, Utf16IsNamedSo)
{
    Write(".inkml", std::string("\xFF\xFE<\0i\0", 6));
    EXPECT_EQ(ErrorOf(ReadRecording(file)).line, 1U);
    EXPECT_EQ(ErrorOf(ReadRecording(file)).reason, "the file is UTF-16 text; only UTF-8 is read");
}

TEST_F(ReadRecordingTest, ToldUnitReachesBothReaders)
{
    Write(".svc", "2\n1 2 3 1 0 0 5\n1 2 4 1 0 0 5\n");
    const RecordingResult svc = ReadRecording(file, TimeUnit::Seconds);
    ASSERT_TRUE(std::holds_alternative<Recording>(svc)) << ErrorOf(svc).reason;
    EXPECT_EQ(std::get<Recording>(svc).samples.back().time, 4000);

    Write(".svc", "<ink><traceFormat><channel name='X'/><channel name='Y'/><channel name='T' units='ms'/>"
                  "</traceFormat><trace>1 2 3, 1 2 4</trace></ink>");
    const RecordingResult inkml = ReadRecording(file, TimeUnit::Seconds);
    ASSERT_TRUE(std::holds_alternative<Recording>(inkml)) << ErrorOf(inkml).reason;
    EXPECT_EQ(std::get<Recording>(inkml).samples.back().time, 4000);
}

TEST_F(ReadRecordingTest, NameBeyondAsciiIsFound)
{
    Write(std::filesystem::path(u8"-\u00fcbung-\u03b1.svc"), "1\n1 2 3 1 0 0 5\n");
    EXPECT_TRUE(std::holds_alternative<Recording>(ReadRecording(file)));
}

TEST_F(ReadRecordingTest, ReaderErrorsKeepTheirLine)
{
    Write(".svc", "1\n1 2 3 7 0 0 5\n");
    EXPECT_EQ(ErrorOf(ReadRecording(file)).line, 2U);
}

TEST_F(ReadRecordingTest, MissingFileIsNamedSo)
{
    const RecordingError error = ErrorOf(ReadRecording("no-such-recording.svc"));
    EXPECT_EQ(error.line, 0U);
    EXPECT_EQ(error.reason, "there is no such file");
}

TEST_F(ReadRecordingTest, FolderIsNamedSo)
{
    EXPECT_EQ(ErrorOf(ReadRecording(std::filesystem::temp_directory_path())).reason,
              "is a folder, not a recording");
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
