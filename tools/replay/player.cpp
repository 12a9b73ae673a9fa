// The play loop: switches of the back-end and samples when they are due, then messages, then screenshots,
// then sleep until the next of them.
#include "player.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <mmsystem.h>

namespace lumora::replay {

namespace {

// The overlay notices on its next timer tick that the last ink is too old, and wipes it with one more paint.
constexpr double WipeMs = 150;

LONGLONG Ticks()
{
    LARGE_INTEGER ticks = {};
    QueryPerformanceCounter(&ticks);
    return ticks.QuadPart;
}

// Waits end within a millisecond while one of these lives, instead of the system's usual 15. Where the system
// refuses, they are only coarser.
struct FineTimer {
    FineTimer() { static_cast<void>(timeBeginPeriod(1)); }
    ~FineTimer() { static_cast<void>(timeEndPeriod(1)); }
    FineTimer(const FineTimer&) = delete;
    FineTimer& operator=(const FineTimer&) = delete;
};

} // namespace

Player::Player(InkSession& inkSession, const StopSignal& stopSignal, Timeline playedTimeline,
               std::vector<ScreenshotRequest> screenshotRequests, std::vector<BackEndSwitch> backEndSwitches)
    : session(inkSession), stop(stopSignal), timeline(std::move(playedTimeline)),
      requests(std::move(screenshotRequests)), switches(std::move(backEndSwitches)),
      endMs(timeline.EndMs() + session.InkLifeMs() + WipeMs)
{
    LARGE_INTEGER frequency = {};
    QueryPerformanceFrequency(&frequency);
    ticksPerMs = static_cast<double>(frequency.QuadPart) / 1000;
}

PlayResult Player::Play()
{
    const FineTimer fineTimer;
    startTicks = Ticks();
    while (!AtEnd_()) {
        MakeDueSwitches_();
        InputDueSamples_();
        if (!PumpMessages_() || stop.IsSet()) {
            result.stopped = true;
            break;
        }
        TakeDueScreenshots_();
        WaitForNextMoment_();
    }
    return std::move(result);
}

double Player::NowMs_() const { return static_cast<double>(Ticks() - startTicks) / ticksPerMs; }

void Player::InputDueSamples_()
{
    const double now = NowMs_();
    const std::span<const LM_PenData> due = timeline.TakeDue(now);
    if (!due.empty()) {
        unpaintedInputs.push_back(NowMs_());
        session.Input(due);
    }
}

// Until the queue is empty or the next samples are due; false when the thread is asked to quit.
bool Player::PumpMessages_()
{
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        if (message.message == WM_QUIT) {
            return false;
        }
        Dispatch_(message);
        if (timeline.NextDueMs().value_or(endMs) <= NowMs_()) {
            break;
        }
    }
    return true;
}

void Player::Dispatch_(MSG& message)
{
    if (!session.ServeDialog(message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    if (message.message != WM_PAINT) {
        return;
    }
    const double painted = NowMs_();
    if (message.hwnd != session.Window()) {
        session.RefreshWindow();
    }
    if (message.hwnd == session.Window()) {
        for (const double handedOver : unpaintedInputs) {
            result.latenciesMs.push_back(painted - handedOver);
        }
        unpaintedInputs.clear();
    }
}

void Player::TakeDueScreenshots_()
{
    // Encoding would delay the pen, so the pictures are only saved when the play is over.
    while (!requests.empty() && requests.front().atMs <= NowMs_()) {
        result.screenshots.push_back({requests.front().file, Screenshot()});
        requests.erase(requests.begin());
    }
}

void Player::MakeDueSwitches_()
{
    while (!switches.empty() && switches.front().atMs <= NowMs_()) {
        session.Choose(switches.front().backEnd);
        switches.erase(switches.begin());
    }
}

bool Player::AtEnd_() const
{
    return requests.empty() && switches.empty() && !timeline.NextDueMs() && NowMs_() >= endMs;
}

// The end comes last: it waits for all the rest.
double Player::NextMoment_() const
{
    constexpr double Never = std::numeric_limits<double>::infinity();
    const double sample = timeline.NextDueMs().value_or(Never);
    const double screenshot = requests.empty() ? Never : requests.front().atMs;
    const double backEndSwitch = switches.empty() ? Never : switches.front().atMs;
    const double next = std::min({sample, screenshot, backEndSwitch});
    return next < Never ? next : endMs;
}

void Player::WaitForNextMoment_() const
{
    constexpr double LongestWaitMs = 60'000;
    const double wait = std::clamp(std::ceil(NextMoment_() - NowMs_()), 0.0, LongestWaitMs);
    const HANDLE stopEvent = stop.Event();
    MsgWaitForMultipleObjectsEx(1, &stopEvent, static_cast<DWORD>(wait), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

} // namespace lumora::replay
