// What is listened to, and devices that come and go.
#include "fake_input.h"

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Devices : public InputTest {
protected:
    void Vanish()
    {
        plugged.erase(pen);
        pointerDevices.clear();
        input.OnDeviceChange(GIDC_REMOVAL, pen);
    }
};

TEST_F(Devices, FromTheBeginningNothingIsListenedTo)
{
    EXPECT_THAT(registrations, IsEmpty());
    isHeld = true;
    SendMouse();
    Send({TouchReport(0, 0, 1)});
    EXPECT_THAT(batches, IsEmpty());
}

TEST_F(Devices, BothAreListenedToWhoeverHasTheFocus)
{
    EXPECT_TRUE(input.SetMouse(true));
    EXPECT_TRUE(input.SetPens(true));
    ASSERT_THAT(registrations, SizeIs(2));
    EXPECT_EQ(registrations[0].usUsagePage, 0x01);
    EXPECT_EQ(registrations[0].usUsage, 0x02);
    EXPECT_EQ(registrations[1].usUsagePage, 0x0D);
    EXPECT_EQ(registrations[1].usUsage, 0x02);
    for (const RAWINPUTDEVICE& registration : registrations) {
        EXPECT_EQ(registration.dwFlags, static_cast<DWORD>(RIDEV_INPUTSINK | RIDEV_DEVNOTIFY));
        EXPECT_EQ(registration.hwndTarget, window);
    }
}

TEST_F(Devices, SwitchingTwiceRegistersOnce)
{
    input.SetMouse(true);
    input.SetMouse(true);
    input.SetPens(true);
    input.SetPens(true);
    EXPECT_THAT(registrations, SizeIs(2));
}

TEST_F(Devices, SwitchingOffUnregisters)
{
    input.SetMouse(true);
    input.SetPens(true);
    registrations.clear();
    EXPECT_TRUE(input.SetPens(false));
    EXPECT_TRUE(input.SetMouse(false));
    ASSERT_THAT(registrations, SizeIs(2));
    EXPECT_EQ(registrations[0].usUsagePage, 0x0D);
    EXPECT_EQ(registrations[1].usUsagePage, 0x01);
    for (const RAWINPUTDEVICE& registration : registrations) {
        EXPECT_EQ(registration.dwFlags, static_cast<DWORD>(RIDEV_REMOVE));
        EXPECT_EQ(registration.hwndTarget, nullptr);
    }
}

TEST_F(Devices, EndUnregistersWhatIsOn)
{
    {
        RawInput second(
            window, [](const InputBatch&) {}, [] { return false; });
        second.SetPens(true);
    }
    ASSERT_THAT(registrations, SizeIs(2));
    EXPECT_EQ(registrations[1].dwFlags, static_cast<DWORD>(RIDEV_REMOVE));
    EXPECT_EQ(registrations[1].usUsagePage, 0x0D);
}

TEST_F(Devices, RefusalIsTold)
{
    registering.Fail(FALSE);
    EXPECT_FALSE(input.SetMouse(true));
    EXPECT_FALSE(input.SetPens(true));
    registering.PassOn();
    registering.Answer([](const RAWINPUTDEVICE*, UINT, UINT) { return TRUE; });
    EXPECT_TRUE(input.SetMouse(true));
    EXPECT_TRUE(input.SetPens(true));
}

TEST_F(Devices, SwitchingPensOffEndsTheStroke)
{
    input.SetPens(true);
    Send({TouchReport(29376, 0, 4095)});
    now = 7000;
    input.SetPens(false);
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0));
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0), At(1919, 0)));
    EXPECT_EQ(batches[1].samples[0].time, 7000U);
    EXPECT_EQ(batches[1].source, batches[0].source);
}

