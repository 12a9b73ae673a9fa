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
    const std::uint32_t duration = samples.back().time - samples.front().time;
    EXPECT_GE(duration, 4000U);
    EXPECT_LE(duration, 6000U);
}

TEST(ErrorDescription, IsFileLineAndReason)
{
    EXPECT_EQ(DescribeError("a.svc", {7, "is odd"}), "a.svc:7: is odd");
}

} // namespace
} // namespace lumora::replay
