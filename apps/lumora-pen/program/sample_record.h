// Keeps what is written, for a file that lumora-replay plays.
#pragma once

#include "input/input.h"

#include <iosfwd>
#include <memory>

namespace lumora_pen {

class SampleRecord {
public:
    SampleRecord();
    ~SampleRecord();
    SampleRecord(SampleRecord&&) noexcept;
    SampleRecord& operator=(SampleRecord&&) noexcept;

    // Up to the most that a recording can hold; what comes later is left out.
    void Add(const std::vector<InputSample>& samples);

    // In screen pixels and milliseconds. A recording of nothing is one too.
    void Write(std::ostream& output) const;

private:
    struct Kept;
    std::unique_ptr<Kept> kept;
};

} // namespace lumora_pen
