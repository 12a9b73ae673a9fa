// The C runtime's allocation behind the unmodified library.
#include "support/fakes/memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstring>

namespace zq::LM::test {

namespace {

constexpr std::uint8_t Freed = 0xDD;

} // namespace

FreedMemory::FreedMemory([[maybe_unused]] HMODULE library)
{
#ifdef __MINGW32__
    release.emplace(library, [this](void* block) { Overwrite_(block); });
#endif
}

FreedMemory::~FreedMemory()
{
    for (const std::span<std::uint8_t> block : blocks) {
        release->Real(block.data());
    }
}

void FreedMemory::Overwrite_(void* block)
{
    constexpr std::size_t MostKept = 1'000'000; // what is larger holds samples, and no object
    const std::size_t size = block != nullptr ? _msize(block) : 0;
    if (size > MostKept) {
        release->Real(block);
        return;
    }
    std::memset(block, Freed, size);
    blocks.emplace_back(static_cast<std::uint8_t*>(block), size);
}

std::size_t FreedMemory::Written() const
{
    return static_cast<std::size_t>(std::count_if(blocks.begin(), blocks.end(), [](const auto& block) {
        return std::any_of(block.begin(), block.end(), [](std::uint8_t byte) { return byte != Freed; });
    }));
}

} // namespace zq::LM::test
