// The brush-data decoder on the host's road: kinds, payloads and what is wiped of the host's buffer.
#include "settings/brush_data.h"

#include "support/brush_data_bytes.h"
#include "support/distinct_params.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace zq::LM {

using test::BrushParamsMessage;
using test::BrushSizeMessage;
using test::Bytes;
using test::Distinct;
using test::InkColorMessage;
using test::InkDecayTimeMessage;
using test::Message;
using test::NameBytes;
using test::Same;

namespace {

class BrushData : public ::testing::Test {
protected:
    // The buffer goes on behind the message, as a host's may.
    BrushDataKind Decode(const Bytes& message, std::size_t behind = 64)
    {
        buffer = message;
        buffer.insert(buffer.end(), behind, 0xEE);
        before = buffer;
        params = Distinct();
        return DecodeBrushData(params, buffer.data());
    }

    // The first so many bytes are zero and the others as they were.
    void ExpectWiped(std::size_t count) const
    {
        Bytes expected = before;
        std::fill_n(expected.begin(), count, std::uint8_t{0});
        EXPECT_EQ(buffer, expected);
    }

    void ExpectNothingHappens(const Bytes& message)
    {
        EXPECT_EQ(Decode(message), BrushDataKind::Nothing);
        EXPECT_TRUE(Same(params, Distinct()));
        ExpectWiped(0);
    }

    // Changes these fields, ends picking, wipes so much and makes the message match nothing any more.
    template <class Change>
    void ExpectApplied(const Bytes& message, BrushDataKind kind, std::size_t wiped, Change change)
    {
        Params expected = Distinct();
        change(expected);
        expected.colorPicker = 0;
        EXPECT_EQ(Decode(message), kind);
        EXPECT_TRUE(Same(params, expected));
        ExpectWiped(wiped);
        ExpectNothingHappens(Bytes(buffer));
        EXPECT_EQ(Decode(message, 0), kind); // AddressSanitizer watches the buffer's end
    }

