// The writer of InkML recordings.
#include "inkml.h"
#include "number_text.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string_view>

namespace lumora::replay {

namespace {

constexpr std::string_view Device = R"(units="dev")";

using Samples = std::vector<RecordedSample>;

bool HasAngle(const RecordedSample& sample) { return sample.azimuth != 0 || sample.altitude != 0; }

class InkmlWriter {
public:
    InkmlWriter(const Recording& written, std::ostream& stream)
        : recording(written), output(stream), samples(written.samples),
          withAngles(std::any_of(samples.begin(), samples.end(), HasAngle))
    {
    }

    void Write()
    {
        WriteDefinitions_();
        for (auto begin = samples.begin(); begin != samples.end();) {
            const auto end = EndOfTrace_(begin);
            WriteTrace_(begin, end);
            begin = end;
        }
        output << "</ink>\n";
    }

private:
    void WriteDefinitions_()
    {
        output << R"(<?xml version="1.0" encoding="UTF-8"?>
<ink xmlns="http://www.w3.org/2003/InkML">
  <definitions>
    <timestamp xml:id="origin"/>
    <inkSource xml:id="pen">
      <traceFormat>
)";
        WriteChannel_("X", &RecordedSample::x, Device);
        WriteChannel_("Y", &RecordedSample::y,
                      (recording.yUpwards ? R"(orientation="-ve" )" : "") + std::string(Device));
        WritePressureChannel_();
        WriteChannel_("T", &RecordedSample::time, R"(units="ms" respectTo="#origin")");
        if (withAngles) {
            output << R"(        <channel name="OA" type="decimal" units="deg"/>
        <channel name="OE" type="decimal" units="deg"/>
)";
        }
        output << R"(      </traceFormat>
    </inkSource>
    <context xml:id="recording" inkSourceRef="#pen"/>
  </definitions>
)";
    }

    void WriteChannel_(std::string_view name, double RecordedSample::*value, std::string_view attributes)
    {
        const bool whole = std::all_of(samples.begin(), samples.end(), [value](const RecordedSample& sample) {
            return sample.*value == std::trunc(sample.*value);
        });
        output << R"(        <channel name=")" << name << R"(" type=")" << (whole ? "integer" : "decimal")
               << "\" " << attributes << "/>\n";
    }

    // What is full is not said of pressures that go beyond it: they are told again by the user.
    void WritePressureChannel_()
    {
        const bool within = std::all_of(samples.begin(), samples.end(), [](const RecordedSample& sample) {
            return sample.pressure <= FullPressure;
        });
        WriteChannel_("F", &RecordedSample::pressure,
                      (within ? R"(min="0" max="32767" )" : R"(min="0" )") + std::string(Device));
    }

    // Samples of one kind; a stroke ends at a long pause too.
    Samples::const_iterator EndOfTrace_(Samples::const_iterator begin) const
    {
        const auto endsAt = [](const RecordedSample& sample, const RecordedSample& next) {
            return sample.touches != next.touches ||
                   (sample.touches && next.time - sample.time > StrokeGapMs);
        };
        const auto last = std::adjacent_find(begin, samples.end(), endsAt);
        return last == samples.end() ? last : last + 1;
    }

    void WriteTrace_(Samples::const_iterator begin, Samples::const_iterator end)
    {
        output << R"(  <trace contextRef="#recording" type=")" << (begin->touches ? "penDown" : "penUp")
               << "\">\n";
        for (auto sample = begin; sample != end; ++sample) {
            output << "    " << NumberText(sample->x) << ' ' << NumberText(sample->y) << ' '
                   << NumberText(sample->pressure) << ' ' << NumberText(sample->time);
            if (withAngles) {
                output << ' ' << NumberText(sample->azimuth / TenthsPerDegree) << ' '
                       << NumberText(sample->altitude / TenthsPerDegree);
            }
            output << (sample + 1 == end ? "\n" : ",\n");
        }
        output << "  </trace>\n";
    }

    const Recording& recording;
    std::ostream& output;
    const Samples& samples;
    bool withAngles;
};

} // namespace

void WriteInkml(const Recording& recording, std::ostream& output) { InkmlWriter(recording, output).Write(); }

} // namespace lumora::replay
