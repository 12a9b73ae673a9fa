// Descriptors and reports that are not what they should be.
#include "fake_input.h"

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::wstring Name = L"Pen of a display";

class HidReports : public InputTest {
protected:
    void ExpectUnreadable()
    {
        input.SetPens(true);
        EXPECT_THAT(input.UnreadablePens(), ElementsAre(Name));
        Send({TouchReport(14688, 8262, 2048)});
        EXPECT_THAT(batches, IsEmpty());
    }

    FakePen& Plugged() { return plugged[pen]; }
};

TEST_F(HidReports, PenWithoutPressureWritesAtFull)
{
    Plugged().pressure.reset();
    input.SetPens(true);
    Send({TouchReport(0, 0, 0)});
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure));
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
}

TEST_F(HidReports, PressureOfNoRangeIsNone)
{
    Plugged().pressure = LogicalRange{5, 5};
    input.SetPens(true);
    Send({TouchReport(0, 0, 5)});
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure));
}

TEST_F(HidReports, PenThatDoesNotTellOfTheRangeIsInIt)
{
    Plugged().hasInRange = false;
    input.SetPens(true);
    Send({Report(0, 0, 0, Tip), Report(0, 0, 0, 0)});
    EXPECT_THAT(Pressures(), ElementsAre(1, 0));
}

TEST_F(HidReports, SignedRangesAreRead)
{
    Plugged().x = {-10000, 10000};
    Plugged().y = {-32768, 32767};
    input.SetPens(true);
    Send({TouchReport(0xD8F0, 0x8000, 1), TouchReport(0, 0x7FFF, 1),
          TouchReport(5000, 0x8000, 1)}); // 0xD8F0 is -10000
    EXPECT_THAT(Places(), ElementsAre(At(0, 0), At(959.5, 1079), At(1439.25, 0)));
}

TEST_F(HidReports, RangeThatHasLostItsSignIsRead)
{
    Plugged().x = {0, -1}; // 65535 in two bytes
    input.SetPens(true);
    Send({TouchReport(0xFFFF, 0, 1), TouchReport(0x3333, 0, 1)}); // a fifth
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0), At(383.8, 0)));
}

TEST_F(HidReports, PlaceThatTheDeviceDoesNotKnowIsTheLastOne)
{
    Plugged().hasNull = true;
    input.SetPens(true);
    Send({TouchReport(29376, 16524, 1), TouchReport(40000, 0, 4095)});
    EXPECT_THAT(Places(), ElementsAre(At(1919, 1079), At(1919, 1079)));
}

TEST_F(HidReports, ReportsWithoutNumbersAreRead)
{
    Plugged().reportNumber = 0;
    input.SetPens(true);
    Send({Report(29376, 0, 1, Tip | Near, 0)});
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0)));
}

TEST_F(HidReports, ReportsOfOtherNumbersAreNotOfThePensWay)
{
    input.SetPens(true);
    Send({TouchReport(0, 0, 1), Report(29376, 0, 1, Tip | Near, 9), Report(0, 0, 0, 0, 3)});
    EXPECT_THAT(Places(), SizeIs(1));
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
}

TEST_F(HidReports, ReversedRangeCannotBeRead)
{
    Plugged().x = {1000, 10};
    ExpectUnreadable();
}

TEST_F(HidReports, EmptyRangeCannotBeRead)
{
    Plugged().y = {0, 0};
    ExpectUnreadable();
}

TEST_F(HidReports, PenWithoutATipCannotBeRead)
{
    Plugged().hasTip = false;
    ExpectUnreadable();
}

TEST_F(HidReports, SystemHasNoPreparsedData)
{
    knowing.Before([this](HANDLE, UINT what, void*, UINT* size) {
        if (what == RIDI_PREPARSEDDATA) {
            *size = 0;
            knowing.Fail(static_cast<UINT>(-1), 1, 1);
        }
    });
    ExpectUnreadable();
}

TEST_F(HidReports, PreparsedDataGrowsBetweenTheQuestions)
{
    int questions = 0;
    knowing.After([&questions](HANDLE, UINT what, void* data, UINT* size) {
        if (what == RIDI_PREPARSEDDATA && data == nullptr && ++questions == 1) {
            *size = 3; // the next question finds that it is more
        }
    });
    input.SetPens(true);
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
    Send({TouchReport(29376, 0, 1)});
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0)));
}

TEST_F(HidReports, CapabilitiesCannotBeHad)
{
    caps.Fail(HIDP_STATUS_INVALID_PREPARSED_DATA);
    ExpectUnreadable();
}

TEST_F(HidReports, DescriptorHasNoValues)
{
    caps.Answer([](PHIDP_PREPARSED_DATA, PHIDP_CAPS answer) {
        *answer = {};
        return HIDP_STATUS_SUCCESS;
    });
    ExpectUnreadable();
}

