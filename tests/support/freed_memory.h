// What the unmodified library gives back stays where it is, overwritten: what is used afterwards shows.
#pragma once

#include "support/import_patch.h"

#include <cstddef>
#include <optional>

namespace zq::LM::test {

// A pointer that is read there leads nowhere, and a write can be told. One at a time, for one thread. Does
// nothing where the library's allocator is not the one that is known.
class FreedMemory {
public:
    explicit FreedMemory(HMODULE library);
    ~FreedMemory();
    FreedMemory(const FreedMemory&) = delete;
    FreedMemory& operator=(const FreedMemory&) = delete;

    // Blocks that were written to after they had been given back.
    static std::size_t Written();

private:
    std::optional<ImportPatch> free;
};

} // namespace zq::LM::test
