// Plays a timeline into the library while it runs the message loop that the overlay lives in.
#pragma once

#include "ink_session.h"
#include "screenshot.h"
#include "stop_signal.h"
#include "timeline.h"

#include <string>
#include <vector>

namespace lumora::replay {

struct TakenScreenshot {
    std::string file;
    Screenshot picture;
};

struct PlayResult {
    bool stopped = false; // before the end
    std::vector<double> latenciesMs;
    std::vector<TakenScreenshot> screenshots;
};

class Player {
public:
    Player(InkSession& inkSession, const StopSignal& stopSignal, Timeline playedTimeline,
           std::vector<ScreenshotRequest> screenshotRequests, std::vector<BackEndSwitch> backEndSwitches);

    PlayResult Play();

private:
    double NowMs_() const;
    void InputDueSamples_();
    bool PumpMessages_();
    void Dispatch_(MSG& message);
    void TakeDueScreenshots_();
    void MakeDueSwitches_();
    bool AtEnd_() const;
    double NextMoment_() const;
    void WaitForNextMoment_() const;

    InkSession& session;
    const StopSignal& stop;
    Timeline timeline;
    std::vector<ScreenshotRequest> requests; // in order of time
    std::vector<BackEndSwitch> switches;     // in order of time
    std::vector<double> unpaintedInputs;     // when they were handed over
    PlayResult result;
    double ticksPerMs = 1;
    LONGLONG startTicks = 0;
    double endMs = 0;
};

} // namespace lumora::replay
