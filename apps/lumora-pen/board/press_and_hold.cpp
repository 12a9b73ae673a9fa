// Press-and-hold, flicks and what the system paints at them.
#include "board/press_and_hold.h"

#include <array>

#include <tpcshrd.h>

namespace lumora_pen {

namespace {

constexpr wchar_t PenServiceProperty[] = L"MicrosoftTabletPenServiceProperty";
constexpr ULONG_PTR Off = TABLET_DISABLE_PRESSANDHOLD | TABLET_DISABLE_PENTAPFEEDBACK |
                          TABLET_DISABLE_PENBARRELFEEDBACK | TABLET_DISABLE_TOUCHUIFORCEON |
                          TABLET_DISABLE_TOUCHSWITCH | TABLET_DISABLE_FLICKS |
                          TABLET_DISABLE_SMOOTHSCROLLING | TABLET_DISABLE_FLICKFALLBACKKEYS;

constexpr std::array Feedback = {FEEDBACK_TOUCH_CONTACTVISUALIZATION,
                                 FEEDBACK_PEN_BARRELVISUALIZATION,
                                 FEEDBACK_PEN_TAP,
                                 FEEDBACK_PEN_DOUBLETAP,
                                 FEEDBACK_PEN_PRESSANDHOLD,
                                 FEEDBACK_PEN_RIGHTTAP,
                                 FEEDBACK_TOUCH_TAP,
                                 FEEDBACK_TOUCH_DOUBLETAP,
                                 FEEDBACK_TOUCH_PRESSANDHOLD,
                                 FEEDBACK_TOUCH_RIGHTTAP,
                                 FEEDBACK_GESTURE_PRESSANDTAP};

} // namespace

void SwitchPressAndHoldOff(HWND window)
{
    SetPropW(window, PenServiceProperty, reinterpret_cast<HANDLE>(Off));
    const auto address =
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetWindowFeedbackSetting"));
    const auto set = reinterpret_cast<decltype(&SetWindowFeedbackSetting)>(address);
    if (set == nullptr) {
        return; // as in Wine
    }
    for (const FEEDBACK_TYPE kind : Feedback) {
        const BOOL isShown = FALSE;
        set(window, kind, 0, sizeof(isShown), &isShown);
    }
}

void ForgetPressAndHold(HWND window) { RemovePropW(window, PenServiceProperty); }

LRESULT PressAndHoldAnswer() { return static_cast<LRESULT>(Off); }

} // namespace lumora_pen
