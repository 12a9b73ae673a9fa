// What of this machine matters to ink.
#pragma once

#include "selftest_report.h"

namespace lumora::replay {

SystemFacts FactsOfThisSystem();

} // namespace lumora::replay
