// What is written, as a recording.
#include "program/sample_record.h"

#include "svc.h"

namespace lumora_pen {

struct SampleRecord::Kept {
    lumora::replay::Recording recording;
    std::uint32_t last = 0;
    double time = 0;
};

SampleRecord::SampleRecord() : kept(std::make_unique<Kept>()) {}
SampleRecord::~SampleRecord() = default;
SampleRecord::SampleRecord(SampleRecord&&) noexcept = default;
SampleRecord& SampleRecord::operator=(SampleRecord&&) noexcept = default;

void SampleRecord::Add(const std::vector<InputSample>& samples)
{
    constexpr std::uint32_t HalfTheClock = 0x80000000U;
    auto& all = kept->recording.samples;
    for (const InputSample& sample : samples) {
        if (all.size() == lumora::replay::MaxSampleCount) {
            return;
        }
        // A difference outlives the clock's wrap. Pens and mice have stamps of their own, and time must not
        // run back.
        const std::uint32_t passed = all.empty() ? 0 : sample.time - kept->last;
        if (passed < HalfTheClock) {
            kept->time += passed;
            kept->last = sample.time;
        }
        lumora::replay::RecordedSample recorded;
        recorded.x = sample.x;
        recorded.y = sample.y;
        recorded.time = kept->time;
        recorded.pressure = sample.pressure;
        recorded.touches = sample.pressure > 0;
        all.push_back(recorded);
    }
}

void SampleRecord::Write(std::ostream& output) const { lumora::replay::WriteSvc(kept->recording, output); }

} // namespace lumora_pen
