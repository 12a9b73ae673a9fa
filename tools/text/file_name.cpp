// Names of files as UTF-8.
#include "text/file_name.h"

#include <exception>

namespace lumora::text {

std::filesystem::path PathOf(std::string_view utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string Utf8Of(const std::filesystem::path& path)
{
    try {
        const std::u8string text = path.u8string();
        return {text.begin(), text.end()};
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace lumora::text
