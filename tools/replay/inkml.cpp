// The reader of InkML recordings: finds the traces, and the format that each of them has.
#include "inkml.h"
#include "ink_samples.h"
#include "number_text.h"
#include "recording_fault.h"

#include <cmath>
#include <istream>
#include <map>
#include <vector>

namespace lumora::replay {

namespace {

// What a context says of the traces in it.
struct InkSource {
    InkFormat format = PlainInkFormat();
    double stepMs = DefaultInkStepMs;
};

std::string IdOf(const XmlEvent& element)
{
    const std::string* id = element.Find("xml:id");
    id = id != nullptr ? id : element.Find("id");
    return id != nullptr ? *id : std::string();
}

InkTrace::Type TypeOf(const XmlEvent& trace)
{
    const std::string* type = trace.Find("type");
    if (type == nullptr || *type == "penDown") {
        return InkTrace::Type::PenDown;
    }
    if (*type == "penUp") {
        return InkTrace::Type::PenUp;
    }
    if (*type == "indeterminate") {
        return InkTrace::Type::Indeterminate;
    }
    throw RecordingFault(trace.line,
                         "the type of a trace must be penDown, penUp or indeterminate, not " + Quoted(*type));
}

class InkmlReader {
public:
    InkmlReader(std::string_view text, std::optional<TimeUnit> told) : xml(text), samples(told) {}

    Recording Read()
    {
        const XmlEvent root = xml.Next();
        if (root.name != "ink") {
            throw RecordingFault(root.line,
                                 "the outermost element is " + Quoted(root.name) + " instead of \"ink\"");
        }
        space = root.space;
        ReadGroups_();
        const std::size_t lastLine = xml.Next().line;
        Recording recording = samples.Finish();
        if (recording.samples.empty()) {
            throw RecordingFault(lastLine, "the file has no trace with samples");
        }
        return recording;
    }

private:
    using Sources = std::map<std::string, InkSource>;

    static void Keep_(Sources& sources, const XmlEvent& element, const InkSource& source)
    {
        if (const std::string id = IdOf(element); !id.empty()) {
            sources[id] = source;
        }
    }

    // The element that an attribute refers to; null where there is no such attribute.
    static const InkSource* Referred_(const Sources& sources, const XmlEvent& element,
                                      const std::string& attribute)
    {
        const std::string* reference = element.Find(attribute);
        if (reference == nullptr) {
            return nullptr;
        }
        const auto found = sources.find(reference->substr(reference->starts_with('#') ? 1 : 0));
        if (found == sources.end()) {
            throw RecordingFault(element.line, attribute + " refers to " + Quoted(*reference) +
                                                   ", which no element above has for its id");
        }
        return &found->second;
    }

    // An element that may hold traces.
    struct Group {
        InkSource current;
        bool defining = false; // there are only things to refer to
    };

    void ReadGroups_()
    {
        std::vector<Group> open(1);
        while (!open.empty()) {
            const XmlEvent event = xml.Next();
            if (event.kind == XmlEvent::Kind::End) {
                open.pop_back();
            } else if (event.kind == XmlEvent::Kind::Start) {
                ReadChild_(event, event.space == space ? event.name : std::string(), open);
            }
        }
    }

    void ReadChild_(const XmlEvent& event, const std::string& name, std::vector<Group>& open)
    {
        Group& group = open.back();
        if (name == "definitions") {
            open.push_back({group.current, true});
        } else if (name == "traceGroup") {
            open.push_back({ContextOf_(event, group.current), group.defining});
        } else if (name == "trace" && !group.defining) {
            ReadTrace_(event, ContextOf_(event, group.current));
        } else if (name == "context" || name == "inkSource" || name == "traceFormat") {
            const InkSource said = name == "context"     ? ReadContext_(event, group.current)
                                   : name == "inkSource" ? ReadInkSource_(event, group.current)
                                                         : ReadFormat_(event, group.current);
            // Outside of the definitions it holds for the traces that follow.
            group.current = group.defining ? group.current : said;
            chosen = chosen || !group.defining;
        } else {
            xml.SkipElement();
        }
    }

    InkSource ContextOf_(const XmlEvent& element, const InkSource& current) const
    {
        if (const InkSource* context = Referred_(contexts, element, "contextRef")) {
            return *context;
        }
        // Programs define a format and forget to refer to it.
        return !chosen && formatCount == 1 ? onlyFormat : current;
    }

    // These three begin with what they inherit.
    InkSource ReadFormat_(const XmlEvent& element, InkSource source)
    {
        source.format = ReadInkFormat(xml, space);
        Keep_(formats, element, source);
        onlyFormat = source;
        ++formatCount;
        return source;
    }

    InkSource ReadInkSource_(const XmlEvent& element, InkSource source)
    {
        for (XmlEvent event = xml.Next(); event.kind != XmlEvent::Kind::End; event = xml.Next()) {
            if (IsStart_(event, "traceFormat")) {
                source = ReadFormat_(event, source);
                continue;
            }
            if (IsStart_(event, "sampleRate")) {
                source.stepMs = StepOf_(event).value_or(source.stepMs);
            }
            SkipIfStart_(event);
        }
        Keep_(inkSources, element, source);
        return source;
    }

