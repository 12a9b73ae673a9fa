// Mouse and pens while another program has the focus and the pointer. Nothing is taken away from that
// program.
#pragma once

#include "input/pen_device.h"
#include "input/raw_mouse.h"
#include "input/raw_registration.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lumora_pen {

// Numbers of pens begin here, beyond those of the system's pointers, which have 16 bits.
inline constexpr Source FirstRawPen = 0x10000;

// One batch a message. What takes it may call anything here, but must not end this object.
class RawInput {
public:
    // The messages come to `window`. `isHeld` says whether the mouse writes now.
    RawInput(HWND window, TakeInput take, std::function<bool()> isHeld);

    // From the beginning both are off; switching off ends what is being written. False when the system
    // refuses.
    bool SetMouse(bool wanted);
    bool SetPens(bool wanted);

    void OnInput(HRAWINPUT input);                     // at WM_INPUT
    void OnDeviceChange(WPARAM change, HANDLE device); // at WM_INPUT_DEVICE_CHANGE
    void OnDisplayChange();                            // at WM_DISPLAYCHANGE

    // A mouse that rests sends nothing: while it may write, a timer has to look whether the key is still
    // held.
    void LookAtMouse();

    // Names for people. The reports of the first say nothing that could be written with; those of the second
    // are spread over the whole screen.
    std::vector<std::wstring> UnreadablePens() const;
    std::vector<std::wstring> UnmappedPens() const;

private:
    void TakeMouse_(const RAWMOUSE& report);
    void TakePen_();
    PenDevice* FindPen_(HANDLE device); // null when it is no pen
    void LeavePen_(PenDevice& pen, std::uint32_t time);
    void AskForPlaces_();
    bool IsPenInRange_() const;
    void HandOut_(Source source);

    struct Known {
        HANDLE handle;
        std::shared_ptr<PenDevice> pen;
    };

    HWND window;
    TakeInput take;
    RawMouse mouse;
    std::vector<Known> pens;
    Source nextPen = FirstRawPen;
    RawMessage message;
    InputBatch batch;
    std::unique_ptr<RawRegistration> mouseRegistration;
    std::unique_ptr<RawRegistration> penRegistration;
};

} // namespace lumora_pen
