// The command line of lumora-latency.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora::latency {

struct MouseRoad {
    std::vector<std::string> heldKeys; // while it writes
    unsigned button = 0;               // held while it writes; 0: none
    std::uint32_t samples = 120;
};

struct Options {
    std::string screen;
    std::string firstName;
    std::string secondName;
    std::string firstExchange;
    std::string secondExchange;
    std::string csv;
    std::uint32_t samples = 120;
    unsigned runs = 3;
    bool heads = false;
    bool byMouse = false;
    MouseRoad mouse;
};

struct OptionsReading {
    Options options;
    std::optional<int>
        status;       // with which the program ends at once: 0 after the help, another after a mistake
    std::string text; // what it says then
};

// `arguments` without the program's name.
OptionsReading ReadOptions(std::vector<std::string> arguments);

} // namespace lumora::latency
