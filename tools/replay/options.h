// The command line of lumora-replay.
#pragma once

#include "lumora/records.h"
#include "time_unit.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace lumora::replay {

enum class BackEnd { Composition, Direct2D, Gdi };

// A change of the back-end while ink is on the screen.
struct BackEndSwitch {
    std::uint32_t atMs = 0; // since the play began
    BackEnd backEnd = BackEnd::Composition;
};

struct ScreenshotRequest {
    std::uint32_t atMs = 0; // since the play began
    std::string file;
};

// What the command line changes of the library's parameter record; the rest keeps the library's defaults.
struct InkChanges {
    std::optional<std::uint32_t> colour; // 0x00BBGGRR
    std::optional<std::uint32_t> brushSize;
    std::optional<std::uint32_t> minBrushSize;
    std::optional<std::uint32_t> maxPressure;
    std::optional<std::uint32_t> inkLifeMs;
    bool outline = false;
    bool noLine = false;
    bool noCursor = false;
    bool noPressure = false;
    bool offset = false;
    bool zebra = false;
    bool pickColour = false;
};

// Texts are UTF-8.
struct Options {
    bool help = false;
    std::string recording;
    std::optional<TimeUnit> timeUnit;
    std::string save; // empty: the recording is played
    bool overwrite = false;
    std::string selftest;                   // empty: no self-test
    std::string library;                    // empty: LumoraDLL.dll beside the program
    BackEnd backEnd = BackEnd::Composition; // the library's own default
    bool pixels = false;                    // the recording's positions are the screen's
    double speed = 1;
    std::uint32_t logLevel = 0;
    InkChanges ink;
    std::vector<ScreenshotRequest> screenshots; // in order of time
    std::vector<BackEndSwitch> switches;        // in order of time
};

// One line that says what is wrong with the command line.
struct OptionsError {
    std::string reason;
};

// `arguments` are those after the program's name. A repeated option's last value holds; screenshots add up.
std::variant<Options, OptionsError> ParseOptions(const std::vector<std::string>& arguments);

void ApplyInk(const InkChanges& changes, LM_Params& params);

std::string HelpText();

} // namespace lumora::replay
