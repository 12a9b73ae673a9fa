// One writes at a time: samples of two would be one torn stroke, and one of the two is often the palm.
#pragma once

#include "input/input.h"

#include <optional>
#include <vector>

namespace lumora_pen {

// Makes strokes of what pens, fingers and the mouse report, and hands them out in batches. A stroke begins
// with a sample that touches and always ends with one of pressure 0. Samples come oldest first.
class OneWriter {
public:
    explicit OneWriter(TakeInput take);

    // It has come down. A stroke begins in no other way: who came down while another wrote never writes.
    void Down(Source who, std::vector<InputSample> samples);
    void Move(Source who, std::vector<InputSample> samples); // the writer's, or of a pen that hovers
    void Up(Source who, std::vector<InputSample> samples);   // none: at the last place

    void Leave(Source who); // out of reach: it hovers no more
    void Cancel(Source who);
    void End(); // of the stroke in the making, whoever writes it

    bool IsWriting(Source who) const { return writer == who; }
    bool IsFree() const { return !writer.has_value(); }

private:
    void Write_(Source who, std::vector<InputSample> samples);
    void Hover_(Source who, std::vector<InputSample> samples);
    void HandOver_(Source who, std::vector<InputSample> samples, bool isCancelled);

    TakeInput take;
    std::optional<Source> writer;
    std::optional<Source> hovering;
    InputSample last; // of the one that writes or hovers
};

} // namespace lumora_pen