TEST_F(HidReports, ValuesCannotBeHad)
{
    valueCaps.Fail(HIDP_STATUS_INVALID_PREPARSED_DATA);
    ExpectUnreadable();
}

TEST_F(HidReports, FewerValuesAreGivenThanWereSaid)
{
    valueCaps.Answer([](HIDP_REPORT_TYPE, PHIDP_VALUE_CAPS, USHORT* count, PHIDP_PREPARSED_DATA) {
        *count = 0;
        return HIDP_STATUS_SUCCESS;
    });
    ExpectUnreadable();
}

TEST_F(HidReports, SwitchesCannotBeHad)
{
    buttonCaps.Fail(HIDP_STATUS_INVALID_PREPARSED_DATA);
    ExpectUnreadable();
}

TEST_F(HidReports, NoSwitchIsEverPressed)
{
    mostUsages.Fail(0);
    ExpectUnreadable();
}

TEST_F(HidReports, PenWithoutAProductsNameHasItsNumbers)
{
    pointerDevices.clear();
    Plugged().hasTip = false;
    Plugged().vendor = 0x4F3;
    Plugged().product = 0x2A15;
    input.SetPens(true);
    EXPECT_THAT(input.UnreadablePens(), ElementsAre(L"04F3:2A15"));
}

TEST_F(HidReports, PenOfWhichNoReportCanBeReadIsNamed)
{
    value.Fail(HIDP_STATUS_INCOMPATIBLE_REPORT_ID);
    input.SetPens(true);
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
    Send({TouchReport(0, 0, 1)});
    EXPECT_THAT(batches, IsEmpty());
    EXPECT_THAT(input.UnreadablePens(), ElementsAre(Name));
}

TEST_F(HidReports, PenThatCanBeReadAfterAllIsNamedNoLonger)
{
    value.Fail(HIDP_STATUS_INTERNAL_ERROR, 1, 1);
    input.SetPens(true);
    Send({TouchReport(0, 0, 1)});
    Send({TouchReport(0, 0, 1)});
    EXPECT_THAT(Places(), SizeIs(1));
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
}

class DamagedReport : public HidReports {
protected:
    DamagedReport() { input.SetPens(true); }

    // The middle one of three.
    void ExpectTheOthers()
    {
        Send({TouchReport(0, 0, 1), TouchReport(9, 9, 1), TouchReport(29376, 16524, 1)});
        EXPECT_THAT(Places(), ElementsAre(At(0, 0), At(1919, 1079)));
        EXPECT_THAT(Pressures(), ElementsAre(8, 8)); // 1 of 4095
        EXPECT_THAT(input.UnreadablePens(), IsEmpty());
    }
};

TEST_F(DamagedReport, XCannotBeRead)
{
    value.Fail(HIDP_STATUS_USAGE_NOT_FOUND, 4, 1);
    ExpectTheOthers();
}

TEST_F(DamagedReport, YCannotBeRead)
{
    value.Fail(HIDP_STATUS_USAGE_NOT_FOUND, 5, 1);
    ExpectTheOthers();
}

TEST_F(DamagedReport, PressureCannotBeRead)
{
    value.Fail(HIDP_STATUS_IS_VALUE_ARRAY, 6, 1);
    ExpectTheOthers();
}

TEST_F(DamagedReport, SwitchesCannotBeRead)
{
    pressed.Fail(HIDP_STATUS_BUFFER_TOO_SMALL, 2, 1);
    ExpectTheOthers();
}

TEST_F(DamagedReport, MorePressedSwitchesThanThereIsRoomForAreNotLookedAt)
{
    pressed.Answer(
        [](HIDP_REPORT_TYPE, USAGE, USHORT, USAGE* list, ULONG* count, PHIDP_PREPARSED_DATA, char*, ULONG) {
            list[0] = 0x42;
            *count = 0x7FFFFFFF;
            return HIDP_STATUS_SUCCESS;
        });
    Send({TouchReport(0, 0, 4095)});
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure));
}

TEST_F(DamagedReport, ReportsOfAnotherSizeAreNotRead)
{
    Send({TouchReport(0, 0, 1)});
    batches.clear();
    Message().data.hid.dwSizeHid = 4;
    Message().data.hid.dwCount = 2;
    SendBytes();
    EXPECT_THAT(batches, IsEmpty());
}

TEST_F(DamagedReport, StrokeOutlivesAReportThatCannotBeRead)
{
    Send({TouchReport(0, 0, 4095)});
    value.Fail(HIDP_STATUS_INTERNAL_ERROR, 1, 1);
    Send({TouchReport(5, 5, 4095)});
    Send({TouchReport(29376, 0, 4095)});
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, FullPressure));
}

} // namespace
} // namespace lumora_pen
