// Pens and a mouse that are not there: what the system says of them is answered on this program's import
// table.
#pragma once

#include "input/raw_input.h"

#include "support/hook/import_hook.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace lumora_pen {

template <zq::LM::test::FixedText name, typename Function> using Hook = zq::LM::test::Hook<name, Function>;

// Reports have eight bytes: number, switches, and 16 bits each of x, y and pressure.
using ReportBytes = std::array<unsigned char, 8>;

enum Switches : unsigned char { Tip = 1, Near = 2, Inverted = 4, Barrel = 8 };

ReportBytes Report(unsigned x, unsigned y, unsigned pressure, unsigned switches, unsigned char number = 2);
inline ReportBytes TouchReport(unsigned x, unsigned y, unsigned pressure)
{
    return Report(x, y, pressure, Tip | Near);
}

struct FakePen {
    std::wstring systemName = L"\\\\?\\HID#VID_056A&PID_5146&Col01#7&1";
    DWORD vendor = 0x056A;
    DWORD product = 0x5146;
    USHORT usagePage = 0x0D;
    USHORT usage = 0x02;
    LogicalRange x = {0, 29376};
    LogicalRange y = {0, 16524};
    std::optional<LogicalRange> pressure = LogicalRange{0, 4095};
    bool hasInRange = true;
    bool hasTip = true;
    bool hasNull = false;
    unsigned char reportNumber = 2;
};

// From the start one pen is plugged in, which the system maps to a display of 1920 x 1080.
class InputTest : public testing::Test {
protected:
    using At = std::pair<double, double>;

    InputTest();

    static HANDLE Handle(std::uintptr_t number) { return reinterpret_cast<HANDLE>(number); }
    static constexpr std::uintptr_t PenNumber = 0x1001;
    const HANDLE pen = Handle(PenNumber);
    const HWND window = reinterpret_cast<HWND>(std::uintptr_t{0x77});

    // All of one message.
    void Send(const std::vector<ReportBytes>& reports) { Send(pen, reports); }
    void Send(HANDLE device, const std::vector<ReportBytes>& reports);
    void SendMouse(ULONG extra = 0);
    void SendBytes() { input.OnInput(nullptr); } // whatever stands in `message`

    RAWINPUT& Message() { return *reinterpret_cast<RAWINPUT*>(message.data()); }

    void MapTo(HANDLE pointerDevice, const RECT& display,
               DWORD orientation = DISPLAYCONFIG_ROTATION_IDENTITY);

    // Of all batches so far.
    std::vector<At> Places() const;
    std::vector<std::int32_t> Pressures() const;

    HMODULE program = GetModuleHandleW(nullptr);
    Hook<"RegisterRawInputDevices", decltype(RegisterRawInputDevices)> registering{program};
    Hook<"GetRawInputDeviceList", decltype(GetRawInputDeviceList)> listing{program};
    Hook<"GetRawInputDeviceInfoW", decltype(GetRawInputDeviceInfoW)> knowing{program};
    Hook<"GetRawInputData", decltype(GetRawInputData)> reading{program};
    Hook<"HidP_GetCaps", decltype(HidP_GetCaps)> caps{program};
    Hook<"HidP_GetValueCaps", decltype(HidP_GetValueCaps)> valueCaps{program};
    Hook<"HidP_GetButtonCaps", decltype(HidP_GetButtonCaps)> buttonCaps{program};
    Hook<"HidP_MaxUsageListLength", decltype(HidP_MaxUsageListLength)> mostUsages{program};
    Hook<"HidP_GetUsageValue", decltype(HidP_GetUsageValue)> value{program};
    Hook<"HidP_GetUsages", decltype(HidP_GetUsages)> pressed{program};
    Hook<"GetPointerDevices", decltype(GetPointerDevices)> pointers{program};
    Hook<"GetPointerDeviceRects", decltype(GetPointerDeviceRects)> rectangles{program};
    Hook<"GetSystemMetrics", decltype(GetSystemMetrics)> metrics{program};
    Hook<"GetMouseMovePointsEx", decltype(GetMouseMovePointsEx)> history{program};
    Hook<"GetCursorPos", decltype(GetCursorPos)> cursor{program};
    Hook<"GetTickCount", decltype(GetTickCount)> clock{program};
    Hook<"GetMessageTime", decltype(GetMessageTime)> messageClock{program};

    std::map<HANDLE, FakePen> plugged{{pen, FakePen{}}};
    std::vector<POINTER_DEVICE_INFO> pointerDevices;
    std::map<HANDLE, RECT> displays;
    std::vector<char> message;
    std::vector<RAWINPUTDEVICE> registrations;
    std::vector<MOUSEMOVEPOINT> mouseHistory; // newest first
    POINT mouse = {};
    MOUSEMOVEPOINT askedFor = {};
    bool isHeld = false;
    DWORD now = 5000;
    LONG messageTime = 4000;

    std::vector<InputBatch> batches;
    bool keepsBatches = true;
    RawInput input{window,
                   [this](const InputBatch& batch) {
                       if (keepsBatches) {
                           batches.push_back(batch);
                       }
                   },
                   [this] { return isHeld; }};

private:
    const FakePen* OfData_(PHIDP_PREPARSED_DATA data) const;
    void AnswerRawInput_();
    void AnswerHid_();
    void AnswerPointers_();
    void AnswerMouse_();
    UINT DeviceInfo_(HANDLE device, UINT what, void* data, UINT* size) const;
};

} // namespace lumora_pen
