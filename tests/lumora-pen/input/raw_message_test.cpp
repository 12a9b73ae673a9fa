// Messages that are not what they should be: nothing is written, and the next one counts.
#include "fake_input.h"

#include "input/raw_device.h"

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DamagedMessage : public InputTest {
protected:
    DamagedMessage()
    {
        input.SetPens(true);
        input.SetMouse(true);
        isHeld = true;
        Send({TouchReport(0, 0, 1)});
        batches.clear();
    }

    void ExpectNothingButTheNext()
    {
        EXPECT_THAT(batches, IsEmpty());
        reading.Forget();
        AnswerAsBefore();
        Send({TouchReport(29376, 16524, 4095)});
        EXPECT_THAT(Places(), ElementsAre(At(1919, 1079)));
    }

    // Gives the first bytes of the message, and says that these are all.
    void AnswerOnly(std::size_t size)
    {
        reading.Answer([this, size](HRAWINPUT, UINT, void* data, UINT* room, UINT) {
            std::copy_n(message.begin(), size, static_cast<char*>(data));
            *room = static_cast<UINT>(size);
            return static_cast<UINT>(size);
        });
    }

    void AnswerAsBefore()
    {
        reading.Answer([this](HRAWINPUT, UINT, void* data, UINT* room, UINT) {
            std::copy(message.begin(), message.end(), static_cast<char*>(data));
            return *room = static_cast<UINT>(message.size());
        });
    }
};

TEST_F(DamagedMessage, SystemGivesNothing)
{
    reading.Answer([](HRAWINPUT, UINT, void*, UINT*, UINT) { return RawInputFailed; });
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, SystemGivesAnEmptyOne)
{
    reading.Answer([](HRAWINPUT, UINT, void*, UINT* size, UINT) { return *size = 0; });
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, SystemGivesHalfAHeader)
{
    AnswerOnly(sizeof(RAWINPUTHEADER) / 2);
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, SystemGivesAHeaderAlone)
{
    AnswerOnly(sizeof(RAWINPUTHEADER));
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, MouseReportIsCutShort)
{
    mouse = {50, 50};
    message.assign(sizeof(RAWINPUT), 0);
    AnswerOnly(sizeof(RAWINPUTHEADER) + 4);
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, ReportsAreCutShort)
{
    AnswerOnly(message.size() - 1);
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, SystemSaysMoreThanThereIsRoomFor)
{
    reading.Answer([](HRAWINPUT, UINT, void*, UINT* size, UINT) { return *size + 1; });
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, SizeGrowsWithoutEnd)
{
    reading.Answer([](HRAWINPUT, UINT, void*, UINT* size, UINT) {
        *size += 100;
        return RawInputFailed;
    });
    reading.Forget();
    SendBytes();
    EXPECT_EQ(reading.Count(), 2U);
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, SizeIsAbsurd)
{
    reading.Answer([](HRAWINPUT, UINT, void*, UINT* size, UINT) {
        *size = 0xFFFFFFF0;
        return RawInputFailed;
    });
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, ThereAreNoReportsInIt)
{
    Send(std::vector<ReportBytes>{});
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, ReportsHaveNoSize)
{
    Message().data.hid.dwSizeHid = 0;
    Message().data.hid.dwCount = 0xFFFFFFFF;
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, ReportsAreLargerThanTheMessage)
{
    Message().data.hid.dwSizeHid = 9;
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, NumberOfReportsOverflows)
{
    Message().data.hid.dwSizeHid = 0x10000;
    Message().data.hid.dwCount = 0x10000; // their product has more than 32 bits
    SendBytes();
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, DeviceIsUnknown)
{
    Send(Handle(0x9999), {TouchReport(0, 0, 1)});
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, DeviceIsNoPen)
{
    plugged[Handle(0x3003)] = {};
    plugged[Handle(0x3003)].usage = 0x04; // a touch screen
    Send(Handle(0x3003), {TouchReport(0, 0, 1)});
    ExpectNothingButTheNext();
}

TEST_F(DamagedMessage, DeviceIsAKeyboard)
{
    Message().header.dwType = RIM_TYPEKEYBOARD;
    SendBytes();
    ExpectNothingButTheNext();
}

} // namespace
} // namespace lumora_pen
