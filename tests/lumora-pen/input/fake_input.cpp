#include "fake_input.h"

#include "input/raw_device.h"

#include <algorithm>
#include <cstring>

namespace lumora_pen {

namespace {

template <typename Unit> UINT Give(const std::vector<Unit>& answer, void* data, UINT* size)
{
    const UINT room = std::exchange(*size, static_cast<UINT>(answer.size()));
    if (data == nullptr) {
        return 0;
    }
    if (room < answer.size()) {
        return RawInputFailed;
    }
    std::copy(answer.begin(), answer.end(), static_cast<Unit*>(data));
    return static_cast<UINT>(answer.size());
}

HIDP_VALUE_CAPS Value(const FakePen& pen, USAGE page, USAGE usage, const LogicalRange& range)
{
    HIDP_VALUE_CAPS caps = {};
    caps.UsagePage = page;
    caps.ReportID = pen.reportNumber;
    caps.LinkCollection = 1;
    caps.IsAbsolute = TRUE;
    caps.HasNull = pen.hasNull ? TRUE : FALSE;
    caps.BitSize = 16;
    caps.ReportCount = 1;
    caps.LogicalMin = range.least;
    caps.LogicalMax = range.most;
    caps.NotRange.Usage = usage;
    return caps;
}

std::vector<HIDP_VALUE_CAPS> ValuesOf(const FakePen& pen)
{
    std::vector<HIDP_VALUE_CAPS> caps = {Value(pen, 0x01, 0x30, pen.x), Value(pen, 0x01, 0x31, pen.y),
                                         Value(pen, 0x0D, 0x3D, {-60, 60})}; // its tilt
    if (pen.pressure) {
        caps.push_back(Value(pen, 0x0D, 0x30, *pen.pressure));
    }
    return caps;
}

HIDP_BUTTON_CAPS Button(const FakePen& pen, USAGE first, USAGE last)
{
    HIDP_BUTTON_CAPS caps = {};
    caps.UsagePage = 0x0D;
    caps.ReportID = pen.reportNumber;
    caps.IsAbsolute = TRUE;
    caps.IsRange = first != last ? TRUE : FALSE;
    caps.Range.UsageMin = first;
    caps.Range.UsageMax = last;
    return caps;
}

std::vector<HIDP_BUTTON_CAPS> ButtonsOf(const FakePen& pen)
{
    std::vector<HIDP_BUTTON_CAPS> caps = {Button(pen, 0x3C, 0x3C)};
    if (pen.hasTip) {
        caps.push_back(Button(pen, 0x42, 0x44)); // with the switches at the barrel, as one range
    }
    if (pen.hasInRange) {
        caps.push_back(Button(pen, 0x32, 0x32));
    }
    return caps;
}

// Where the report keeps it; 0: nowhere.
std::size_t ByteOf(USAGE page, USAGE usage)
{
    if (page == 0x01) {
        return usage == 0x30 ? 2 : usage == 0x31 ? 4 : 0;
    }
    return page == 0x0D && usage == 0x30 ? 6 : 0;
}

} // namespace

ReportBytes Report(unsigned x, unsigned y, unsigned pressure, unsigned switches, unsigned char number)
{
    const auto low = [](unsigned value) { return static_cast<unsigned char>(value & 0xFF); };
    const auto high = [](unsigned value) { return static_cast<unsigned char>((value >> 8) & 0xFF); };
    return {number, low(switches), low(x), high(x), low(y), high(y), low(pressure), high(pressure)};
}

InputTest::InputTest()
{
    AnswerRawInput_();
    AnswerHid_();
    AnswerPointers_();
    AnswerMouse_();
    MapTo(pen, {0, 0, 1920, 1080});
}

void InputTest::Send(HANDLE device, const std::vector<ReportBytes>& reports)
{
    constexpr std::size_t Begin = offsetof(RAWINPUT, data) + offsetof(RAWHID, bRawData);
    message.assign(Begin + reports.size() * sizeof(ReportBytes), 0);
    Message().header = {RIM_TYPEHID, static_cast<DWORD>(message.size()), device, 0};
    Message().data.hid.dwSizeHid = sizeof(ReportBytes);
    Message().data.hid.dwCount = static_cast<DWORD>(reports.size());
    if (!reports.empty()) {
        std::memcpy(message.data() + Begin, reports.data(), reports.size() * sizeof(ReportBytes));
    }
    SendBytes();
}

void InputTest::SendMouse(ULONG extra)
{
    message.assign(sizeof(RAWINPUT), 0);
    Message().header = {RIM_TYPEMOUSE, static_cast<DWORD>(message.size()), Handle(5), 0};
    Message().data.mouse.ulExtraInformation = extra;
    SendBytes();
}

void InputTest::MapTo(HANDLE pointerDevice, const RECT& display, DWORD orientation)
{
    POINTER_DEVICE_INFO info = {};
    info.displayOrientation = orientation;
    info.device = pointerDevice;
    info.pointerDeviceType = POINTER_DEVICE_TYPE_INTEGRATED_PEN;
    wcscpy(info.productString, L"Pen of a display");
    std::erase_if(pointerDevices, [&](const auto& known) { return known.device == pointerDevice; });
    pointerDevices.push_back(info);
    displays[pointerDevice] = display;
}

std::vector<InputTest::At> InputTest::Places() const
{
    std::vector<At> places;
    for (const InputBatch& batch : batches) {
        for (const InputSample& sample : batch.samples) {
            places.emplace_back(sample.x, sample.y);
        }
    }
    return places;
}

std::vector<std::int32_t> InputTest::Pressures() const
{
    std::vector<std::int32_t> pressures;
    for (const InputBatch& batch : batches) {
        for (const InputSample& sample : batch.samples) {
            pressures.push_back(sample.pressure);
        }
    }
    return pressures;
}

// A pen's preparsed data is its handle.
const FakePen* InputTest::OfData_(PHIDP_PREPARSED_DATA data) const
{
    HANDLE handle = nullptr;
    std::memcpy(&handle, data, sizeof(handle));
    return &plugged.at(handle);
}

void InputTest::AnswerRawInput_()
{
    registering.Answer([this](const RAWINPUTDEVICE* devices, UINT count, UINT) {
        registrations.insert(registrations.end(), devices, devices + count);
        return TRUE;
    });
    listing.Answer([this](RAWINPUTDEVICELIST* list, UINT* count, UINT) {
        std::vector<RAWINPUTDEVICELIST> all = {{Handle(5), RIM_TYPEMOUSE}};
        for (const auto& [handle, known] : plugged) {
            all.push_back({handle, RIM_TYPEHID});
        }
        return Give(all, list, count);
    });
    knowing.Answer([this](HANDLE device, UINT what, void* data, UINT* size) {
        return DeviceInfo_(device, what, data, size);
    });
    reading.Answer([this](HRAWINPUT, UINT what, void* data, UINT* size, UINT header) {
        EXPECT_EQ(what, static_cast<UINT>(RID_INPUT));
        EXPECT_EQ(header, sizeof(RAWINPUTHEADER));
        return Give(message, data, size);
    });
}

UINT InputTest::DeviceInfo_(HANDLE device, UINT what, void* data, UINT* size) const
{
    const auto found = plugged.find(device);
    if (found == plugged.end()) {
        return RawInputFailed;
    }
    const FakePen& known = found->second;
    if (what == RIDI_DEVICENAME) {
        std::vector<wchar_t> name(known.systemName.begin(), known.systemName.end());
        name.push_back(L'\0');
        return Give(name, data, size);
    }
    if (what == RIDI_PREPARSEDDATA) {
        std::vector<char> bytes(sizeof(device));
        std::memcpy(bytes.data(), &device, sizeof(device));
        return Give(bytes, data, size);
    }
    auto* info = static_cast<RID_DEVICE_INFO*>(data);
    EXPECT_EQ(info->cbSize, sizeof(RID_DEVICE_INFO));
    info->dwType = RIM_TYPEHID;
    info->hid = {known.vendor, known.product, 1, known.usagePage, known.usage};
    return *size;
}

void InputTest::AnswerHid_()
{
    caps.Answer([this](PHIDP_PREPARSED_DATA data, PHIDP_CAPS answer) {
        const FakePen* known = OfData_(data);
        answer->InputReportByteLength = sizeof(ReportBytes);
        answer->NumberInputValueCaps = static_cast<USHORT>(ValuesOf(*known).size());
        answer->NumberInputButtonCaps = static_cast<USHORT>(ButtonsOf(*known).size());
        return HIDP_STATUS_SUCCESS;
    });
    valueCaps.Answer(
        [this](HIDP_REPORT_TYPE, PHIDP_VALUE_CAPS answer, USHORT* count, PHIDP_PREPARSED_DATA data) {
            const auto all = ValuesOf(*OfData_(data));
            *count = static_cast<USHORT>((std::min)(all.size(), std::size_t{*count}));
            std::copy_n(all.begin(), *count, answer);
            return HIDP_STATUS_SUCCESS;
        });
    buttonCaps.Answer(
        [this](HIDP_REPORT_TYPE, PHIDP_BUTTON_CAPS answer, USHORT* count, PHIDP_PREPARSED_DATA data) {
            const auto all = ButtonsOf(*OfData_(data));
            *count = static_cast<USHORT>((std::min)(all.size(), std::size_t{*count}));
            std::copy_n(all.begin(), *count, answer);
            return HIDP_STATUS_SUCCESS;
        });
    mostUsages.Answer([](HIDP_REPORT_TYPE, USAGE, PHIDP_PREPARSED_DATA) { return 5UL; });
    value.Answer([](HIDP_REPORT_TYPE, USAGE page, USHORT, USAGE usage, ULONG* bits, PHIDP_PREPARSED_DATA,
                    char* report, ULONG size) {
        const std::size_t at = ByteOf(page, usage);
        if (size != sizeof(ReportBytes)) {
            return HIDP_STATUS_INVALID_REPORT_LENGTH;
        }
        if (at == 0) {
            return HIDP_STATUS_USAGE_NOT_FOUND;
        }
        std::uint16_t found = 0;
        std::memcpy(&found, report + at, sizeof(found));
        *bits = found;
        return HIDP_STATUS_SUCCESS;
    });
    pressed.Answer([](HIDP_REPORT_TYPE, USAGE, USHORT, USAGE* list, ULONG* count, PHIDP_PREPARSED_DATA,
                      char* report, ULONG size) {
        if (size != sizeof(ReportBytes)) {
            return HIDP_STATUS_INVALID_REPORT_LENGTH;
        }
        *count = 0;
        for (const auto& [bit, usage] : {std::pair<int, USAGE>{Barrel, USAGE{0x44}},
                                         {Near, USAGE{0x32}},
                                         {Inverted, USAGE{0x3C}},
                                         {Tip, USAGE{0x42}}}) {
            if ((report[1] & bit) != 0) {
                list[(*count)++] = usage;
            }
        }
        return HIDP_STATUS_SUCCESS;
    });
}

void InputTest::AnswerPointers_()
{
    pointers.Answer([this](UINT32* count, POINTER_DEVICE_INFO* answer) {
        const auto given =
            static_cast<UINT32>(answer == nullptr ? pointerDevices.size()
                                                  : (std::min)(pointerDevices.size(), std::size_t{*count}));
        if (answer != nullptr) {
            std::copy_n(pointerDevices.begin(), given, answer);
        }
        *count = given;
        return TRUE;
    });
    rectangles.Answer([this](HANDLE device, RECT* surface, RECT* display) {
        *surface = {0, 0, 30000, 20000};
        *display = displays.at(device);
        return TRUE;
    });
    metrics.Answer([](int index) { // a monitor left of the first one, and one that reaches higher
        return index == SM_XVIRTUALSCREEN    ? -1280
               : index == SM_YVIRTUALSCREEN  ? -200
               : index == SM_CXVIRTUALSCREEN ? 3201
               : index == SM_CYVIRTUALSCREEN ? 1281
                                             : 0;
    });
}

void InputTest::AnswerMouse_()
{
    cursor.Answer([this](POINT* place) {
        *place = mouse;
        return TRUE;
    });
    history.Answer([this](UINT, MOUSEMOVEPOINT* from, MOUSEMOVEPOINT* points, int count, DWORD resolution) {
        EXPECT_EQ(resolution, static_cast<DWORD>(GMMP_USE_DISPLAY_POINTS));
        askedFor = *from;
        const auto given = (std::min)(mouseHistory.size(), static_cast<std::size_t>(count));
        std::copy_n(mouseHistory.begin(), given, points);
        return given > 0 ? static_cast<int>(given) : -1;
    });
    clock.Answer([this] { return now; });
    messageClock.Answer([this] { return messageTime; });
}

} // namespace lumora_pen
