// Stands in for the C runtime's allocation behind the unmodified library, whose operator new rests on it.
#pragma once

#include "support/import_patch.h"

#include <cstddef>
#include <functional>

namespace zq::LM::test {

// Keeps account of what the library holds and refuses what a test says. One at a time, for one thread.
class MemoryStandIn {
public:
    explicit MemoryStandIn(HMODULE library);

    // Asked for each allocation: its size, and its number since this rule came into force, from 1 on.
    using Rule = std::function<bool(std::size_t size, unsigned number)>;
    void RefuseWhen(Rule rule);
    void RefuseNothing();

    unsigned Refused() const; // by the rule in force, or the one before RefuseNothing

    // Blocks allocated since construction and not freed yet.
    std::size_t HeldBlocks() const;

private:
    ImportPatch allocate;
    ImportPatch release;
};

} // namespace zq::LM::test
