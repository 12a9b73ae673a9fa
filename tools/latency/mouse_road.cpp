// From an event of the mouse to the ink of whatever program writes with it.
#include "latency/mouse_road.h"

#include "latency/clock.h"
#include "latency/x_mouse.h"

#include <chrono>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace lumora::latency {

namespace {

using std::chrono::milliseconds;

// The pointer's picture lies on the ink's newest pixels, so an older one is watched.
constexpr std::int32_t MouseStep = 40;
constexpr std::int32_t BehindPointer = 20;
constexpr std::int32_t MouseMargin = 60;
constexpr std::int32_t MouseRowDistance = 16;
constexpr milliseconds BetweenEvents(60);
constexpr milliseconds ForKeysToBeSeen(300);
constexpr milliseconds ForInkToGo(1600);

// Every key is known before one is pressed: none stays down for want of another.
class Hold {
public:
    Hold(XMouse& mouse, const MouseRoad& road) : mouse(mouse), button(road.button)
    {
        for (const std::string& key : road.heldKeys) {
            keys.push_back(mouse.CodeOf(key));
        }
        Set_(true);
    }
    ~Hold() { Set_(false); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    void Set_(bool down)
    {
        for (const KeyCode key : keys) {
            mouse.Key(key, down);
        }
        if (button != 0) {
            mouse.Button(button, down);
        }
    }

    XMouse& mouse;
    std::vector<KeyCode> keys;
    unsigned button;
};

std::optional<double> MeasureStep(XMouse& mouse, const Framebuffer& screen, std::int32_t x, std::int32_t y)
{
    const std::uint32_t before = screen.At(x - BehindPointer, y);
    const std::int64_t begin = Now();
    mouse.Move(x, y);
    while (screen.At(x - BehindPointer, y) == before) {
        if (Now() - begin > NanosecondsPerSecond / 2) {
            return std::nullopt;
        }
    }
    return static_cast<double>(Now() - begin) / NanosecondsPerMillisecond;
}

} // namespace

std::vector<double> MeasureMouse(const MouseRoad& road, const Framebuffer& screen)
{
    XMouse mouse;
    std::vector<double> times;
    std::uint32_t number = 0;
    for (std::int32_t y = MouseMargin; number < road.samples; y += MouseRowDistance) {
        if (y >= screen.Height() - MouseMargin) {
            y = MouseMargin;
        }
        mouse.Move(MouseMargin, y);
        std::this_thread::sleep_for(ForInkToGo);
        const Hold hold(mouse, road);
        std::this_thread::sleep_for(ForKeysToBeSeen);
        mouse.Move(MouseMargin + 1, y);
        for (std::int32_t x = MouseMargin + MouseStep;
             x < screen.Width() - MouseMargin && number < road.samples; x += MouseStep, ++number) {
            std::this_thread::sleep_for(BetweenEvents);
            if (const auto time = MeasureStep(mouse, screen, x, y)) {
                times.push_back(*time);
            }
        }
    }
    return times;
}

} // namespace lumora::latency
