// What a DirectComposition back-end may leave behind.
#pragma once

#include "support/composition/composition_stand_in.h"

namespace zq::LM::test {

// Each set-up creates two composition devices into one place, on purpose: so many stay, held once, and
// nothing else.
void ExpectOnlyDevicesLeft(const CompositionStandIn& composition, int devices);

} // namespace zq::LM::test
