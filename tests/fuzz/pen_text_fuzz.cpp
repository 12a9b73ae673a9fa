// Any bytes as Lumora Pen's settings and as keys: what is read is written so that it is read as the same.
#include "settings/hotkey.h"
#include "settings/settings.h"

#include "fuzz/fuzz_target.h"

namespace lumora_pen {

namespace {

void RequireInRange(const Settings& settings)
{
    Require(settings.colour < ColourCount, "the colour is none of the palette");
    Require(settings.width >= LeastWidth && settings.width <= MostWidth, "the width is out of range");
    Require(settings.trailLifeMs >= LeastLifeMs && settings.trailLifeMs <= MostLifeMs,
            "Trail's life is out of range");
    Require(settings.boardLifeMs == 0 ||
                (settings.boardLifeMs >= LeastLifeMs && settings.boardLifeMs <= MostLifeMs),
            "Board's life is out of range");
    Require(settings.hold.modifiers != 0 || settings.hold.button != 0, "the hold key is always down");
}

void TrySettings(std::string_view text)
{
    const SettingsReading reading = ReadSettings(text);
    RequireInRange(reading.settings);
    for (const std::string& complaint : reading.complaints) {
        Require(complaint.find('\n') == std::string::npos, "a complaint has more than one line");
    }
    if (reading.isBroken) {
        Require(reading.settings == Settings(), "something of a broken text is taken");
        Require(!reading.complaints.empty(), "a broken text is not said");
        return; // nothing of it is kept, so what is written does not depend on it
    }
    const std::string written = WriteSettings(reading.settings, text);
    const SettingsReading again = ReadSettings(written);
    Require(!again.isBroken, "what is written is broken");
    Require(again.settings == reading.settings, "other settings after writing");
    Require(WriteSettings(again.settings, written) == written, "another text after reading");
}

void TryKeys(std::string_view text)
{
    if (const auto key = ParseHotkey(text)) {
        Require(ParseHotkey(TextOf(*key)) == key, "another key after writing");
    }
    if (const auto hold = ParseHoldKey(text)) {
        Require(ParseHoldKey(TextOf(*hold)) == hold, "another hold key after writing");
        Require(IsHeld(*hold, hold->modifiers, true), "the hold key is never held");
    }
}

} // namespace

} // namespace lumora_pen

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    lumora_pen::TrySettings(text);
    lumora_pen::TryKeys(text);
    return 0;
}
