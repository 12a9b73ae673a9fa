// When the settings' file is read and written.
#include "program/settings_store.h"

#include <utility>

namespace lumora_pen {

namespace {

// A slider's way is one change.
constexpr std::uint32_t RestMs = 500;

} // namespace

std::vector<std::string> SettingsStore::Load()
{
    std::error_code error;
    isNew = !std::filesystem::exists(file, error);
    SettingsLoad load = LoadSettings(file);
    Take_(load);
    if (!load.isRead && load.maySave && !load.complaints.empty()) {
        load.complaints.emplace_back("The usual settings hold.");
    }
    return std::move(load.complaints);
}

void SettingsStore::Take_(SettingsLoad& load)
{
    settings = load.settings;
    text = std::move(load.text);
    maySave = load.maySave;
    hasChanged = false;
    changedAt.reset();
    RememberTime_();
}

void SettingsStore::Set(const Settings& changed)
{
    if (!(changed == settings)) {
        settings = changed;
        hasChanged = true;
        changedAt.reset();
    }
}

std::optional<std::string> SettingsStore::KeepWhenDue(std::uint32_t now)
{
    if (hasChanged && !changedAt) {
        changedAt = now;
    }
    const bool isDue = hasChanged && now - *changedAt >= RestMs;
    return isDue && !HasOtherTime_() ? Keep() : std::nullopt; // an edited file is read, not written over
}

std::optional<std::string> SettingsStore::Keep() { return hasChanged ? KeepAnyway() : std::nullopt; }

std::optional<std::string> SettingsStore::KeepAnyway()
{
    hasChanged = false; // also when it fails: the next change tries again
    if (!maySave) {
        return std::nullopt; // which Load has told
    }
    std::optional<std::string> failure = SaveSettings(file, settings, text);
    if (!failure) {
        text = WriteSettings(settings, text);
        RememberTime_();
    }
    return failure;
}

bool SettingsStore::HasOtherTime_() const
{
    std::error_code error;
    const auto now = std::filesystem::last_write_time(file, error);
    return !error && now != time;
}

bool SettingsStore::WasEdited()
{
    if (!HasOtherTime_()) {
        seen.reset();
        return false;
    }
    std::error_code error;
    const auto now = std::filesystem::last_write_time(file, error);
    return std::exchange(seen, now) == now;
}

std::optional<std::vector<std::string>> SettingsStore::LoadEdited()
{
    SettingsLoad load = LoadSettings(file);
    if (load.isRead) {
        Take_(load);
    } else if (load.complaints.empty() || !load.maySave) {
        return std::nullopt; // gone between two looks, or not to be opened
    } else {
        load.complaints.emplace_back("The settings stay as they were.");
        hasChanged = true; // for the file is gone
        RememberTime_();
    }
    return std::move(load.complaints);
}

void SettingsStore::RememberTime_()
{
    std::error_code error;
    time = std::filesystem::last_write_time(file, error);
}

} // namespace lumora_pen
