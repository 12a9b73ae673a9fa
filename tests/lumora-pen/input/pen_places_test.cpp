// Which part of the screen a pen writes on.
#include "fake_input.h"

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PenPlaces : public InputTest {
protected:
    // The middle of the digitizer.
    std::vector<At> Middle()
    {
        input.SetPens(true);
        batches.clear();
        Send({TouchReport(14688, 8262, 1)});
        return Places();
    }

    const HANDLE other = Handle(0x2002); // of the pointer device
};

const auto WholeScreenMiddle =
    testing::ElementsAre(std::pair<double, double>(320, 440)); // of -1280..1920, -200..1080

TEST_F(PenPlaces, DisplayOfThePointerDeviceCounts)
{
    EXPECT_THAT(Middle(), ElementsAre(At(959.5, 539.5)));
    EXPECT_THAT(input.UnmappedPens(), IsEmpty());
}

TEST_F(PenPlaces, DisplayOfAnotherScalingLiesBeside)
{
    MapTo(pen, {1920, 0, 5760, 2160});
    EXPECT_THAT(Middle(), ElementsAre(At(3839.5, 1079.5)));
}

TEST_F(PenPlaces, DisplayMayLieLeftOfTheFirst)
{
    MapTo(pen, {-1280, 0, 0, 1024});
    EXPECT_THAT(Middle(), ElementsAre(At(-640.5, 511.5)));
}

TEST_F(PenPlaces, TurnedDisplayTurnsThePlaces)
{
    const std::vector<std::pair<DWORD, At>> wanted = {{DISPLAYCONFIG_ROTATION_IDENTITY, {0, 0}},
                                                      {DISPLAYCONFIG_ROTATION_ROTATE90, {1079, 0}},
                                                      {DISPLAYCONFIG_ROTATION_ROTATE180, {1079, 1919}},
                                                      {DISPLAYCONFIG_ROTATION_ROTATE270, {0, 1919}},
                                                      {0, {0, 0}}};
    for (const auto& [orientation, place] : wanted) {
        MapTo(pen, {0, 0, 1080, 1920}, orientation);
        input.SetPens(true);
        Send({TouchReport(0, 0, 1)});
        EXPECT_EQ(Places().back(), place) << orientation;
        input.SetPens(false);
    }
}

TEST_F(PenPlaces, PointerDeviceOfAnotherHandleIsFoundByItsName)
{
    plugged[other] = plugged[pen];
    for (wchar_t& letter : plugged[other].systemName) {
        letter = static_cast<wchar_t>(towlower(letter));
    }
    plugged[Handle(0x3003)].systemName = L"another";
    pointerDevices.clear();
    MapTo(Handle(0x3003), {0, 0, 100, 100});
    MapTo(other, {0, 0, 1001, 501});
    EXPECT_THAT(Middle(), ElementsAre(At(500, 250)));
    EXPECT_THAT(input.UnmappedPens(), IsEmpty());
}

TEST_F(PenPlaces, OnlyPenAmongThePointerDevicesIsIt)
{
    pointerDevices.clear();
    MapTo(Handle(0x3003), {0, 0, 100, 100});
    pointerDevices[0].pointerDeviceType = POINTER_DEVICE_TYPE_TOUCH;
    MapTo(other, {0, 0, 1001, 501});
    pointerDevices[1].pointerDeviceType = POINTER_DEVICE_TYPE_EXTERNAL_PEN;
    EXPECT_THAT(Middle(), ElementsAre(At(500, 250)));
}

TEST_F(PenPlaces, OneOfSeveralStrangePensIsNotGuessed)
{
    pointerDevices.clear();
    MapTo(Handle(0x3003), {0, 0, 100, 100});
    MapTo(other, {0, 0, 1001, 501});
    EXPECT_THAT(Middle(), WholeScreenMiddle);
    EXPECT_THAT(input.UnmappedPens(), ElementsAre(L"056A:5146"));
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
}

TEST_F(PenPlaces, WithoutPointerDevicesItIsTheWholeScreen)
{
    pointerDevices.clear();
    EXPECT_THAT(Middle(), WholeScreenMiddle);
    EXPECT_THAT(input.UnmappedPens(), ElementsAre(L"056A:5146"));
}

TEST_F(PenPlaces, WhereTheDevicesCannotBeCountedItIsTheWholeScreen)
{
    pointers.Fail(FALSE);
    EXPECT_THAT(Middle(), WholeScreenMiddle);
}

TEST_F(PenPlaces, WhereTheDevicesCannotBeListedItIsTheWholeScreen)
{
    pointers.Fail(FALSE, 2);
    EXPECT_THAT(Middle(), WholeScreenMiddle);
}

TEST_F(PenPlaces, AbsurdNumberOfDevicesIsNotAskedFor)
{
    pointers.Answer([](UINT32* count, POINTER_DEVICE_INFO* devices) {
        EXPECT_EQ(devices, nullptr);
        *count = 0xFFFFFFFF;
        return TRUE;
    });
    EXPECT_THAT(Middle(), WholeScreenMiddle);
}

TEST_F(PenPlaces, DeviceThatGoesBetweenTheQuestionsIsNone)
{
    pointers.Before([this](UINT32*, POINTER_DEVICE_INFO* devices) {
        if (devices != nullptr) {
            pointerDevices.clear();
        }
    });
    EXPECT_THAT(Middle(), WholeScreenMiddle);
}

TEST_F(PenPlaces, DeviceWithoutRectanglesIsNotMappedButNamed)
{
    rectangles.Fail(FALSE);
    EXPECT_THAT(Middle(), WholeScreenMiddle);
    EXPECT_THAT(input.UnmappedPens(), ElementsAre(L"Pen of a display"));
}

TEST_F(PenPlaces, EmptyDisplayIsNone)
{
    MapTo(pen, {0, 0, 0, 0});
    EXPECT_THAT(Middle(), WholeScreenMiddle);
}

TEST_F(PenPlaces, ProductsNameMayFillItsPlace)
{
    std::fill(std::begin(pointerDevices[0].productString), std::end(pointerDevices[0].productString), L'n');
    plugged[pen].hasTip = false;
    input.SetPens(true);
    EXPECT_THAT(input.UnreadablePens(), ElementsAre(std::wstring(POINTER_DEVICE_PRODUCT_STRING_MAX, L'n')));
}

TEST_F(PenPlaces, ChangedDisplayIsAskedForAnew)
{
    Middle();
    batches.clear();
    MapTo(pen, {-1280, 0, 0, 1024});
    now = 6000;
    input.OnDisplayChange();
    EXPECT_THAT(Places(), ElementsAre(At(959.5, 539.5))); // the stroke has ended where it was
    EXPECT_THAT(Pressures(), ElementsAre(0));
    EXPECT_EQ(batches[0].samples[0].time, 6000U);
    EXPECT_THAT(Middle(), ElementsAre(At(-640.5, 511.5)));
}

TEST_F(PenPlaces, ChangedDisplayOfAPenOutOfRangeHandsOutNothing)
{
    input.SetPens(true);
    input.OnDisplayChange();
    EXPECT_THAT(batches, IsEmpty());
}

} // namespace
} // namespace lumora_pen
