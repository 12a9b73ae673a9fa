// The report of a self-test: what each back-end showed on this machine, beside what it showed under Wine.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumora::replay {

// What was seen of one back-end. An overlay that could not be made has an error and nothing else.
struct BackEndFindings {
    std::string name;
    std::string error;
    unsigned strokes = 0; // how many were handed over, and how many of them were seen
    unsigned strokesSeen = 0;
    std::string colour; // of the ink on the screen, "RRGGBB"; empty when none was seen
    bool isGoneAfterItsLife = false;
    bool letsClicksThrough = false;
    std::optional<double> medianPaintMs; // from the call that hands samples over to the end of the paint
    std::optional<double>
        medianScreenMs; // from the same call to the ink on the screen, as far as it can be read
};

using SystemFacts = std::vector<std::pair<std::string, std::string>>; // name and value

// Lines that end in "\n"; what differs from Wine is marked and counted in the last one.
std::string SelftestReport(const SystemFacts& system, const std::vector<BackEndFindings>& backEnds);

} // namespace lumora::replay
