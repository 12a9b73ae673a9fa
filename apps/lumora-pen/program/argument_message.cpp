// Arguments in one message.
#include "program/argument_message.h"

namespace lumora_pen {

std::string PackArguments(const std::vector<std::string>& arguments)
{
    std::string bytes;
    for (const std::string& argument : arguments) {
        bytes += argument;
        bytes += '\0';
    }
    return bytes;
}

std::optional<std::vector<std::string>> UnpackArguments(std::string_view bytes)
{
    if (bytes.size() > MostArgumentBytes || (!bytes.empty() && bytes.back() != '\0')) {
        return std::nullopt;
    }
    std::vector<std::string> arguments;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\0');
        arguments.emplace_back(bytes.substr(0, end));
        bytes.remove_prefix(end + 1);
    }
    return arguments;
}

} // namespace lumora_pen
