// The colour picker in its dialog: a wheel and a value bar that show a colour and take one from the pointer.
#pragma once

#include "settings/colour_conversion.h"
#include "settings/off_screen_image.h"

#include <cstdint>

namespace zq::LM {

class PickerControls {
public:
    // Makes the pictures of the two controls, once for each opening of the dialog. Where that fails, Show
    // leaves the control out.
    void Build(HWND ofValueBar, HWND ofWheel);

    // Draws both controls: their pictures with the markers of the colour.
    void Show() const;

    // Takes the colour at a point of the screen, from the bar or else the wheel. False beside both.
    bool Take(POINT point);

    // Takes a colour reference. Black has neither hue nor saturation, so these stay.
    void Follow(std::uint32_t reference);

    const Hsv& Colour() const { return colour; }

private:
    HWND valueBar = nullptr;
    HWND wheel = nullptr;
    OffScreenImage wheelImage;
    OffScreenImage valueBarImage;
    Hsv colour;
};

} // namespace zq::LM
