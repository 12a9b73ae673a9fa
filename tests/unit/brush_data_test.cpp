// The brush-data decoder on the host's road: kinds, payloads and what is wiped of the host's buffer.
#include "settings/brush_data.h"

#include "support/brush_data_bytes.h"
#include "support/distinct_params.h"

#include <gmock/gmock.h>
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

    Params params = Distinct();
    Params expected = Distinct();
    Bytes buffer;
    Bytes before;
};

TEST_F(BrushData, InkColorSetsTheColourAndEndsPicking)
{
    EXPECT_EQ(Decode(InkColorMessage()), BrushDataKind::InkColor);
    expected.inkColor = 0x00332211;
    expected.colorPicker = 0;
    EXPECT_TRUE(Same(params, expected));
}

TEST_F(BrushData, BrushSizeSetsTheLowerBoundAndTheSizeAndEndsPicking)
{
    EXPECT_EQ(Decode(BrushSizeMessage()), BrushDataKind::BrushSize);
    expected.minBrushSize = 1;
    expected.brushSize = 30;
    expected.colorPicker = 0;
    EXPECT_TRUE(Same(params, expected));
}

TEST_F(BrushData, InkDecayTimeSetsTheInkLifeAndEndsPicking)
{
    EXPECT_EQ(Decode(InkDecayTimeMessage()), BrushDataKind::InkDecayTime);
    expected.inkDecayTime = 1500;
    expected.colorPicker = 0;
    EXPECT_TRUE(Same(params, expected));
}

TEST_F(BrushData, BrushParamsSetsAllThreeAndEndsPicking)
{
    EXPECT_EQ(Decode(BrushParamsMessage()), BrushDataKind::BrushParams);
    expected.inkColor = 0x00665544;
    expected.minBrushSize = 7;
    expected.brushSize = 300;
    expected.colorPicker = 0;
    EXPECT_TRUE(Same(params, expected));
}

TEST_F(BrushData, EveryValueIsTakenAsItComes)
{
    Decode(Message("BrushParams", 12, {0xFF, 0xFE, 0xFD, 0xFC, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0x80}));
    EXPECT_EQ(params.inkColor, 0xFCFDFEFFU);
    EXPECT_EQ(params.minBrushSize, 0xFFFFFFFFU);
    EXPECT_EQ(params.brushSize, 0x80000000U);
}

TEST_F(BrushData, NothingChangesNothing) { ExpectNothingHappens(Message("Nothing", 4, {1, 2, 3, 4})); }

TEST_F(BrushData, AnEmptyNameChangesNothing) { ExpectNothingHappens(Message("", 4, {1, 2, 3, 4})); }

TEST_F(BrushData, AnotherLetterCaseChangesNothing)
{
    for (const char* name :
         {"inkColor", "INKCOLOR", "Inkcolor", "brushsize", "InkDecaytime", "brushParams"}) {
        SCOPED_TRACE(name);
        ExpectNothingHappens(Message(name, 4, {1, 2, 3, 4}));
    }
}

TEST_F(BrushData, APartOfANameChangesNothing)
{
    for (const char* name : {"InkColo", "Ink", "Brush", "BrushParam", "InkDecay"}) {
        SCOPED_TRACE(name);
        ExpectNothingHappens(Message(name, 4, {1, 2, 3, 4}));
    }
}

