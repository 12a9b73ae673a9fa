// What the exported functions read, write and return, with and without an instance.
#include "support/hook/import_hook.h"
#include "support/library/overlay_test.h"

#include <array>
#include <cstring>

namespace zq::LM {
namespace {

using test::Hook;
using test::OverlayTest;
using test::Sample;
using ::testing::ElementsAreArray;

using RecordBytes = std::array<unsigned char, sizeof(LM_Params)>;

constexpr RecordBytes DefaultBytes = {0x00, 0x00, 0x00, 0x00, 0x64, 0x00, 0x00, 0x00, 0x20, 0x20, 0x20,
                                      0x00, 0x01, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x00, 0x00, 0xFF, 0x7F,
                                      0x00, 0x00, 0x01, 0x00, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00};

RecordBytes BytesOf(const LM_Params& params)
{
    RecordBytes bytes{};
    std::memcpy(bytes.data(), &params, bytes.size());
    return bytes;
}

LM_Params FilledWith(unsigned char byte)
{
    LM_Params params;
    std::memset(&params, byte, sizeof(params));
    return params;
}

// Every byte has a value of its own.
LM_Params Distinct()
{
    RecordBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(0xA0 + i);
    }
    LM_Params params;
    std::memcpy(&params, bytes.data(), sizeof(params));
    return params;
}

class Exports : public OverlayTest {
protected:
    void ExpectThatNothingHappens()
    {
        Hook<"InvalidateRect", decltype(InvalidateRect)> invalidations(library.Module());
        LM_Params params = FilledWith(0x5A);
        const LM_PenData sample = Sample(100, 100);
        unsigned char message[16] = {1, 2, 3};
        EXPECT_EQ(library.GetWindowHandle(), nullptr);
        library.GetCopiedParams(&params);
        EXPECT_THAT(BytesOf(params), ::testing::Each(0x5A));
        library.GetCopiedParams(nullptr);
        library.InputPenDataArray(&sample, 1);
        library.InputPenDataArray(&sample, 0);
        library.InputPenDataArray(nullptr, 0);
        library.InputPenDataArray(nullptr, 5);
        library.SetData_from_App(message, sizeof(message));
        library.SetData_from_App(nullptr, 0);
        library.SetParams(&params);
        library.Destroy();
        EXPECT_EQ(invalidations.Count(), 0U);
        EXPECT_FALSE(test::PumpMessages());
    }
};

TEST_F(Exports, AreHarmlessBeforeAnInstance) { ExpectThatNothingHappens(); }

TEST_F(Exports, AreHarmlessAfterAnInstance)
{
    library.Create();
    DestroyAndForget();
    ExpectThatNothingHappens();
}

TEST_F(Exports, SetParamsWithoutAnInstanceDoesNotReachALaterOne)
{
    const LM_Params params = Distinct();
    library.SetParams(&params);
    library.Create();
    EXPECT_THAT(BytesOf(Params()), ElementsAreArray(DefaultBytes));
}

TEST_F(Exports, GetCopiedParamsYieldsTheDefaultRecordRightAfterCreation)
{
    library.Create();
    LM_Params params = FilledWith(0x5A);
    library.GetCopiedParams(&params);
    EXPECT_THAT(BytesOf(params), ElementsAreArray(DefaultBytes));
}

TEST_F(Exports, GetCopiedParamsAcceptsNullWithAnInstance)
{
    library.Create();
    library.GetCopiedParams(nullptr);
    EXPECT_THAT(BytesOf(Params()), ElementsAreArray(DefaultBytes));
}

TEST_F(Exports, EveryByteOfTheRecordComesBackAtOnce)
{
    library.Create();
    const LM_Params set = Distinct();
    library.SetParams(&set);
    EXPECT_EQ(BytesOf(Params()), BytesOf(set));
}

TEST_F(Exports, SetParamsDoesNotInvalidate)
{
    library.Create();
    Paint();
    Hook<"InvalidateRect", decltype(InvalidateRect)> invalidations(library.Module());
    const LM_Params set = Distinct();
    library.SetParams(&set);
    EXPECT_EQ(invalidations.Count(), 0U);
}

TEST_F(Exports, TheRecordEndsWithTheInstance)
{
    library.Create();
    const LM_Params set = Distinct();
    library.SetParams(&set);
    DestroyAndForget();
    library.Create();
    EXPECT_THAT(BytesOf(Params()), ElementsAreArray(DefaultBytes));
}

struct Sizes {
    std::uint64_t before = 0x1111111111111111;
    std::uint64_t params = 0x2222222222222222;
    std::uint64_t between = 0x3333333333333333;
    std::uint64_t penData = 0x4444444444444444;
    std::uint64_t after = 0x5555555555555555;
    bool operator==(const Sizes&) const = default;
};

TEST_F(Exports, GetElmSizeWritesBothSizesAsWholeWords)
{
    Sizes sizes;
    library.GetElmSize(&sizes.params, &sizes.penData);
    Sizes expected;
    expected.params = 32;
    expected.penData = 36;
    EXPECT_EQ(sizes, expected);
}

TEST_F(Exports, GetElmSizeWithANullWritesTheOtherOnly)
{
    Sizes sizes;
    Sizes expected;
    library.GetElmSize(&sizes.params, nullptr);
    expected.params = 32;
    EXPECT_EQ(sizes, expected);

    library.GetElmSize(nullptr, &sizes.penData);
    expected.penData = 36;
    EXPECT_EQ(sizes, expected);
}

TEST_F(Exports, SetDataFromAppOfNoKindLeavesMessageAndRecordAlone)
{
    library.Create();
    const std::vector<unsigned char> before(300, 0xC3);
    std::vector<unsigned char> message = before;
    library.SetData_from_App(message.data(), message.size());
    library.SetData_from_App(message.data(), 1);
    library.SetData_from_App(message.data(), 0);
    library.SetData_from_App(nullptr, 0);
    EXPECT_EQ(message, before);
    EXPECT_THAT(BytesOf(Params()), ElementsAreArray(DefaultBytes));
}

} // namespace
} // namespace zq::LM
