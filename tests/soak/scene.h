// A scene of the soak: what the host does for a second or two, drawn by lot.
#pragma once

#include "soak/host.h"
#include "soak/random.h"

#include <cstdint>

namespace zq::LM::soak {

struct Scene {
    int milliseconds = 0;
    BackEnd backEnd = BackEnd::GDI;
    bool restarts = false; // before all of it
    bool rebuilds = false; // in any case, and not only for another back-end
    std::uint32_t logLevel = 0;
    LM_Params record{};
    bool opensSettings = false; // in the middle
    bool closesSettings = false;
    bool looksForInk = false; // while the pen writes, and again after the ink's life
};

Scene RandomScene(Random& random, bool mayUseDirect2D);

// So that whatever the process makes only once is there: each back-end, every kind of the others.
std::vector<Scene> Tour(Random& random);

} // namespace zq::LM::soak
