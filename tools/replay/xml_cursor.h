// A place in an XML text: its line, and the smallest pieces that can be read from it.
#pragma once

#include "recording_fault.h"

#include <string>
#include <string_view>

namespace lumora::replay {

inline constexpr std::string_view XmlBlanks = " \t\r\n";

class XmlCursor {
public:
    explicit XmlCursor(std::string_view text) : rest(text) {}

    std::size_t Line() const { return line; }
    bool AtEnd() const { return rest.empty(); }

    bool StartsWith(std::string_view text) const { return rest.starts_with(text); }

    // Steps over `text`; false, and nothing happens, where something else stands.
    bool Skip(std::string_view text);
    bool SkipBlanks(); // whether there were some

    // What stands before the next of these characters, or before the end of the text.
    std::string_view TakeUntilAny(std::string_view characters);

    // What stands before `end`, and steps over that too. `what` names it where the text ends without.
    std::string_view TakeBefore(std::string_view end, std::string_view what);

    std::string_view TakeName();

    // One character or entity reference, from its '&' to its ';'.
    std::string TakeReference();

    [[noreturn]] void Fail(const std::string& reason) const { throw RecordingFault(line, reason); }

private:
    std::string_view Take_(std::size_t length);

    std::string_view rest;
    std::size_t line = 1;
};

bool IsXmlBlank(std::string_view text);

} // namespace lumora::replay
