// The settings and their file: read at the start, kept soon after a change, read again when a person has
// edited them.
#pragma once

#include "settings/settings_file.h"

#include <cstdint>

namespace lumora_pen {

class SettingsStore {
public:
    explicit SettingsStore(std::filesystem::path settingsFile) : file(std::move(settingsFile)) {}

    // What could not be read, one line each for a person.
    std::vector<std::string> Load();

    const Settings& Get() const { return settings; }
    void Set(const Settings& changed);

    // Writes what has changed, a moment after the last change. A reason when that fails, told once for each
    // failure.
    std::optional<std::string> KeepWhenDue(std::uint32_t now);
    std::optional<std::string> Keep();
    std::optional<std::string> KeepAnyway(); // also when nothing has changed

    // True when somebody else has written the file since it was read or written here, and is done: nothing
    // has happened to it between two calls.
    bool WasEdited();

    // For an edited file: a text that cannot be understood changes nothing. What could not be read, one line
    // each for a person; nothing when the file cannot be opened, as while an editor has it: ask again later.
    std::optional<std::vector<std::string>> LoadEdited();

    const std::filesystem::path& File() const { return file; }
    bool IsNew() const { return isNew; } // there was no file at the start

private:
    void Take_(SettingsLoad& load);
    void RememberTime_();
    bool HasOtherTime_() const;

    std::filesystem::path file;
    Settings settings;
    std::string text;                                    // of the file, for what this version does not know
    std::filesystem::file_time_type time;                // when it was read or written here
    std::optional<std::filesystem::file_time_type> seen; // when somebody else wrote it
    bool isNew = false;
    bool maySave = true;
    bool hasChanged = false;
    std::optional<std::uint32_t> changedAt;
};

} // namespace lumora_pen
