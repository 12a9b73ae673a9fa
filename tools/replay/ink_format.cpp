// Reads the description of an InkML trace's channels.
#include "ink_format.h"
#include "number_text.h"

#include <algorithm>
#include <cmath>

namespace lumora::replay {

namespace {

std::string TextAttribute(const XmlEvent& element, std::string_view name)
{
    const std::string* value = element.Find(name);
    return value != nullptr ? *value : std::string();
}

[[noreturn]] void FailAttribute(const XmlEvent& element, std::string_view name, const std::string& wanted)
{
    throw RecordingFault(element.line, "the attribute " + std::string(name) + " of <" + element.name +
                                           "> must be " + wanted + ", not " +
                                           Quoted(TextAttribute(element, name)));
}

std::optional<double> ReadInitial(const XmlEvent& element, bool boolean)
{
    const std::string text = TextAttribute(element, "default");
    if (!boolean) {
        return NumberAttribute(element, "default");
    }
    if (text == "T" || text == "true" || text == "1") {
        return 1;
    }
    if (!text.empty() && text != "F" && text != "false" && text != "0") {
        FailAttribute(element, "default", "T or F");
    }
    return 0;
}

InkChannel ReadChannel(const XmlEvent& element, bool intermittent)
{
    InkChannel channel;
    channel.name = TextAttribute(element, "name");
    if (channel.name.empty()) {
        throw RecordingFault(element.line, "a channel has no name");
    }
    const std::string type = TextAttribute(element, "type");
    if (!type.empty() && type != "integer" && type != "decimal" && type != "double" && type != "boolean") {
        FailAttribute(element, "type", "integer, decimal, double or boolean");
    }
    const std::string orientation = TextAttribute(element, "orientation");
    if (!orientation.empty() && orientation != "+ve" && orientation != "-ve") {
        FailAttribute(element, "orientation", "+ve or -ve");
    }
    channel.boolean = type == "boolean";
    channel.intermittent = intermittent;
    channel.reversed = orientation == "-ve";
    channel.fromCommonOrigin = element.Find("respectTo") != nullptr;
    channel.units = TextAttribute(element, "units");
    channel.min = NumberAttribute(element, "min");
    channel.max = NumberAttribute(element, "max");
    if (channel.max && *channel.max <= channel.min.value_or(0) && channel.name == "F") {
        FailAttribute(element, "max", "more than min");
    }
    channel.initial = intermittent ? ReadInitial(element, channel.boolean) : std::nullopt;
    return channel;
}

void AddChannel(std::vector<InkChannel>& channels, InkChannel channel, std::size_t line)
{
    const auto sameName = [&channel](const InkChannel& other) { return other.name == channel.name; };
    if (std::any_of(channels.begin(), channels.end(), sameName)) {
        throw RecordingFault(line, "the trace format has two channels " + Quoted(channel.name));
    }
    channels.push_back(std::move(channel));
}

} // namespace

std::optional<double> NumberAttribute(const XmlEvent& element, std::string_view name)
{
    const std::string* text = element.Find(name);
    if (text == nullptr) {
        return std::nullopt;
    }
    const std::optional<double> number = ParseNumber(*text);
    if (!number || !std::isfinite(*number)) {
        FailAttribute(element, name, "a number");
    }
    return number;
}

std::optional<std::size_t> InkFormat::Find(std::string_view name) const
{
    const auto found = std::find_if(channels.begin(), channels.end(),
                                    [name](const InkChannel& channel) { return channel.name == name; });
    return found != channels.end() ? std::optional(static_cast<std::size_t>(found - channels.begin()))
                                   : std::nullopt;
}

std::size_t InkFormat::RegularCount() const
{
    const auto regular = std::count_if(channels.begin(), channels.end(),
                                       [](const InkChannel& channel) { return !channel.intermittent; });
    return static_cast<std::size_t>(regular);
}

std::string InkFormat::Names() const
{
    std::string names;
    for (const InkChannel& channel : channels) {
        names += (names.empty() ? "" : " ") + channel.name;
    }
    return names;
}

InkFormat PlainInkFormat()
{
    InkFormat format;
    for (const char name : {'X', 'Y'}) {
        format.channels.emplace_back().name = std::string(1, name);
    }
    return format;
}

InkFormat ReadInkFormat(XmlReader& xml, const std::string& space)
{
    InkFormat format;
    bool intermittent = false;
    for (;;) {
        const XmlEvent event = xml.Next();
        if (event.kind == XmlEvent::Kind::End) {
            if (!intermittent) {
                break;
            }
            intermittent = false;
        } else if (event.kind == XmlEvent::Kind::Start) {
            const std::string name = event.space == space ? event.name : std::string();
            if (name == "intermittentChannels" && !intermittent) {
                intermittent = true;
                continue;
            }
            if (name == "channel") {
                AddChannel(format.channels, ReadChannel(event, intermittent), event.line);
            }
            xml.SkipElement();
        }
    }
    std::stable_partition(format.channels.begin(), format.channels.end(),
                          [](const InkChannel& channel) { return !channel.intermittent; });
    return format;
}

} // namespace lumora::replay
