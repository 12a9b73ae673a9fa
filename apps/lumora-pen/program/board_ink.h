// The Board with its ink: strokes pass to it from the library as they dry, so that writing stays quick
// however much there is.
#pragma once

#include "board/board_window.h"
#include "ink/stroke_feed.h"
#include "input/raw_mouse.h"

#include <cstdint>

namespace lumora_pen {

class BoardInk {
public:
    explicit BoardInk(TakeInput take);

    // Directly below the overlay. True when its ink is kept: without a bitmap the library has to keep it.
    bool Show(HWND overlay);
    void Hide();
    bool KeepsInk() const { return board.State() == BoardState::TakesInputAndInk; }

    // The same samples that the library has been given, in the same style.
    void Take(const StrokeSteps& steps, const lumora::Params& style, std::uint32_t now);

    // What the library is about to lose.
    void DryWhatIsDue(std::uint32_t now);

    // Of what is written from now on.
    void ChangeColour(const lumora::Colour& other);

    void Wipe();

private:
    RawMouse mouse; // its way between two messages
    BoardWindow board;
    DryStroke stroke;
    lumora::Colour colour;
};

} // namespace lumora_pen
