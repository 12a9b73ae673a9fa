// The colour picker in its dialog: a wheel and a value bar that show a colour and take one from the pointer.
#include "settings/picker_controls.h"

#include "settings/colour_geometry.h"
#include "settings/picker_drawing.h"

#include <optional>

namespace zq::LM {

namespace {

// The control's place on the screen, when the point lies in it; left and top belong to it, right and bottom
// do not.
std::optional<RECT> PlaceAround(HWND control, POINT point)
{
    RECT place{};
    if (!GetWindowRect(control, &place) || !PtInRect(&place, point)) {
        return std::nullopt;
    }
    return place;
}

PixelPoint ClientPoint(HWND control, POINT point)
{
    ScreenToClient(control, &point);
    return {point.x, point.y};
}

} // namespace

void PickerControls::Build(HWND ofValueBar, HWND ofWheel)
{
    valueBar = ofValueBar;
    wheel = ofWheel;
    BuildValueBar(valueBarImage, valueBar);
    BuildWheel(wheelImage, wheel);
}

void PickerControls::Show() const
{
    ShowValueBar(valueBarImage, colour.value);
    ShowWheel(wheelImage, colour);
}

bool PickerControls::Take(POINT point)
{
    if (const std::optional<RECT> place = PlaceAround(valueBar, point)) {
        colour.value = ValueAtColumn(ClientPoint(valueBar, point).x, place->right - place->left);
        return true;
    }
    if (PlaceAround(wheel, point)) {
        RECT client{};
        GetClientRect(wheel, &client);
        colour =
            ColourAtWheelPoint(ClientPoint(wheel, point), WheelIn(client.right, client.bottom), colour.value);
        return true;
    }
    return false;
}

void PickerControls::Follow(std::uint32_t reference)
{
    const Hsv shown = HsvFromRgb(RgbFromReference(reference));
    if (shown.value > 0) {
        colour = shown;
    } else {
        colour.value = shown.value;
    }
}

} // namespace zq::LM
