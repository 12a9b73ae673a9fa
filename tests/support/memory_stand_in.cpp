// Stands in for the C runtime's allocation behind the unmodified library.
#include "support/memory_stand_in.h"

#include <cstdlib>
#include <set>
#include <utility>

namespace zq::LM::test {

namespace {

// The library's allocator, whichever runtime it comes from: blocks go back to where they came from.
void* (*g_allocate)(std::size_t) = nullptr;
void (*g_release)(void*) = nullptr;
MemoryStandIn::Rule g_rule;
unsigned g_number = 0;
unsigned g_refused = 0;
std::set<const void*> g_held;

void* Allocate(std::size_t size)
{
    if (g_rule && g_rule(size, ++g_number)) {
        ++g_refused;
        return nullptr;
    }
    void* block = g_allocate(size);
    g_held.insert(block);
    return block;
}

void Release(void* block)
{
    g_held.erase(block);
    g_release(block);
}

} // namespace

MemoryStandIn::MemoryStandIn(HMODULE library)
    : allocate(library, "msvcrt.dll", "malloc", AsAddress(Allocate)),
      release(library, "msvcrt.dll", "free", AsAddress(Release))
{
    g_allocate = reinterpret_cast<decltype(g_allocate)>(allocate.Original());
    g_release = reinterpret_cast<decltype(g_release)>(release.Original());
    g_held.clear();
    RefuseNothing();
    g_refused = 0;
}

void MemoryStandIn::RefuseWhen(Rule rule)
{
    g_rule = std::move(rule);
    g_number = 0;
    g_refused = 0;
}

void MemoryStandIn::RefuseNothing() { g_rule = nullptr; }

unsigned MemoryStandIn::Refused() const { return g_refused; }

std::size_t MemoryStandIn::HeldBlocks() const { return g_held.size(); }

} // namespace zq::LM::test
