// What a host, its clock and its log level may do to the ink engine, as values that print as code.
#include "engine/steps.h"

#include <cstddef>
#include <iomanip>
#include <sstream>

namespace zq::LM::test {

namespace {

struct Printer {
    void operator()(const AddSamples& step) const
    {
        out << "AddSamples{{";
        for (const PenData& sample : step.samples) {
            out << "{" << sample.time << "u, " << sample.aux1 << "u, " << sample.x << ", " << sample.y << ", "
                << sample.aux4 << "u, " << sample.pressure << ", " << sample.aux6 << "u, " << sample.aux7
                << "u, " << sample.aux8 << "u}, ";
        }
        out << "}}";
    }
    void operator()(const DrawFrame&) const { out << "DrawFrame{}"; }
    void operator()(const Tick&) const { out << "Tick{}"; }
    void operator()(const MoveClockBy& step) const { out << "MoveClockBy{" << step.milliseconds << "u}"; }
    void operator()(const UseRecord& step) const
    {
        const Params& params = step.params;
        out << "UseRecord{{.reserved0 = " << params.reserved0 << "u, .inkDecayTime = " << params.inkDecayTime
            << "u, .inkColor = " << params.inkColor << "u, .minBrushSize = " << params.minBrushSize
            << "u, .brushSize = " << params.brushSize << "u, .maxPressure = " << params.maxPressure
            << "u, .line = " << +params.line << ", .outline = " << +params.outline
            << ", .cursor = " << +params.cursor << ", .usePressure = " << +params.usePressure
            << ", .useOffset = " << +params.useOffset << ", .zebraMode = " << +params.zebraMode
            << ", .colorPicker = " << +params.colorPicker << ", .reserved31 = " << +params.reserved31 << "}}";
    }
    void operator()(const UseScale& step) const
    {
        out << "UseScale{" << std::setprecision(17) << step.factor << "}"; // INFINITY and NAN by hand
    }
    void operator()(const UseVectorOutline& step) const { out << "UseVectorOutline{" << step.on << "}"; }
    void operator()(const UseScreen& step) const
    {
        out << "UseScreen{" << step.colour << "u, " << step.pickingSetsTheRecord << "}";
    }
    void operator()(const UseLogLevel& step) const { out << "UseLogLevel{" << step.level << "u}"; }
    void operator()(const AskOptions& step) const { out << "AskOptions{" << step.mask << "u}"; }
    void operator()(const ClearLive&) const { out << "ClearLive{}"; }

    std::ostream& out;
};

template <class Sequence> Sequence Without(Sequence sequence, std::size_t first, std::size_t count)
{
    const auto begin = sequence.begin() + static_cast<std::ptrdiff_t>(first);
    const auto left = static_cast<std::size_t>(sequence.end() - begin);
    sequence.erase(begin, begin + static_cast<std::ptrdiff_t>(count < left ? count : left));
    return sequence;
}

// Long runs first, single ones last.
template <class Sequence, class Fails> Sequence Least(Sequence sequence, Fails fails)
{
    for (std::size_t count = sequence.size(); count > 0; count /= 2) {
        for (std::size_t first = 0; first < sequence.size();) {
            Sequence shorter = Without(sequence, first, count);
            if (fails(shorter)) {
                sequence = std::move(shorter);
            } else {
                first += count;
            }
        }
    }
    return sequence;
}

} // namespace

std::string Code(const Steps& steps)
{
    std::ostringstream out;
    out << std::boolalpha;
    for (const Step& step : steps) {
        out << "    ";
        std::visit(Printer{out}, step);
        out << ",\n";
    }
    return out.str();
}

Steps Shortened(Steps steps, const std::function<bool(const Steps&)>& fails)
{
    std::size_t before;
    do {
        before = steps.size();
        steps = Least(steps, fails);
    } while (steps.size() < before);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (auto* const add = std::get_if<AddSamples>(&steps[i])) {
            add->samples = Least(add->samples, [&](const std::vector<PenData>& samples) {
                Steps shorter = steps;
                shorter[i] = AddSamples{samples};
                return fails(shorter);
            });
        }
    }
    return steps;
}

} // namespace zq::LM::test
