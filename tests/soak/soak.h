// The long run: scene after scene, and a row of figures at the end of each interval.
#pragma once

#include "soak/host.h"
#include "soak/pen.h"
#include "soak/scene.h"

#include <array>
#include <cstdint>
#include <ostream>
#include <vector>

namespace zq::LM::soak {

class Soak {
public:
    explicit Soak(std::uint64_t seed) : random(seed) {}

    // Plays for so many seconds behind the tour; rows of CSV, the first one when the tour is over.
    void Run(double seconds, double secondsARow, std::ostream& csv);

private:
    // What has happened since the last row.
    struct Interval {
        std::array<std::vector<double>, 2> frameMicroseconds; // by back-end
        std::array<unsigned, 2> inkSeen{};
        unsigned looks = 0;  // for ink that has outlived its life
        unsigned ghosts = 0; // what was seen then
        unsigned unseen = 0; // ink that no tick has seen alive, which may stay: nobody looked for it
        std::array<unsigned, 2> frames{};
        unsigned inputs = 0;
        unsigned dialogs = 0;
        unsigned restarts = 0;
    };

    void Play_(const Scene& scene);
    void WriteSamples_(const Scene& scene, const std::vector<LM_PenData>& samples);
    void PlayMiddle_(const Scene& scene, const Pen& pen);
    void LookForGhosts_(const Pen& pen);
    void WriteRow_(double seconds, std::ostream& csv);

    Random random;
    Host host;
    Interval interval;
};

} // namespace zq::LM::soak
