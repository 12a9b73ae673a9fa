// Reads the real screen and puts windows below the overlay.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace zq::LM::test {

// A picture of a part of the screen; pixels are 0x00BBGGRR at screen coordinates.
class Picture {
public:
    Picture(const RECT& place, std::vector<COLORREF> pixels);

    COLORREF At(int x, int y) const;
    std::size_t Count(COLORREF colour) const;
    std::size_t Differences(const Picture& other) const;

    // The smallest rectangle around the pixels of another colour than this; empty when there are none.
    RECT BoundsOfOther(COLORREF background) const;

    // One character a pixel, for a failed test: '.' for the background, '#' for the rest.
    std::string Print(COLORREF background, const RECT& part) const;

private:
    RECT place;
    std::vector<COLORREF> pixels;
};

// What is on the screen now, every window of the display included.
Picture TakePicture(const RECT& place);
Picture TakePicture(HDC dc, const RECT& place);

RECT PlaceOf(HWND window);
bool IsAt(HWND window, const RECT& place);

// An opaque window of one colour, below the overlay. Counts the clicks that reach it.
class Backdrop {
public:
    // With a parent the place is in its coordinates.
    Backdrop(const RECT& place, COLORREF colour, HWND parent = nullptr);
    ~Backdrop();
    Backdrop(const Backdrop&) = delete;
    Backdrop& operator=(const Backdrop&) = delete;

    HWND Window() const { return window; }
    int Clicks() const;

private:
    HWND window;
};

// Dispatches what waits in this thread's queue, sent messages included; true when a quit message was among
// it.
bool PumpMessages();

// Until what was drawn is on the screen: a window below the overlay repaints what has become visible of it
// only when messages are pumped, and hears of it only after a round trip to the display. Dispatches what
// waits, paints included.
void SettleScreen();

} // namespace zq::LM::test
