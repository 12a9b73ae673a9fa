// What a WM_INPUT message brings.
#pragma once

#include <windows.h>

#include <cstddef>
#include <span>
#include <vector>

namespace lumora_pen {

// The reports of one message, oldest first, each of the same size.
struct RawReports {
    std::span<char> bytes;
    std::size_t size = 0; // of one; 0: there are none
};

// Its memory serves one message after the other.
class RawMessage {
public:
    RawMessage();

    // False when the system does not give it, or gives less than it says.
    bool Read(HRAWINPUT message);

    // After a read.
    bool IsMouse() const { return Input_().header.dwType == RIM_TYPEMOUSE; }
    HANDLE Device() const { return Input_().header.hDevice; }
    const RAWMOUSE& MouseReport() const { return Input_().data.mouse; }
    RawReports Reports();

private:
    const RAWINPUT& Input_() const { return *reinterpret_cast<const RAWINPUT*>(buffer.data()); }

    std::vector<char> buffer;
    std::size_t filled = 0;
};

} // namespace lumora_pen
