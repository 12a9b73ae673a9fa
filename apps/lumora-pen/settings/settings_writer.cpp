// Writes the settings file's text, around what others have put into it.
#include "settings/json_object.h"
#include "settings/settings.h"
#include "settings/settings_text.h"
#include "settings/words.h"

namespace lumora_pen {

namespace {

// A newer program's version number stays: its members are still there.
void WriteVersion(Json& file)
{
    Json& version = file[member::Version];
    if (!version.is_number() || version.get<double>() < SettingsVersion) {
        version = SettingsVersion;
    }
}

// More colours than ours stay behind them.
void WritePalette(Json& file, const std::array<lumora::Colour, ColourCount>& palette)
{
    Json& array = file[member::Palette];
    if (!array.is_array()) {
        array = Json::array();
    }
    for (std::size_t i = 0; i < palette.size(); ++i) {
        if (i < array.size()) {
            array[i] = TextOf(palette[i]);
        } else {
            array.push_back(TextOf(palette[i]));
        }
    }
}

void WriteKeys(Json& file, const std::array<Hotkey, KeyCommandCount>& keys)
{
    Json& object = file[member::Keys];
    if (!object.is_object()) {
        object = Json::object();
    }
    for (const KeyDefault& entry : KeyDefaults()) {
        object[std::string(entry.name)] = TextOf(keys[static_cast<std::size_t>(entry.command)]);
    }
}

// Indented for people where there is room.
std::string Dumped(const Json& file)
{
    const auto dump = [&file](int indent) {
        return file.dump(indent, ' ', false, Json::error_handler_t::replace) + "\n";
    };
    std::string text = dump(2);
    return text.size() <= MostSettingsBytes ? text : dump(-1);
}

std::string Written(const Settings& settings, Json file)
{
    WriteVersion(file);
    WritePalette(file, settings.palette);
    file[member::Colour] = settings.colour + 1;
    file[member::Width] = settings.width;
    file[member::TrailLife] = settings.trailLifeMs;
    file[member::BoardLife] = settings.boardLifeMs;
    file[member::BackEnd] = TextOf(settings.backEnd);
    for (const Switch& known : Switches) {
        file[std::string(known.name)] = settings.*known.isOn;
    }
    file[member::Hold] = TextOf(settings.hold);
    WriteKeys(file, settings.keys);
    return Dumped(file);
}

} // namespace

std::string WriteSettings(const Settings& settings, std::string_view previous)
{
    std::string text = Written(settings, ParseJsonObject(previous).value);
    // A person's own settings are worth more than what only fills the file, which would be refused the next
    // time.
    return text.size() <= MostSettingsBytes ? text : Written(settings, Json::object());
}

} // namespace lumora_pen