TEST_F(BrushData, ANameWithMoreBehindChangesNothing)
{
    for (const char* name : {"InkColors", "InkColor ", "BrushParams2", "InkDecayTime\t"}) {
        SCOPED_TRACE(name);
        ExpectNothingHappens(Message(name, 4, {1, 2, 3, 4}));
    }
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

TEST_F(BrushData, ANameInOneByteCharactersChangesNothing)
{
    ExpectNothingHappens({'I', 'n', 'k', 'C', 'o', 'l', 'o', 'r', 0, 4, 0, 0, 0, 1, 2, 3, 4});
}

TEST_F(BrushData, TheFirstOfTwoMessagesIsDecoded)
{
    Bytes both = InkDecayTimeMessage();
    const Bytes second = InkColorMessage();
    both.insert(both.end(), second.begin(), second.end());
    EXPECT_EQ(Decode(both), BrushDataKind::InkDecayTime);
    expected.inkDecayTime = 1500;
    expected.colorPicker = 0;
    EXPECT_TRUE(Same(params, expected));
}

TEST_F(BrushData, TheMessageMayStartAtAnyAddress)
{
    for (std::size_t offset = 0; offset < 8; ++offset) {
        params = Distinct();
        Bytes shifted(offset, 0xEE);
        const Bytes message = BrushParamsMessage();
        shifted.insert(shifted.end(), message.begin(), message.end());
        EXPECT_EQ(DecodeBrushData(params, shifted.data() + offset), BrushDataKind::BrushParams);
        EXPECT_EQ(params.brushSize, 300U);
        EXPECT_TRUE(std::all_of(shifted.begin(), shifted.begin() + static_cast<std::ptrdiff_t>(offset),
                                [](std::uint8_t byte) { return byte == 0xEE; }));
    }
}

// 17 of the 26 bytes for InkColor: the name counts by its code units.
TEST_F(BrushData, TheWipeCoversThePayloadSizeTheCodeUnitsAndFiveBytes)
{
    Decode(InkColorMessage());
    ExpectWiped(4 + 8 + 5);
    Decode(BrushSizeMessage());
    ExpectWiped(8 + 9 + 5);
    Decode(InkDecayTimeMessage());
    ExpectWiped(4 + 12 + 5);
    Decode(BrushParamsMessage());
    ExpectWiped(12 + 11 + 5);
}

TEST_F(BrushData, ASizeOfZeroStillWipesTheBeginning)
{
    EXPECT_EQ(Decode(Message("InkColor", 0, {0x11, 0x22, 0x33, 0x00})), BrushDataKind::InkColor);
    EXPECT_EQ(params.inkColor, 0x00332211U); // the payload follows from the kind
    ExpectWiped(8 + 5);
}

TEST_F(BrushData, TheSizeInTheMessageReachesBehindItAndTheWipeFollows)
{
    EXPECT_EQ(Decode(Message("InkColor", 50, {0x11, 0x22, 0x33, 0x00})), BrushDataKind::InkColor);
    ExpectWiped(50 + 8 + 5);
}

TEST_F(BrushData, AConsumedMessageMatchesNoKindAnyMore)
{
    for (const Bytes& message :
         {InkColorMessage(), BrushSizeMessage(), InkDecayTimeMessage(), BrushParamsMessage()}) {
        EXPECT_NE(Decode(message), BrushDataKind::Nothing);
        params = Distinct();
        ExpectNothingHappens(buffer);
    }
}

TEST_F(BrushData, AMessageOfItsOwnLengthIsReadAndWipedWithinIt)
{
    for (const Bytes& message :
         {InkColorMessage(), BrushSizeMessage(), InkDecayTimeMessage(), BrushParamsMessage()}) {
        EXPECT_NE(Decode(message, 0), BrushDataKind::Nothing); // AddressSanitizer watches the buffer's end
    }
}

TEST(BrushDataWipe, IsCountedIn64Bits)
{
    EXPECT_EQ(BrushDataWipeLength(BrushDataKind::InkColor, 0xFFFFFFFF), 0x10000000CU);
    EXPECT_EQ(BrushDataWipeLength(BrushDataKind::InkDecayTime, 0xFFFFFFFF), 0x100000010U);
}

TEST(BrushDataName, OfEachKindIsFoundAtItsIndex)
{
    const char* const names[] = {"Nothing", "InkColor", "BrushSize", "InkDecayTime", "BrushParams"};
    for (unsigned i = 0; i < std::size(names); ++i) {
        EXPECT_EQ(FindBrushDataKind(NameBytes(names[i]).data()), static_cast<BrushDataKind>(i)) << names[i];
    }
}

TEST(BrushDataName, LengthsAreInCodeUnits)
{
    const unsigned lengths[] = {7, 8, 9, 12, 11};
    for (unsigned i = 0; i < std::size(lengths); ++i) {
        EXPECT_EQ(BrushDataNameLength(i), lengths[i]);
    }
}

TEST(BrushDataName, LengthOfNoKindIsZero)
{
    for (const unsigned index : {5U, 6U, 255U, 256U, 0x10000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(BrushDataNameLength(index), 0U);
    }
}

TEST(BrushDataName, CodeUnitsAreCountedIn16Bits)
{
    EXPECT_EQ(CountCodeUnits(u""), 0U);
    EXPECT_EQ(CountCodeUnits(std::u16string(0xFFFF, u'a').c_str()), 0xFFFFU);
    EXPECT_EQ(CountCodeUnits(std::u16string(0x10000, u'a').c_str()), 0U);
}

TEST(BrushDataName, AgreesUpToItsEnd)
{
    const std::string longest(99, 'a');
    EXPECT_TRUE(IsBrushDataName(NameBytes(longest).data(), std::u16string(99, u'a').c_str()));
}

TEST(BrushDataName, DoesNotAgreeWithoutAnEndAmongAHundredCodeUnits)
{
    const std::string tooLong(100, 'a');
    EXPECT_FALSE(IsBrushDataName(NameBytes(tooLong).data(), std::u16string(100, u'a').c_str()));
}

TEST(BrushDataName, IsReadOnlyAsFarAsItAgrees)
{
    const Bytes oneUnit = {'B', 0, 'X', 0}; // AddressSanitizer watches the end
    EXPECT_EQ(FindBrushDataKind(oneUnit.data()), BrushDataKind::Nothing);
}

} // namespace
} // namespace zq::LM
