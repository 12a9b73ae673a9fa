// The writer of InkML recordings.
#include "inkml.h"
#include "number_text.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string_view>

namespace lumora::replay {

namespace {

constexpr double TenthsPerDegree = 10;

using Samples = std::vector<RecordedSample>;

class InkmlWriter {
public:
    InkmlWriter(const Recording& written, std::ostream& stream)
        : recording(written), output(stream), samples(written.samples)
    {
        withAngles = std::any_of(samples.begin(), samples.end(),
                                 [](const RecordedSample& s) { return s.azimuth != 0 || s.altitude != 0; });
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
        output << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                  "<ink xmlns=\"http://www.w3.org/2003/InkML\">\n"
                  "  <definitions>\n"
                  "    <timestamp xml:id=\"origin\"/>\n"
                  "    <inkSource xml:id=\"pen\">\n"
                  "      <traceFormat>\n";
        WriteChannel_("X", &RecordedSample::x, "units=\"dev\"");
        WriteChannel_("Y", &RecordedSample::y,
                      recording.yUpwards ? "orientation=\"-ve\" units=\"dev\"" : "units=\"dev\"");
        WritePressureChannel_();
        WriteChannel_("T", &RecordedSample::time, "units=\"ms\" respectTo=\"#origin\"");
        if (withAngles) {
            output << "        <channel name=\"OA\" type=\"decimal\" units=\"deg\"/>\n"
                      "        <channel name=\"OE\" type=\"decimal\" units=\"deg\"/>\n";
        }
        output << "      </traceFormat>\n"
                  "    </inkSource>\n"
                  "    <context xml:id=\"recording\" inkSourceRef=\"#pen\"/>\n"
                  "  </definitions>\n";
    }

    void WriteChannel_(std::string_view name, double RecordedSample::*value, std::string_view attributes)
    {
        const bool whole = std::all_of(samples.begin(), samples.end(), [value](const RecordedSample& sample) {
            return sample.*value == std::trunc(sample.*value);
        });
        output << "        <channel name=\"" << name << "\" type=\"" << (whole ? "integer" : "decimal")
               << "\" " << attributes << "/>\n";
    }

    // What is full is not said of pressures that go beyond it: they are told again by the user.
    void WritePressureChannel_()
    {
        const bool within = std::all_of(samples.begin(), samples.end(), [](const RecordedSample& sample) {
            return sample.pressure <= FullPressure;
        });
        WriteChannel_("F", &RecordedSample::pressure,
                      within ? "min=\"0\" max=\"32767\" units=\"dev\"" : "min=\"0\" units=\"dev\"");
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
        output << "  <trace contextRef=\"#recording\" type=\"" << (begin->touches ? "penDown" : "penUp")
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
    bool withAngles = false;
};

} // namespace

void WriteInkml(const Recording& recording, std::ostream& output) { InkmlWriter(recording, output).Write(); }

} // namespace lumora::replay
