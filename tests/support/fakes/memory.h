// The C runtime's allocation behind the unmodified library, whose operator new rests on it.
#pragma once

#include "support/hook/import_hook.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <span>
#include <utility>
#include <vector>

namespace zq::LM::test {

// Keeps account of what the library holds and refuses what a test says. For one thread.
class MemoryStandIn {
public:
    explicit MemoryStandIn(HMODULE library) : allocate(library), release(library)
    {
        allocate.Answer([this](std::size_t size) { return Allocate_(size); });
        release.Before([this](void* block) { held.erase(block); });
    }

    // Asked for each allocation: its size, and its number since this rule came into force, from 1 on.
    using Rule = std::function<bool(std::size_t size, unsigned number)>;
    void RefuseWhen(Rule newRule)
    {
        rule = std::move(newRule);
        number = 0;
        refused = 0;
    }
    void RefuseNothing() { rule = nullptr; }

    unsigned Refused() const { return refused; } // by the rule in force, or the one before RefuseNothing

    // Blocks allocated since construction and not freed yet.
    std::size_t HeldBlocks() const { return held.size(); }

private:
    void* Allocate_(std::size_t size)
    {
        if (rule && rule(size, ++number)) {
            ++refused;
            return nullptr;
        }
        void* block = allocate.Real(size);
        held.insert(block);
        return block;
    }

    Rule rule;
    unsigned number = 0;
    unsigned refused = 0;
    std::set<const void*> held;
    Hook<"malloc", void*(std::size_t)> allocate;
    Hook<"free", void(void*)> release;
};

// What the library gives back stays where it is, overwritten: what is used afterwards shows. A pointer that
// is read there leads nowhere, and a write can be told. For one thread. Does nothing where the library's
// allocator is not the one that is known.
class FreedMemory {
public:
    explicit FreedMemory(HMODULE library);
    ~FreedMemory();
    FreedMemory(const FreedMemory&) = delete;
    FreedMemory& operator=(const FreedMemory&) = delete;

    // Blocks that were written to after they had been given back.
    std::size_t Written() const;

private:
    void Overwrite_(void* block);

    std::vector<std::span<std::uint8_t>> blocks;
    std::optional<Hook<"free", void(void*)>> release;
};

} // namespace zq::LM::test
