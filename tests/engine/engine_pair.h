// The ink engine beside its reference: both take the same steps, and whatever a host, a callback or a log
// reader sees of one has to be what it sees of the other.
#pragma once

#include "engine/reference_engine.h"
#include "engine/walked_engine.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

namespace zq::LM::test {

template <class Record> auto WordsOf(const Record& record)
{
    std::array<std::uint32_t, sizeof(Record) / sizeof(std::uint32_t)> words;
    std::memcpy(words.data(), &record, sizeof(record));
    return words;
}

template <class Value> void Show(std::ostream& out, const Value& value) { out << value; }
template <class Value, std::size_t Size> void Show(std::ostream& out, const std::array<Value, Size>& values);
template <class Value> void Show(std::ostream& out, const std::vector<Value>& values);

template <class Values> void ShowAll(std::ostream& out, const Values& values)
{
    out << "{ ";
    for (const auto& value : values) {
        Show(out, value);
        out << ' ';
    }
    out << '}';
}

template <class Value, std::size_t Size> void Show(std::ostream& out, const std::array<Value, Size>& values)
{
    ShowAll(out, values);
}

template <class Value> void Show(std::ostream& out, const std::vector<Value>& values)
{
    ShowAll(out, values);
}

template <class Value>
void Compare(std::string& differences, const char* what, const Value& engine, const Value& reference)
{
    if (engine != reference) {
        std::ostringstream text;
        text << what << "\n  of the engine:    ";
        Show(text, engine);
        text << "\n  of the reference: ";
        Show(text, reference);
        differences += text.str() + '\n';
    }
}

class EnginePair {
public:
    EnginePair() { reference.screenColour = engine.calls.screenColour; }

    // What differs after this step, or nothing.
    std::string Take(const Step& step)
    {
        const RecordedLog log;
        reference.calls.clear();
        reference.lines.clear();
        engine.Take(step);
        std::visit([this](const auto& its) { Do(its); }, step);
        Drawing& drawing = engine.drawing;
        std::string differences;
        Compare(differences, "calls", engine.calls.Take(), reference.calls);
        Compare(differences, "samples handed over", Words(engine.calls.penData), Words(reference.penData));
        Compare(differences, "count", drawing.LivePointsNum(), reference.LivePointsNum());
        Compare(differences, "rate", drawing.PenReoprtRate(), reference.PenReoprtRate());
        Compare(differences, "options", drawing.EnabledOptions(engine.mask),
                reference.EnabledOptions(engine.mask));
        Params params{};
        drawing.GetCopiedParams(&params);
        Compare(differences, "record", WordsOf(params), WordsOf(reference.params));
        Compare(differences, "lines", NarrowTexts(log), reference.lines);
        return differences;
    }

    // Of the last step.
    const Calls& MadeCalls() const { return reference.calls; }
    const std::vector<std::string>& WrittenLines() const { return reference.lines; }

private:
    static std::vector<std::array<std::uint32_t, 9>> Words(const std::vector<PenData>& samples)
    {
        std::vector<std::array<std::uint32_t, 9>> words;
        for (const PenData& sample : samples) {
            words.push_back(WordsOf(sample));
        }
        return words;
    }

    static std::vector<std::string> NarrowTexts(const RecordedLog& log)
    {
        std::vector<std::string> texts;
        for (const LogLine& line : log.Lines()) {
            texts.push_back((line.wide ? "wide: " : "") + line.text);
        }
        return texts;
    }

    // Of the reference; what is not named here goes to the engine, the clock and the log, once for both.
    template <class Other> void Do(const Other&) {}
    void Do(const AddSamples& step) { reference.AddPenDataAry(step.samples.data(), step.samples.size()); }
    void Do(const DrawFrame&) { reference.DrawLumoraLines(); }
    void Do(const Tick&) { reference.DeleteOldPenData(); }
    void Do(const UseRecord& step) { reference.params = step.params; }
    void Do(const UseScale& step) { reference.SetScale(step.factor); }
    void Do(const UseVectorOutline& step) { reference.vectorOutline = step.on; }
    void Do(const UseScreen& step)
    {
        reference.screenColour = step.colour;
        reference.pickingSetsTheRecord = step.pickingSetsTheRecord;
    }
    void Do(const ClearLive&) { reference.ClearLivePenData(); }

    WalkedEngine engine;
    ReferenceEngine reference;
};

// What differs after the first step that shows a difference, or nothing. `seen` is told of each step before.
inline std::string Difference(const Steps& steps, const std::function<void(const EnginePair&)>& seen = {})
{
    const LogLevel none(NONE); // and again afterwards
    EnginePair pair;
    for (const Step& step : steps) {
        const std::string differences = pair.Take(step);
        if (!differences.empty()) {
            return differences;
        }
        if (seen) {
            seen(pair);
        }
    }
    return {};
}

// For a person: what differs after the fewest steps that show it, and these as code for a test.
inline std::string DifferenceAndTest(const Steps& steps)
{
    const Steps shortest = Shortened(steps, [](const Steps& some) { return !Difference(some).empty(); });
    return Difference(shortest) + "A test that shows it:\n\nEXPECT_EQ(Difference({\n" + Code(shortest) +
           "}), \"\");";
}

} // namespace zq::LM::test
