// Makes strokes of what pens and mice say, as the library wants them: one writer at a time, every stroke
// ended.
#pragma once

#include "input/input.h"

#include <cstdint>
#include <optional>

namespace lumora_pen {

// What a batch comes to, oldest first. Pressure 0 ends the stroke before it or hovers.
struct StrokeSteps {
    std::vector<InputSample> samples;
    bool begins = false;      // a stroke, with the first touching sample
    bool ends = false;        // the stroke in the making
    bool isCancelled = false; // and was not meant
};

class StrokeFeed {
public:
    // Hover samples are left out unless somebody looks at the cross-hair.
    void SetHover(bool isWanted) { wantsHover = isWanted; }

    // Who comes while another one writes is left out: samples of two would be one torn stroke.
    StrokeSteps Take(const InputBatch& batch);

    // Ends the stroke in the making, when there is one, where it is.
    StrokeSteps End(std::uint32_t now);

    // The last sample of the stroke in the making once more, as of now: a pen that rests says nothing, but
    // its ink ages, and the library draws nothing from a point that has gone.
    StrokeSteps Rest(std::uint32_t now) const;

    bool IsWriting() const { return writer.has_value(); }

private:
    void Add_(const InputSample& sample, Source source, StrokeSteps& steps);

    std::optional<Source> writer;
    InputSample last; // of the writer
    bool wantsHover = false;
};

} // namespace lumora_pen
