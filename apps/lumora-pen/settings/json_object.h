// A settings file's text as JSON, or why it is none.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace lumora_pen {

// Members keep their order: people read the file too.
using Json = nlohmann::ordered_json;

struct JsonObject {
    Json value;         // an object, empty where there is a reason
    std::string reason; // why the text is none: half a sentence for a person
};

JsonObject ParseJsonObject(std::string_view text);

// The member of that name, or null.
const Json* FindMember(const Json& object, std::string_view name);

} // namespace lumora_pen
