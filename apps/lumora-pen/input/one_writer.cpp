// One writes at a time.
#include "input/one_writer.h"

#include <algorithm>
#include <utility>

namespace lumora_pen {

namespace {

bool Touches(const InputSample& sample) { return sample.pressure > 0; }

} // namespace

OneWriter::OneWriter(TakeInput take) : take(std::move(take)) {}

void OneWriter::Down(Source who, std::vector<InputSample> samples)
{
    if (IsWriting(who)) {
        Up(who, {}); // nobody comes down twice: that it went up was lost
    }
    if (!IsFree()) {
        return;
    }
    const auto touch = std::find_if(samples.begin(), samples.end(), Touches);
    if (touch == samples.end()) {
        Hover_(who, std::move(samples));
        return;
    }
    samples.erase(samples.begin(), touch);
    writer = who;
    hovering.reset();
    Write_(who, std::move(samples));
}

void OneWriter::Move(Source who, std::vector<InputSample> samples)
{
    if (IsWriting(who)) {
        Write_(who, std::move(samples));
    } else if (IsFree()) {
        samples.erase(std::remove_if(samples.begin(), samples.end(), Touches), samples.end());
        Hover_(who, std::move(samples));
    }
}

void OneWriter::Up(Source who, std::vector<InputSample> samples)
{
    if (!IsWriting(who)) {
        return;
    }
    if (samples.empty()) {
        samples.push_back(last);
    }
    samples.back().pressure = 0;
    Write_(who, std::move(samples));
}

void OneWriter::Leave(Source who)
{
    Up(who, {});
    if (hovering == who) {
        hovering.reset();
        HandOver_(who, {last}, false);
    }
}

void OneWriter::Cancel(Source who)
{
    if (hovering == who) {
        hovering.reset();
    }
    if (IsWriting(who)) {
        writer.reset();
        last.pressure = 0;
        HandOver_(who, {last}, true);
    }
}

void OneWriter::End()
{
    if (writer) {
        Up(*writer, {});
    } else if (hovering) {
        Leave(*hovering);
    }
}

void OneWriter::Write_(Source who, std::vector<InputSample> samples)
{
    const auto lift = std::find_if_not(samples.begin(), samples.end(), Touches);
    if (lift != samples.end()) {
        samples.erase(lift + 1, samples.end());
        writer.reset();
    }
    HandOver_(who, std::move(samples), false);
}

void OneWriter::Hover_(Source who, std::vector<InputSample> samples)
{
    if (!samples.empty()) {
        hovering = who;
        HandOver_(who, std::move(samples), false);
    }
}

// Last of all: whoever takes it may end the stroke or hide the window.
void OneWriter::HandOver_(Source who, std::vector<InputSample> samples, bool isCancelled)
{
    if (samples.empty()) {
        return;
    }
    last = samples.back();
    take({who, std::move(samples), isCancelled});
}

} // namespace lumora_pen
