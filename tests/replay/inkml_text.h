// InkML texts as tests write them, and what is read from them.
#pragma once

#include "inkml.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace lumora::replay {

inline RecordingResult ReadInkmlText(const std::string& text, std::optional<TimeUnit> told = std::nullopt)
{
    std::istringstream input(text);
    return ReadInkml(input, told);
}

inline Recording RecordingOf(const std::string& text, std::optional<TimeUnit> told = std::nullopt)
{
    const RecordingResult result = ReadInkmlText(text, told);
    if (const auto* error = std::get_if<RecordingError>(&result)) {
        ADD_FAILURE() << "line " << error->line << ": " << error->reason;
        return {};
    }
    return std::get<Recording>(result);
}

// "<traceFormat>" with the channels of these names, and what follows each name as further attributes.
inline std::string Format(const std::vector<std::string>& channels)
{
    std::string text = "<traceFormat>";
    for (const std::string& channel : channels) {
        const std::size_t blank = channel.find(' ');
        text += "<channel name='" + channel.substr(0, blank) + "'" +
                (blank == std::string::npos ? "" : channel.substr(blank)) + "/>";
    }
    return text + "</traceFormat>";
}

inline std::string Ink(const std::string& content) { return "<ink>" + content + "</ink>"; }

inline std::string Trace(const std::string& points) { return "<trace>" + points + "</trace>"; }

} // namespace lumora::replay
