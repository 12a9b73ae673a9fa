// Stands in for the C runtime's allocation behind the unmodified library.
#include "support/memory_stand_in.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <utility>
#include <vector>

namespace zq::LM::test {

namespace {

// The library's allocator, whichever runtime it comes from: blocks go back to where they came from.
void* (*g_allocate)(std::size_t) = nullptr;
void (*g_release)(void*) = nullptr;
MemoryStandIn::Rule g_rule;
unsigned g_number = 0;
unsigned g_refused = 0;
std::map<const void*, std::size_t> g_held; // with their sizes

constexpr unsigned char Filling = 0xDD;
constexpr std::size_t LargestKept = std::size_t{1} << 20;
bool g_keepsFreed = false;
std::vector<std::pair<unsigned char*, std::size_t>> g_freed;

void* Allocate(std::size_t size)
{
    if (g_rule && g_rule(size, ++g_number)) {
        ++g_refused;
        return nullptr;
    }
    void* block = g_allocate(size);
    g_held[block] = size;
    return block;
}

void Release(void* block)
{
    const auto held = g_held.find(block);
    const std::size_t size = held != g_held.end() ? held->second : 0;
    if (held != g_held.end()) {
        g_held.erase(held);
    }
    if (!g_keepsFreed || size == 0 || size > LargestKept) {
        g_release(block);
        return;
    }
    std::memset(block, Filling, size);
    g_freed.emplace_back(static_cast<unsigned char*>(block), size);
}

bool IsUntouched(const std::pair<unsigned char*, std::size_t>& freed)
{
    return std::all_of(freed.first, freed.first + freed.second,
                       [](unsigned char byte) { return byte == Filling; });
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

MemoryStandIn::~MemoryStandIn() { WrittenAfterFree(); }

void MemoryStandIn::KeepFreed() { g_keepsFreed = true; }

std::size_t MemoryStandIn::WrittenAfterFree()
{
    g_keepsFreed = false;
    const auto untouched = std::count_if(g_freed.begin(), g_freed.end(), IsUntouched);
    const std::size_t written = g_freed.size() - static_cast<std::size_t>(untouched);
    for (const auto& [block, size] : std::exchange(g_freed, {})) {
        g_release(block);
    }
    return written;
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
