// What the unmodified library gives back stays where it is, overwritten: what is used afterwards shows.
#include "support/freed_memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace zq::LM::test {

namespace {

constexpr std::uint8_t Freed = 0xDD;

void (*g_release)(void*) = nullptr;
std::vector<std::span<std::uint8_t>> g_freed;

#ifdef __MINGW32__
void OverwriteInsteadOfFreeing(void* block)
{
    constexpr std::size_t MostKept = 1'000'000; // what is larger holds samples, and no object
    const std::size_t size = block != nullptr ? _msize(block) : 0;
    if (size > MostKept) {
        g_release(block);
        return;
    }
    std::memset(block, Freed, size);
    g_freed.emplace_back(static_cast<std::uint8_t*>(block), size);
}
#endif

} // namespace

FreedMemory::FreedMemory([[maybe_unused]] HMODULE library)
{
#ifdef __MINGW32__
    free.emplace(library, "msvcrt.dll", "free", AsAddress(OverwriteInsteadOfFreeing));
    g_release = reinterpret_cast<decltype(g_release)>(free->Original());
#endif
}

FreedMemory::~FreedMemory()
{
    for (const std::span<std::uint8_t> block : g_freed) {
        g_release(block.data());
    }
    g_freed.clear();
}

std::size_t FreedMemory::Written()
{
    return static_cast<std::size_t>(std::count_if(g_freed.begin(), g_freed.end(), [](const auto& block) {
        return std::any_of(block.begin(), block.end(), [](std::uint8_t byte) { return byte != Freed; });
    }));
}

} // namespace zq::LM::test