    Params params{};
    Bytes buffer;
    Bytes before;
};

// 17 of the 26 bytes for InkColor are wiped: the name counts by its code units.
TEST_F(BrushData, EachKindSetsItsFieldsEndsPickingAndIsWiped)
{
    ExpectApplied(InkColorMessage(), BrushDataKind::InkColor, 4 + 8 + 5,
                  [](Params& expected) { expected.inkColor = 0x00332211; });
    ExpectApplied(BrushSizeMessage(), BrushDataKind::BrushSize, 8 + 9 + 5, [](Params& expected) {
        expected.minBrushSize = 1;
        expected.brushSize = 30;
    });
    ExpectApplied(InkDecayTimeMessage(), BrushDataKind::InkDecayTime, 4 + 12 + 5,
                  [](Params& expected) { expected.inkDecayTime = 1500; });
    ExpectApplied(BrushParamsMessage(), BrushDataKind::BrushParams, 12 + 11 + 5, [](Params& expected) {
        expected.inkColor = 0x00665544;
        expected.minBrushSize = 7;
        expected.brushSize = 300;
    });
}

TEST_F(BrushData, EveryValueIsTakenAsItComes)
{
    Decode(Message("BrushParams", 12, {0xFF, 0xFE, 0xFD, 0xFC, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0x80}));
    EXPECT_EQ(params.inkColor, 0xFCFDFEFFU);
    EXPECT_EQ(params.minBrushSize, 0xFFFFFFFFU);
    EXPECT_EQ(params.brushSize, 0x80000000U);
}

TEST_F(BrushData, NothingOrANameThatIsNoKindsChangesNothing)
{
    for (const char* name : {"Nothing", "", "inkColor", "INKCOLOR", "Inkcolor", "brushsize", "InkDecaytime",
                             "brushParams", "InkColo", "Ink", "Brush", "BrushParam", "InkDecay", "InkColors",
                             "InkColor ", "BrushParams2", "InkDecayTime\t"}) {
        SCOPED_TRACE(name);
        ExpectNothingHappens(Message(name, 4, {1, 2, 3, 4}));
    }
    ExpectNothingHappens({'I', 'n', 'k', 'C', 'o', 'l', 'o', 'r', 0, 4, 0, 0, 0, 1, 2, 3, 4});
    ExpectNothingHappens(Message("Ink", 0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(BrushData, BothBytesOfACodeUnitCount)
{
    Bytes message = InkColorMessage();
    message[1] = 1; // U+0149 for the I
    ExpectNothingHappens(message);
    message = InkColorMessage();
    message[17] = 1; // the terminating unit is 0x0100
    ExpectNothingHappens(message);
}

TEST_F(BrushData, TheFirstOfTwoMessagesIsDecoded)
{
    Bytes both = InkDecayTimeMessage();
    const Bytes second = InkColorMessage();
    both.insert(both.end(), second.begin(), second.end());
    EXPECT_EQ(Decode(both), BrushDataKind::InkDecayTime);
    EXPECT_EQ(params.inkColor, Distinct().inkColor);
}

TEST_F(BrushData, TheMessageMayStartAtAnyAddress)
{
    for (std::size_t offset = 0; offset < 8; ++offset) {
        Bytes shifted(offset, 0xEE);
        const Bytes message = BrushParamsMessage();
        shifted.insert(shifted.end(), message.begin(), message.end());
        EXPECT_EQ(DecodeBrushData(params, shifted.data() + offset), BrushDataKind::BrushParams);
        EXPECT_EQ(params.brushSize, 300U);
        EXPECT_EQ(std::count(shifted.begin(), shifted.begin() + static_cast<std::ptrdiff_t>(offset), 0xEE),
                  static_cast<std::ptrdiff_t>(offset));
    }
}

TEST_F(BrushData, TheWipeFollowsTheSizeInTheMessageThePayloadTheKind)
{
    for (const std::uint32_t size : {0U, 50U}) {
        EXPECT_EQ(Decode(Message("InkColor", size, {0x11, 0x22, 0x33, 0x00})), BrushDataKind::InkColor);
        EXPECT_EQ(params.inkColor, 0x00332211U);
        ExpectWiped(size + 8 + 5);
    }
    EXPECT_EQ(BrushDataWipeLength(BrushDataKind::InkDecayTime, 0xFFFFFFFF), 0x100000010U); // in 64 bits
}

TEST(BrushDataName, OfEachKindIsFoundAtItsIndexWithItsLength)
{
    const char* const names[] = {"Nothing", "InkColor", "BrushSize", "InkDecayTime", "BrushParams"};
    const unsigned lengths[] = {7, 8, 9, 12, 11};
    for (unsigned i = 0; i < std::size(names); ++i) {
        EXPECT_EQ(FindBrushDataKind(NameBytes(names[i]).data()), static_cast<BrushDataKind>(i)) << names[i];
        EXPECT_EQ(BrushDataNameLength(i), lengths[i]);
    }
    for (const unsigned noKind : {5U, 6U, 255U, 256U, 0x10000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(BrushDataNameLength(noKind), 0U);
    }
}

TEST(BrushDataName, CodeUnitsAreCountedIn16Bits)
{
    EXPECT_EQ(CountCodeUnits(u""), 0U);
    EXPECT_EQ(CountCodeUnits(std::u16string(0xFFFF, u'a').c_str()), 0xFFFFU);
    EXPECT_EQ(CountCodeUnits(std::u16string(0x10000, u'a').c_str()), 0U);
}

TEST(BrushDataName, AgreesOnlyWithAnEndAmongAHundredCodeUnits)
{
    EXPECT_TRUE(IsBrushDataName(NameBytes(std::string(99, 'a')).data(), std::u16string(99, u'a').c_str()));
    EXPECT_FALSE(IsBrushDataName(NameBytes(std::string(100, 'a')).data(), std::u16string(100, u'a').c_str()));
}

TEST(BrushDataName, IsReadOnlyAsFarAsItAgrees)
{
    const Bytes oneUnit = {'B', 0, 'X', 0}; // AddressSanitizer watches the end
    EXPECT_EQ(FindBrushDataKind(oneUnit.data()), BrushDataKind::Nothing);
}

} // namespace
} // namespace zq::LM