TEST_F(Devices, VanishedPenEndsItsStroke)
{
    input.SetPens(true);
    Send({TouchReport(29376, 0, 4095)});
    Vanish();
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0));
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0), At(1919, 0)));
    EXPECT_EQ(batches[1].source, batches[0].source);
    Send({TouchReport(0, 0, 4095)}); // one that was still on its way
    EXPECT_THAT(batches, SizeIs(2));
}

TEST_F(Devices, VanishedPenThatDidNotWriteSaysNothing)
{
    input.SetPens(true);
    Vanish();
    input.OnDeviceChange(GIDC_REMOVAL, pen);
    EXPECT_THAT(batches, IsEmpty());
}

TEST_F(Devices, VanishedPenIsNoLongerNamed)
{
    plugged[pen].hasTip = false;
    input.SetPens(true);
    EXPECT_THAT(input.UnreadablePens(), SizeIs(1));
    Vanish();
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
}

TEST_F(Devices, PenThatComesLaterWrites)
{
    const FakePen later = plugged[pen];
    plugged.clear();
    input.SetPens(true);
    plugged[pen] = later;
    input.OnDeviceChange(GIDC_ARRIVAL, pen);
    Send({TouchReport(29376, 0, 4095)});
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0)));
}

TEST_F(Devices, PenThatCannotBeReadIsNamedWhenItComes)
{
    const HANDLE other = Handle(0x2002);
    input.SetPens(true);
    plugged[other].hasTip = false;
    MapTo(other, {0, 0, 10, 10});
    input.OnDeviceChange(GIDC_ARRIVAL, other);
    EXPECT_THAT(input.UnreadablePens(), SizeIs(1));
}

TEST_F(Devices, MouseThatComesIsNoPen)
{
    input.SetPens(true);
    input.OnDeviceChange(GIDC_ARRIVAL, Handle(5));
    EXPECT_THAT(input.UnreadablePens(), IsEmpty());
}

TEST_F(Devices, PenThatComesBackIsMappedAnew)
{
    const FakePen again = plugged[pen];
    input.SetPens(true);
    Vanish();
    plugged[pen] = again;
    MapTo(pen, {-1280, 0, 0, 1024});
    input.OnDeviceChange(GIDC_ARRIVAL, pen);
    Send({TouchReport(0, 0, 4095)});
    EXPECT_THAT(Places(), ElementsAre(At(-1280, 0)));
}

TEST_F(Devices, OneMoreDeviceHasAllMappedAnew)
{
    input.SetPens(true);
    const HANDLE other = Handle(0x2002);
    plugged[other] = {};
    MapTo(other, {0, 0, 10, 10});
    MapTo(pen, {-1280, 0, 0, 1024});
    input.OnDeviceChange(GIDC_ARRIVAL, other);
    Send({TouchReport(0, 0, 4095)});
    EXPECT_THAT(Places(), ElementsAre(At(-1280, 0)));
}

TEST_F(Devices, ListThatCannotBeHadIsMadeUpForByTheFirstReport)
{
    listing.Fail(static_cast<UINT>(-1));
    input.SetPens(true);
    Send({TouchReport(29376, 0, 4095)});
    EXPECT_THAT(Places(), ElementsAre(At(1919, 0)));
}

TEST_F(Devices, ListThatGrowsBetweenTheQuestionsIsAskedForAgain)
{
    plugged[pen].hasTip = false;
    int questions = 0;
    listing.After([&questions](RAWINPUTDEVICELIST* list, UINT* count, UINT) {
        if (list == nullptr && ++questions == 1) {
            *count = 1;
        }
    });
    input.SetPens(true);
    EXPECT_THAT(input.UnreadablePens(), SizeIs(1));
}

TEST_F(Devices, ChangesWhilePensAreOffAreNothing)
{
    input.OnDeviceChange(GIDC_ARRIVAL, pen);
    input.OnDeviceChange(GIDC_REMOVAL, pen);
    input.OnDisplayChange();
    EXPECT_THAT(batches, IsEmpty());
    EXPECT_EQ(knowing.Count(), 0U);
}

} // namespace
} // namespace lumora_pen
