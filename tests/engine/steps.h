// What a host, its clock and its log level may do to the ink engine, as values that print as code.
#pragma once

#include "ink/params.h"
#include "ink/pen_data.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace zq::LM::test {

struct AddSamples {
    std::vector<PenData> samples;
};
struct DrawFrame {};
struct Tick {};
struct MoveClockBy {
    std::uint32_t milliseconds; // wraps, and so goes back too
};
struct UseRecord {
    Params params;
};
struct UseScale {
    double factor;
};
struct UseVectorOutline {
    bool on;
};
struct UseScreen {
    std::uint32_t colour;
    bool pickingSetsTheRecord; // as the library's own callback does
};
struct UseLogLevel {
    std::uint32_t level;
};
struct AskOptions {
    std::uint32_t mask;
};
struct ClearLive {};
struct BindAgain {};   // the same callbacks
struct PassNothing {}; // null for a record, for where one is to go and for samples

using Step = std::variant<AddSamples, DrawFrame, Tick, MoveClockBy, UseRecord, UseScale, UseVectorOutline,
                          UseScreen, UseLogLevel, AskOptions, ClearLive, BindAgain, PassNothing>;
using Steps = std::vector<Step>;

// At random, with a liking for the edges of the engine's rules; the same ones for the same seed everywhere.
Steps RandomSteps(std::uint32_t seed, std::size_t count);

// As they stand between the braces of a Steps.
std::string Code(const Steps& steps);

// Leaves out steps and samples for as long as the rest still fails.
Steps Shortened(Steps steps, const std::function<bool(const Steps&)>& fails);

} // namespace zq::LM::test
