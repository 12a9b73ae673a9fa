// What an instance does while calls of it fail.
#pragma once

#include "library/faults/fault_host.h"

#include <string>
#include <vector>

namespace zq::LM::test {

// A piece of an instance's life: what comes before works, the piece itself may meet failures.
struct FaultScenario {
    std::string name;
    BackEnd backEnd;
    std::function<void(FaultHost&)> prepare;
    std::function<void(FaultHost&)> live;
    BackEnd changesTo = backEnd;

    bool NeedsDevices() const { return backEnd.command != ChooseGDI || changesTo.command != ChooseGDI; }
    bool IsComposed() const
    {
        return backEnd.command == ChooseDirectComposition || changesTo.command == ChooseDirectComposition;
    }
};

// Names are letters and digits alone.
std::vector<FaultScenario> AllFaultScenarios();

inline std::ostream& operator<<(std::ostream& out, const FaultScenario& scenario)
{
    return out << scenario.name;
}

} // namespace zq::LM::test
