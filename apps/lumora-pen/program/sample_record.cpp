// What is written, as a recording.
#include "program/sample_record.h"

#include "svc.h"

namespace lumora_pen {

void SampleRecord::Add(const std::vector<InputSample>& samples)
{
    constexpr std::uint32_t HalfTheClock = 0x80000000U;
    auto& all = recording.samples;
    for (const InputSample& sample : samples) {
        if (all.size() == lumora::replay::MaxSampleCount) {
            return;
        }
        // A difference outlives the clock's wrap. Pens and mice have stamps of their own, and time must not
        // run back.
        const std::uint32_t passed = all.empty() ? 0 : sample.time - last;
        if (passed < HalfTheClock) {
            time += passed;
            last = sample.time;
        }
        lumora::replay::RecordedSample recorded;
        recorded.x = sample.x;
        recorded.y = sample.y;
        recorded.time = time;
        recorded.pressure = sample.pressure;
        recorded.touches = sample.pressure > 0;
        all.push_back(recorded);
    }
}

void SampleRecord::Write(std::ostream& output) const { lumora::replay::WriteSvc(recording, output); }

} // namespace lumora_pen
