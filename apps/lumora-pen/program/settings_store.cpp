// When the settings' file is read and written.
#include "program/settings_store.h"

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
    settings = load.settings;
    text = std::move(load.text);
    maySave = load.maySave;
    hasChanged = false;
    changedAt.reset();
    RememberTime_();
    return std::move(load.complaints);
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
    return hasChanged && now - *changedAt >= RestMs ? Keep() : std::nullopt;
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

bool SettingsStore::WasEdited() const
{
    std::error_code error;
    const auto now = std::filesystem::last_write_time(file, error);
    return !error && now != time;
}

void SettingsStore::RememberTime_()
{
    std::error_code error;
    time = std::filesystem::last_write_time(file, error);
}

} // namespace lumora_pen
