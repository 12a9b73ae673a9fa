// Reads foreign text as JSON within limits.
#include "settings/json_object.h"

#include "settings/settings_text.h"

#include <algorithm>

namespace lumora_pen {

namespace {

// The library copies and writes what is nested by calling itself, so the depth is looked at beforehand.
bool IsTooDeep(std::string_view text)
{
    std::size_t depth = 0;
    bool isInString = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        if (isInString && letter == '\\') {
            ++i;
        } else if (letter == '"') {
            isInString = !isInString;
        } else if (!isInString && (letter == '{' || letter == '[')) {
            if (++depth > MostSettingsDepth) {
                return true;
            }
        } else if (!isInString && (letter == '}' || letter == ']') && depth > 0) {
            --depth;
        }
    }
    return false;
}

// The library counts bytes from 1, and the end of the text is one more than there are.
std::string LineOf(std::string_view text, std::size_t byte)
{
    const std::string_view before = text.substr(0, std::min(byte > 0 ? byte - 1 : 0, text.size()));
    return std::to_string(std::count(before.begin(), before.end(), '\n') + 1);
}

JsonObject Refused(std::string reason) { return {Json::object(), std::move(reason)}; }

} // namespace

JsonObject ParseJsonObject(std::string_view text)
{
    if (text.empty()) {
        return Refused("it is empty");
    }
    if (text.size() > MostSettingsBytes) {
        return Refused("it is larger than " + std::to_string(MostSettingsBytes) + " bytes");
    }
    if (IsTooDeep(text)) {
        return Refused("it is nested more than " + std::to_string(MostSettingsDepth) + " levels deep");
    }
    try {
        Json value = Json::parse(text);
        return value.is_object() ? JsonObject{std::move(value), {}} : Refused("it is no JSON object");
    } catch (const Json::parse_error& error) {
        return Refused("line " + LineOf(text, error.byte) + " is no JSON");
    } catch (const Json::exception&) {
        return Refused("it holds a number that is too large");
    }
}

const Json* FindMember(const Json& object, std::string_view name)
{
    const auto found = object.find(std::string(name));
    return found == object.end() ? nullptr : &*found;
}

} // namespace lumora_pen
