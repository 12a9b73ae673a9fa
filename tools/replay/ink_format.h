// What the values of an InkML trace mean.
#pragma once

#include "xml_reader.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::replay {

struct InkChannel {
    std::string name;
    bool boolean = false;
    bool intermittent = false;     // a point may leave it out
    bool reversed = false;         // grows leftwards, or upwards
    bool fromCommonOrigin = false; // a time that does not count from the beginning of its trace
    std::string units;             // empty: not said
    std::optional<double> min;
    std::optional<double> max;
    std::optional<double> initial; // of an intermittent channel, before a point has given it
};

struct InkFormat {
    std::vector<InkChannel> channels; // in the order of a point's values: the intermittent ones come last

    std::optional<std::size_t> Find(std::string_view name) const;
    std::size_t RegularCount() const;
    std::string Names() const; // for messages
};

// X and Y: what a trace holds for which no format is given.
InkFormat PlainInkFormat();

// Reads a traceFormat whose start has been read.
InkFormat ReadInkFormat(XmlReader& xml, const std::string& space);

// The number in an attribute, if the element has it.
std::optional<double> NumberAttribute(const XmlEvent& element, std::string_view name);

} // namespace lumora::replay
