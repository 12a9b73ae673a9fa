// How an imported function tells that it has failed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zq::LM::test {

// Which answer tells a caller that an imported function has failed.
struct ImportFailure {
    std::intptr_t answer = 0;
    bool isPerformed = false; // what gives something back has done so, or every failure would leak
};

// Nothing for a function that cannot fail. `dll` as the import table has it, with its ending.
std::optional<ImportFailure> FailureOf(const std::string& dll, const std::string& function);

} // namespace zq::LM::test
