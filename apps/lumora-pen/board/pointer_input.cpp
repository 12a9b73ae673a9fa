// The Board's messages of pen, finger and mouse.
#include "board/pointer_input.h"

#include "board/pointer_reading.h"
#include "input/made_by_pointer.h"

#include <utility>

#include <windowsx.h>

namespace lumora_pen {

namespace {

InputSample MouseSample(HWND window, LPARAM lParam)
{
    POINT place = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ClientToScreen(window, &place);
    return {static_cast<double>(place.x), static_cast<double>(place.y), FullPressure,
            static_cast<std::uint32_t>(GetMessageTime())};
}

} // namespace

PointerInput::PointerInput(TakeInput take) : writer(std::move(take)) {}

void PointerInput::UseMouseHistory(ReadMouse read) { readMouse = std::move(read); }

std::optional<LRESULT> PointerInput::Take(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_POINTERDOWN:
    case WM_POINTERUPDATE:
    case WM_POINTERUP:
    case WM_POINTERLEAVE:
    case WM_POINTERCAPTURECHANGED:
        return TakePointer_(message, wParam);
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
        return TakeMouse_(window, message, wParam, lParam);
    case WM_CAPTURECHANGED:
        writer.Cancel(Mouse); // nothing, when the button has come up before
        return 0;
    default:
        return std::nullopt;
    }
}

void PointerInput::End() { writer.End(); }

// What is taken here does not come again as mouse.
std::optional<LRESULT> PointerInput::TakePointer_(UINT message, WPARAM wParam)
{
    const Source who = GET_POINTERID_WPARAM(wParam);
    if (message == WM_POINTERLEAVE) {
        writer.Leave(who);
        return 0;
    }
    if (message == WM_POINTERCAPTURECHANGED) {
        writer.Cancel(who);
        return 0;
    }
    auto reading = ReadPointer(who);
    if (!reading && !writer.IsWriting(who)) {
        return std::nullopt;
    }
    if (IS_POINTER_CANCELED_WPARAM(wParam) || (reading && reading->isCancelled)) {
        writer.Cancel(who);
    } else {
        TakeRead_(message, who, reading ? std::move(reading->samples) : std::vector<InputSample>());
    }
    return 0;
}

void PointerInput::TakeRead_(UINT message, Source who, std::vector<InputSample> samples)
{
    if (message == WM_POINTERDOWN) {
        writer.Down(who, std::move(samples));
    } else if (message == WM_POINTERUP) {
        writer.Up(who, std::move(samples));
    } else {
        writer.Move(who, std::move(samples));
    }
}

std::optional<LRESULT> PointerInput::TakeMouse_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (IsMadeByPointer(static_cast<std::uint64_t>(GetMessageExtraInfo()))) {
        return 0;
    }
    const InputSample sample = MouseSample(window, lParam);
    if (message == WM_LBUTTONDOWN && writer.IsFree()) {
        SetCapture(window); // the button may come up outside
        writer.Down(Mouse, {sample});
    } else if (message != WM_LBUTTONDOWN && writer.IsWriting(Mouse)) {
        if (message == WM_MOUSEMOVE && (wParam & MK_LBUTTON) != 0) {
            writer.Move(Mouse, readMouse ? readMouse(sample) : std::vector<InputSample>{sample});
        } else {
            LiftMouse_(window, sample); // also when a move says that the button has come up unseen
        }
    }
    return 0;
}

void PointerInput::LiftMouse_(HWND window, const InputSample& last)
{
    writer.Up(Mouse, {last});
    if (GetCapture() == window) { // it may be another's by now
        ReleaseCapture();
    }
}

} // namespace lumora_pen
