// The Board: a see-through window over all monitors, which takes pen, finger and mouse, so that nothing below
// is moved or pressed, and keeps the ink that has dried.
#pragma once

#include "board/dry_canvas.h"
#include "board/pointer_input.h"
#include "input/input.h"

#include "lumora/params.hpp"

#include <exception>
#include <optional>
#include <span>

#include <windows.h>

namespace lumora_pen {

enum class BoardState {
    Hidden,
    TakesInput, // but there is no bitmap for its ink: none of what is drawn on it is seen
    TakesInputAndInk,
};

// Of one thread, which pumps its messages. Whoever takes the input may call everything here, but not end the
// object.
class BoardWindow {
public:
    explicit BoardWindow(TakeInput take);
    ~BoardWindow();
    BoardWindow(const BoardWindow&) = delete;
    BoardWindow& operator=(const BoardWindow&) = delete;

    // Hidden is the answer when the system makes no window.
    BoardState Show(HWND overlay);
    // At once. Ends the stroke in the making; the ink is gone, and its memory is given back.
    void Hide();

    // Directly below this window, or on top of all when there is none. The overlay changes with its back-end.
    void PlaceBelow(HWND overlay);

    // False when it is not seen: now, or, as State() says, at all.
    bool Draw(std::span<const InkPoint> points, const lumora::Colour& colour);
    bool Wipe();

    void UseMouseHistory(ReadMouse read) { input.UseMouseHistory(std::move(read)); }

    BoardState State() const { return state; }
    bool IsShown() const { return state != BoardState::Hidden; }
    HWND Window() const { return window; } // null while it is hidden
    const DryCanvas& Canvas() const { return canvas; }

    // What whoever takes the input has thrown, and only once: no exception may pass through the system.
    std::exception_ptr TakeFailure();

private:
    static LRESULT CALLBACK Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle_(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> TakeOther_(UINT message, WPARAM wParam, LPARAM lParam);
    bool MakeWindow_(const PixelRectangle& area);
    void ShowGround_();
    void FollowScreen_();
    bool Present_(const PixelRectangle& changed);
    bool UpdateWindow_(const PixelRectangle& part);
    void PaintGround_(HDC dc) const;

    PointerInput input;
    DryCanvas canvas;
    HWND window = nullptr;
    HCURSOR cursor = nullptr;
    BoardState state = BoardState::Hidden;
    PixelRectangle owed; // drawn, but not shown yet
    std::exception_ptr failure;
};

} // namespace lumora_pen
