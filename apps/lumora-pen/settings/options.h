// The command line.
#pragma once

#include "settings/settings.h"

#include <optional>
#include <string>
#include <vector>

namespace lumora_pen {

// Names of files are UTF-8.
struct Options {
    std::string settingsFile;          // empty: the user's own
    bool board = false;                // begins in Board
    std::optional<std::string> colour; // "1" to "6", or "RRGGBB"
    std::optional<BackEndName> backEnd;
    std::string recordFile; // empty: none
    bool quit = false;      // ends the one that runs
    std::optional<unsigned> logLevel;
};

struct OptionsReading {
    Options options;
    bool isDone = false; // `text` says it all: help, version, or a mistake
    bool isMistake = false;
    std::string text;
};

// `arguments` without the program's name, in UTF-8.
OptionsReading ReadOptions(const std::vector<std::string>& arguments);

// For the instance that runs already, which reads them back by ReadOptions: names of files become absolute.
std::vector<std::string> ArgumentsOf(const Options& options);

} // namespace lumora_pen
