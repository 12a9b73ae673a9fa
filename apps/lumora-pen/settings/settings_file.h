// The settings' file: nothing of it is lost by a broken text, a failed write or a program that is killed.
#pragma once

#include "settings/settings.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora_pen {

struct SettingsLoad {
    Settings settings;
    std::vector<std::string> complaints; // one line each, for a person
    std::string text;                    // what was read, for SaveSettings; empty: nothing to keep
    bool isRead = false;                 // `settings` are what the file says
    // False: a file is there that could neither be read nor kept aside, and saving would destroy it.
    bool maySave = true;
};

// A file that is not there gives the defaults without a word, one that cannot be read gives them with one. A
// broken one is kept aside: "pen.json" becomes "pen.broken.json" beside it, or "pen.broken-2.json" and so on.
SettingsLoad LoadSettings(const std::filesystem::path& file);

// All or nothing; missing folders are made. The reason when it failed: one line for a person, and the old
// file is as it was.
std::optional<std::string> SaveSettings(const std::filesystem::path& file, const Settings& settings,
                                        std::string_view previousText);

} // namespace lumora_pen
