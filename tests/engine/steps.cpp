// What a host, its clock and its log level may do to the ink engine, as values that print as code.
#include "engine/steps.h"

#include <cstddef>
#include <iomanip>
#include <sstream>

namespace zq::LM::test {

namespace {

// A scale without a number is left to be written by hand.
class Printer {
public:
    explicit Printer(std::ostream& out) : out(out) { out << std::boolalpha << std::setprecision(17); }

    void operator()(const AddSamples& step) const
    {
        out << "AddSamples{{";
        for (const PenData& sample : step.samples) {
            Put("", sample.time, sample.aux1, sample.x, sample.y, sample.aux4, sample.pressure, sample.aux6,
                sample.aux7, sample.aux8);
            out << ", ";
        }
        out << "}}";
    }
    void operator()(const UseRecord& step) const
    {
        const Params& params = step.params;
        out << "UseRecord{";
        Put("", params.reserved0, params.inkDecayTime, params.inkColor, params.minBrushSize, params.brushSize,
            params.maxPressure, +params.line, +params.outline, +params.cursor, +params.usePressure,
            +params.useOffset, +params.zebraMode, +params.colorPicker, +params.reserved31);
        out << "}";
    }
    void operator()(const DrawFrame&) const { Put("DrawFrame"); }
    void operator()(const Tick&) const { Put("Tick"); }
    void operator()(const ClearLive&) const { Put("ClearLive"); }
    void operator()(const BindAgain&) const { Put("BindAgain"); }
    void operator()(const PassNothing&) const { Put("PassNothing"); }
    void operator()(const MoveClockBy& step) const { Put("MoveClockBy", step.milliseconds); }
    void operator()(const UseScale& step) const { Put("UseScale", step.factor); }
    void operator()(const UseVectorOutline& step) const { Put("UseVectorOutline", step.on); }
    void operator()(const UseScreen& step) const { Put("UseScreen", step.colour, step.pickingSetsTheRecord); }
    void operator()(const UseLogLevel& step) const { Put("UseLogLevel", step.level); }
    void operator()(const AskOptions& step) const { Put("AskOptions", step.mask); }

private:
    template <class... Fields> void Put(const char* name, Fields... fields) const
    {
        out << name << "{";
        [[maybe_unused]] const char* separator = ""; // of steps without fields
        ((out << separator << fields, separator = ", "), ...);
        out << "}";
    }

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
template <class Sequence, class Fails> Sequence Least(Sequence sequence, const Fails& fails)
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