    InkSource ReadContext_(const XmlEvent& element, const InkSource& inherited)
    {
        InkSource source = ReadReferences_(element, inherited);
        for (XmlEvent event = xml.Next(); event.kind != XmlEvent::Kind::End; event = xml.Next()) {
            if (IsStart_(event, "traceFormat")) {
                source = ReadFormat_(event, source);
            } else if (IsStart_(event, "inkSource")) {
                source = ReadInkSource_(event, source);
            } else {
                SkipIfStart_(event);
            }
        }
        Keep_(contexts, element, source);
        return source;
    }

    bool IsStart_(const XmlEvent& event, std::string_view name) const
    {
        return event.kind == XmlEvent::Kind::Start && event.space == space && event.name == name;
    }

    void SkipIfStart_(const XmlEvent& event)
    {
        if (event.kind == XmlEvent::Kind::Start) {
            xml.SkipElement();
        }
    }

    InkSource ReadReferences_(const XmlEvent& context, const InkSource& inherited) const
    {
        const InkSource* base = Referred_(contexts, context, "contextRef");
        InkSource source = base != nullptr ? *base : inherited;
        if (const InkSource* inkSource = Referred_(inkSources, context, "inkSourceRef")) {
            source = *inkSource;
        }
        if (const InkSource* format = Referred_(formats, context, "traceFormatRef")) {
            source.format = format->format;
        }
        return source;
    }

    static std::optional<double> StepOf_(const XmlEvent& sampleRate)
    {
        constexpr double MsPerSecond = 1000;
        const std::optional<double> rate = NumberAttribute(sampleRate, "value");
        return rate && *rate > 0 ? std::optional(MsPerSecond / *rate) : std::nullopt;
    }

    void ReadTrace_(const XmlEvent& element, const InkSource& source)
    {
        InkTrace trace;
        trace.type = TypeOf(element);
        trace.continues = Continues_(element);
        trace.beginMs = TimeOffset_(element);
        trace.stepMs = source.stepMs;
        trace.format = source.format;
        lastTrace = IdOf(element);

        InkText text;
        for (XmlEvent event = xml.Next(); event.kind != XmlEvent::Kind::End; event = xml.Next()) {
            if (event.kind == XmlEvent::Kind::Text) {
                text.Append(event.text, event.line);
            }
            SkipIfStart_(event);
        }
        if (const auto reason = samples.BeginTrace(std::move(trace))) {
            throw RecordingFault(element.line, *reason);
        }
        ReadInkPoints(text, source.format, [this](const InkPoint& point) { return samples.Take(point); });
    }

    static std::optional<double> TimeOffset_(const XmlEvent& trace)
    {
        const std::optional<double> offset = NumberAttribute(trace, "timeOffset");
        if (offset && std::abs(*offset) > MaxTime) {
            throw RecordingFault(trace.line, "the timeOffset of a trace must be " + NumberText(-MaxTime) +
                                                 " to " + NumberText(MaxTime));
        }
        return offset;
    }

    // Only a trace that stands right behind the one it continues can go on with its stroke.
    bool Continues_(const XmlEvent& trace) const
    {
        const std::string* part = trace.Find("continuation");
        if (part == nullptr || *part == "begin") {
            return false;
        }
        if (*part != "middle" && *part != "end") {
            throw RecordingFault(
                trace.line, "the continuation of a trace must be begin, middle or end, not " + Quoted(*part));
        }
        const std::string* prior = trace.Find("priorRef");
        return prior == nullptr || *prior == "#" + lastTrace || *prior == lastTrace;
    }

    XmlReader xml;
    InkSamples samples;
    std::string space;
    Sources contexts = {{"DefaultContext", {}}};
    Sources inkSources;
    Sources formats;
    std::string lastTrace;
    InkSource onlyFormat;
    std::size_t formatCount = 0;
    bool chosen = false; // a format or context stands outside of the definitions
};

// Nothing where there is more than `maxBytes`.
std::optional<std::string> ReadWhole(std::istream& input, std::size_t maxBytes)
{
    constexpr std::size_t ChunkBytes = 1U << 16U;
    std::string text;
    std::string chunk(ChunkBytes, '\0');
    while (input.read(chunk.data(), ChunkBytes) || input.gcount() != 0) {
        text.append(chunk, 0, static_cast<std::size_t>(input.gcount()));
        if (text.size() > maxBytes) {
            return std::nullopt;
        }
    }
    return text;
}

} // namespace

RecordingResult ReadInkml(std::istream& input, std::optional<TimeUnit> told, std::size_t maxBytes)
{
    const std::optional<std::string> text = ReadWhole(input, maxBytes);
    if (input.bad()) {
        return RecordingError{0, "the file cannot be read"};
    }
    if (!text) {
        return RecordingError{0, "the file is larger than " + std::to_string(maxBytes) + " bytes"};
    }
    const std::size_t mark = text->starts_with(Utf8Mark) ? Utf8Mark.size() : 0;
    try {
        return InkmlReader(std::string_view(*text).substr(mark), told).Read();
    } catch (const RecordingFault& fault) {
        return RecordingError{fault.line, fault.what()};
    }
}

} // namespace lumora::replay
