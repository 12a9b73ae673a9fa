// The ink engine's sample store: pending and live samples, ageing and the report rate.
#include "ink/drawing.h"
#include "log/debug_log.h"
#include "platform/clock.h"

namespace zq::LM {

namespace {

std::int64_t Difference(std::uint32_t later, std::uint32_t earlier)
{
    return static_cast<std::int64_t>(later) - static_cast<std::int64_t>(earlier);
}

// The count as it is in the end, also when memory runs out on the way.
class CountInTheEnd {
public:
    CountInTheEnd(std::int64_t& count, const std::vector<PenData>& samples) : count(count), samples(samples)
    {
    }
    ~CountInTheEnd() { count = static_cast<std::int64_t>(samples.size()); }
    CountInTheEnd(const CountInTheEnd&) = delete;
    CountInTheEnd& operator=(const CountInTheEnd&) = delete;

private:
    std::int64_t& count;
    const std::vector<PenData>& samples;
};

bool IsResetMarker(const PenData& sample) { return sample.x == 0 || sample.y == 0 || sample.time == 0; }

} // namespace

void Drawing::AddPenDataAry(const PenData* samples, std::size_t count) { AddPenDataAryCore_(samples, count); }

void Drawing::AddPenDataAryCore_(const PenData* samples, std::size_t count)
{
    // Nothing would ever show of them.
    constexpr std::uint32_t Visible =
        DrawOption::Cursor | DrawOption::Line | DrawOption::Outline | DrawOption::ColorPicker;
    if (EnabledOptions(Visible) == 0) {
        return;
    }
    if (samples == nullptr || count == 0) {
        return;
    }
    LogA(DETAILED, "\tAddPenDataAryCore_ is locked.\n");
    const std::lock_guard lock(samplesMutex);
    // Until the next frame or tick, readers see how much has come in, not how much is drawn.
    const CountInTheEnd counted(livePointsNum, pendingSamples);
    for (std::size_t i = 0; i < count; ++i) {
        AddPenData_(samples[i]);
    }
    LogA(DETAILED, "\tAddPenDataAryCore_ is unlocked.\n");
}

void Drawing::AddPenData_(const PenData& sample)
{
    if (IsResetMarker(sample)) {
        pendingSamples.clear();
    } else {
        pendingSamples.push_back(sample);
        pendingSamples.back().time = MillisecondClock();
    }
}

void Drawing::MovePenData_()
{
    LogA(DETAILED, "\tMovePenData_ is locked.\n");
    const std::lock_guard lock(samplesMutex);
    if (!pendingSamples.empty()) {
        liveSamples.insert(liveSamples.end(), pendingSamples.begin(), pendingSamples.end());
        pendingSamples.clear();
    }
    livePointsNum = static_cast<std::int64_t>(liveSamples.size());
    LogA(DETAILED, "\tMovePenData_ is unlocked.\n");
}

void Drawing::CalcPenReportRate_()
{
    constexpr std::uint64_t MillisecondsPerSecond = 1000;
    const std::size_t count = liveSamples.size();
    std::uint64_t rate = 0;
    if (count >= 2) {
        const std::int64_t span = Difference(liveSamples.back().time, liveSamples.front().time);
        if (span < 0) {
            LogTimeWarning_("CalcPenReportRate_", static_cast<int>(span)); // this line prints 32 bits
        }
        // A little high, as n samples are only n - 1 intervals apart; it shows with the first few alone.
        rate = span > 0 ? count * MillisecondsPerSecond / static_cast<std::uint64_t>(span) : 0;
    }
    const std::lock_guard lock(rateMutex);
    penReportRate = static_cast<std::uint32_t>(rate);
}

void Drawing::DeleteOldPenData() { DeleteOldPenDataCore_(); }

void Drawing::DeleteOldPenDataCore_()
{
    const std::lock_guard lock(samplesMutex);
    if (liveSamples.empty()) {
        livePointsNum = 0;
        return;
    }
    const std::uint32_t now = MillisecondClock();
    const std::int64_t life = params.inkDecayTime;
    auto firstYoung = liveSamples.begin();
    for (; firstYoung != liveSamples.end(); ++firstYoung) {
        const std::int64_t age = Difference(now, firstYoung->time);
        if (age < 0) {
            LogTimeWarning_("DeleteOldPenDataCore_", age);
        }
        if (age < life) {
            break;
        }
    }
    liveSamples.erase(liveSamples.begin(), firstYoung);
    livePointsNum = static_cast<std::int64_t>(liveSamples.size());
}

std::int64_t Drawing::LivePointsNum()
{
    LogA(OnlyAtAll, "\tLivePointsNum is locked.\n");
    const std::lock_guard lock(samplesMutex);
    LogA(OnlyAtAll, "\tLivePointsNum is unlocked.\n");
    return livePointsNum;
}

std::uint32_t Drawing::PenReoprtRate()
{
    LogA(OnlyAtAll, "\tPenReoprtRate is locked.\n");
    const std::lock_guard lock(rateMutex);
    LogA(OnlyAtAll, "\tPenReoprtRate is unlocked.\n");
    return penReportRate;
}

void Drawing::ClearLivePenData() { liveSamples.clear(); }

} // namespace zq::LM
