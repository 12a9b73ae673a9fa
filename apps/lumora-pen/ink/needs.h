// What the program listens to and shows, as a consequence of what it does at the moment. Whoever changes
// something asks again and brings about the difference.
#pragma once

#include "ink/ink_style.h"

namespace lumora_pen {

struct Doing {
    Mode mode = Mode::Trail;
    bool holds = false; // the hold key is down
};

struct NeededKey {
    KeyCommand command;
    Hotkey key;
};

bool operator==(const NeededKey& left, const NeededKey& right);

struct Needs {
    bool board = false;
    bool mouse = false; // its raw reports
    bool pens = false;  // likewise
    std::vector<NeededKey> keys;
};

// Keys without a meaning at the moment are left to other programs. The first of two commands with one key has
// it.
Needs NeedsOf(const Doing& doing, const Settings& settings);

} // namespace lumora_pen
