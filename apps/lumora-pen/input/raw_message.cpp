// Reading of messages.
#include "input/raw_message.h"

#include "input/raw_device.h"

#include <cstdint>

namespace lumora_pen {

namespace {

constexpr std::size_t UsualBytes = 1024; // a busy pen's reports of a few frames
constexpr std::size_t MostBytes = 1 << 20;
constexpr std::size_t MouseBytes = offsetof(RAWINPUT, data) + sizeof(RAWMOUSE);
constexpr std::size_t ReportsBegin = offsetof(RAWINPUT, data) + offsetof(RAWHID, bRawData);

} // namespace

RawMessage::RawMessage() : buffer(UsualBytes) {}

bool RawMessage::Read(HRAWINPUT message)
{
    filled = 0;
    UINT size = static_cast<UINT>(buffer.size());
    UINT got = GetRawInputData(message, RID_INPUT, buffer.data(), &size, sizeof(RAWINPUTHEADER));
    if (got == RawInputFailed && size > buffer.size() && size <= MostBytes) {
        buffer.resize(size);
        got = GetRawInputData(message, RID_INPUT, buffer.data(), &size, sizeof(RAWINPUTHEADER));
    }
    if (got == RawInputFailed || got > buffer.size() || got < sizeof(RAWINPUTHEADER)) {
        return false;
    }
    filled = got;
    return !IsMouse() || filled >= MouseBytes;
}

RawReports RawMessage::Reports()
{
    if (Input_().header.dwType != RIM_TYPEHID || filled < ReportsBegin) {
        return {};
    }
    const RAWHID& hid = Input_().data.hid;
    const std::uint64_t wanted = std::uint64_t{hid.dwSizeHid} * hid.dwCount;
    if (wanted == 0 || wanted > filled - ReportsBegin) {
        return {};
    }
    return {std::span(buffer).subspan(ReportsBegin, static_cast<std::size_t>(wanted)), hid.dwSizeHid};
}

} // namespace lumora_pen
