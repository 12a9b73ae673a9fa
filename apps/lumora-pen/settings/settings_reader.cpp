// Reads the settings file's text leniently: what is wrong keeps its default and is said.
#include "settings/json_object.h"
#include "settings/settings.h"
#include "settings/settings_text.h"
#include "settings/words.h"

#include <algorithm>
#include <cmath>

namespace lumora_pen {

namespace {

constexpr std::size_t MostShown = 60;

// In one line that is not too long, and never ends within a letter.
std::string Shown(const Json& value)
{
    std::string text = value.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (text.size() > MostShown) {
        std::size_t end = MostShown;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
            --end;
        }
        text.resize(end);
        text += "...";
    }
    return text;
}

std::string Within(std::string_view object, std::string_view name)
{
    return std::string(object).append(".").append(name);
}

class Reader {
public:
    explicit Reader(const Json& file) : file(file) {}

    SettingsReading Read()
    {
        Settings& settings = reading.settings;
        ReadVersion_();
        ReadPalette_(settings.palette);
        ReadColour_(settings.colour);
        ReadNumber_(member::Width, LeastWidth, MostWidth, settings.width);
        ReadNumber_(member::TrailLife, LeastLifeMs, MostLifeMs, settings.trailLifeMs);
        ReadBoardLife_(settings.boardLifeMs);
        ReadBackEnd_(settings.backEnd);
        for (const Switch& known : Switches) {
            ReadSwitch_(known.name, settings.*known.isOn);
        }
        ReadHold_(settings.hold);
        ReadKeys_(settings.keys);
        return std::move(reading);
    }

private:
    void Complain_(std::string_view name, const Json& value, std::string_view wanted, std::string_view taken)
    {
        reading.complaints.push_back(Quoted(name) + " cannot be " + Shown(value) + ", only " +
                                     std::string(wanted) + "; it is " + std::string(taken) + " now.");
    }

    void ReadVersion_()
    {
        const Json* const value = FindMember(file, member::Version);
        if (value == nullptr || *value == SettingsVersion) {
            return;
        }
        if (value->is_number() && value->get<double>() > SettingsVersion) {
            reading.complaints.push_back("These settings are of version " + Shown(*value) +
                                         ", newer than this program, which knows version " +
                                         std::to_string(SettingsVersion) +
                                         ": what it does not know is kept and has no effect.");
            return;
        }
        const std::string known = std::to_string(SettingsVersion);
        Complain_(member::Version, *value, known + " or a newer one", known);
    }

    // A number beyond a limit is taken for that limit, and a fraction is rounded: that is nearest to what was
    // meant.
    void ReadNumber_(std::string_view name, int least, int most, int& number)
    {
        const Json* const value = FindMember(file, name);
        if (value == nullptr) {
            return;
        }
        const bool isNumber = value->is_number();
        const double given = isNumber ? value->get<double>() : 0;
        if (isNumber) {
            number = static_cast<int>(std::clamp(std::round(given), double{1} * least, double{1} * most));
        }
        if (!isNumber || number != given) {
            Complain_(name, *value,
                      "a whole number from " + std::to_string(least) + " to " + std::to_string(most),
                      std::to_string(number));
        }
    }

    void ReadBoardLife_(int& life)
    {
        ReadNumber_(member::BoardLife, 0, MostLifeMs, life);
        if (life > 0 && life < LeastLifeMs) {
            life = LeastLifeMs;
            Complain_(member::BoardLife, file[member::BoardLife],
                      "0, which is for ever, or at least " + std::to_string(LeastLifeMs),
                      std::to_string(life));
        }
    }

    void ReadSwitch_(std::string_view name, bool& isOn)
    {
        const Json* const value = FindMember(file, name);
        if (value != nullptr && value->is_boolean()) {
            isOn = value->get<bool>();
        } else if (value != nullptr) {
            Complain_(name, *value, "true or false", isOn ? "true" : "false");
        }
    }

    void ReadColour_(std::size_t& colour)
    {
        const Json* const value = FindMember(file, member::Colour);
        if (value == nullptr) {
            return;
        }
        // No colour is nearest to another one, so a wrong number is not taken for the limit.
        const double number = value->is_number() ? value->get<double>() : 0;
        if (number >= 1 && number <= ColourCount && number == std::floor(number)) {
            colour = static_cast<std::size_t>(number) - 1;
        } else {
            Complain_(member::Colour, *value, "a whole number from 1 to " + std::to_string(ColourCount),
                      std::to_string(colour + 1));
        }
    }

    void ReadPalette_(std::array<lumora::Colour, ColourCount>& palette)
    {
        const Json* const value = FindMember(file, member::Palette);
        if (value == nullptr) {
            return;
        }
        const std::string wanted = std::to_string(ColourCount) + R"( colours as "#RRGGBB")";
        if (!value->is_array() || value->size() < ColourCount) {
            Complain_(member::Palette, *value, wanted, "filled with the usual colours");
        }
        for (std::size_t i = 0; value->is_array() && i < std::min(value->size(), ColourCount); ++i) {
            const Json& entry = (*value)[i];
            const auto colour = entry.is_string() ? ParseColour(entry.get<std::string>()) : std::nullopt;
            if (colour) {
                palette[i] = *colour;
            } else {
                Complain_(Within(member::Palette, std::to_string(i + 1)), entry, R"(a colour as "#RRGGBB")",
                          Quoted(TextOf(palette[i])));
            }
        }
    }

    void ReadBackEnd_(BackEndName& backEnd)
    {
        const Json* const value = FindMember(file, member::BackEnd);
        if (value == nullptr) {
            return;
        }
        const auto known = value->is_string() ? ParseBackEnd(value->get<std::string>()) : std::nullopt;
        if (known) {
            backEnd = *known;
        } else {
            Complain_(member::BackEnd, *value, R"("composition", "direct2d" or "gdi")",
                      Quoted(TextOf(backEnd)));
        }
    }

    void ReadHold_(HoldKey& hold)
    {
        const Json* const value = FindMember(file, member::Hold);
        if (value == nullptr) {
            return;
        }
        const auto parsed = value->is_string() ? ParseHoldKey(value->get<std::string>()) : std::nullopt;
        if (parsed) {
            hold = *parsed;
        } else {
            Complain_(member::Hold, *value,
                      R"(some of Ctrl, Alt, Shift, Win and a mouse button, such as "Ctrl+RightButton")",
                      Quoted(TextOf(hold)));
        }
    }

    void ReadKeys_(std::array<Hotkey, KeyCommandCount>& keys)
    {
        const Json* const object = FindMember(file, member::Keys);
        if (object == nullptr) {
            return;
        }
        if (!object->is_object()) {
            Complain_(member::Keys, *object, "an object with a key for each name", "the usual keys");
            return;
        }
        for (const KeyDefault& entry : KeyDefaults()) {
            ReadKey_(*object, entry.name, keys[static_cast<std::size_t>(entry.command)]);
        }
        FindSameKeys_(keys);
    }

    void ReadKey_(const Json& object, std::string_view name, Hotkey& key)
    {
        const Json* const value = FindMember(object, name);
        if (value == nullptr) {
            return;
        }
        const auto parsed = value->is_string() ? ParseHotkey(value->get<std::string>()) : std::nullopt;
        if (parsed) {
            key = *parsed;
        } else {
            Complain_(Within(member::Keys, name), *value, R"(a key such as "Ctrl+Alt+B" or "F9", or "off")",
                      Quoted(TextOf(key)));
        }
    }

    // Without a word the system would call the second one taken, as if by another program.
    void FindSameKeys_(const std::array<Hotkey, KeyCommandCount>& keys)
    {
        for (std::size_t later = 1; later < keys.size(); ++later) {
            const auto first =
                std::find(keys.begin(), keys.begin() + static_cast<std::ptrdiff_t>(later), keys[later]);
            const auto earlier = static_cast<std::size_t>(first - keys.begin());
            if (earlier != later && keys[later].key != 0) {
                reading.complaints.push_back(
                    Quoted(Within(member::Keys, KeyDefaults()[earlier].name)) + " and " +
                    Quoted(Within(member::Keys, KeyDefaults()[later].name)) + " are both " +
                    Quoted(TextOf(keys[later])) + ": only one of them can work.");
            }
        }
    }

    const Json& file;
    SettingsReading reading;
};

} // namespace

SettingsReading ReadSettings(std::string_view json)
{
    const JsonObject file = ParseJsonObject(json);
    if (!file.reason.empty()) {
        SettingsReading broken;
        broken.isBroken = true;
        broken.complaints.push_back("The settings cannot be read: " + file.reason + ".");
        return broken;
    }
    return Reader(file.value).Read();
}

} // namespace lumora_pen
