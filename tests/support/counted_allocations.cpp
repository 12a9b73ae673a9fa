// The program's own operator new and delete, in all forms that the standard library uses without extra
// alignment.
#include "support/counted_allocations.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t KeptSizes = 64;

std::atomic<std::size_t> g_allocations{0};
std::atomic<bool> g_noMemory{false};
std::array<std::size_t, KeptSizes> g_sizes; // of the allocations since the last count began
std::atomic<std::size_t> g_firstKept{0};

void* AllocateOrNull(std::size_t size) noexcept
{
    if (g_noMemory) {
        return nullptr;
    }
    const std::size_t place = g_allocations++ - g_firstKept;
    if (place < KeptSizes) {
        g_sizes[place] = size;
    }
    return std::malloc(size != 0 ? size : 1);
}

void* Allocate(std::size_t size)
{
    void* const memory = AllocateOrNull(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNull(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

namespace zq::LM::test {

CountedAllocations::CountedAllocations() : before(g_allocations) { g_firstKept = before; }

std::size_t CountedAllocations::Count() const { return g_allocations - before; }

std::vector<std::size_t> CountedAllocations::Sizes() const
{
    const std::size_t count = Count(); // before the copy is allocated
    std::vector<std::size_t> sizes(g_sizes.begin(), g_sizes.end());
    sizes.resize(std::min(count, KeptSizes));
    return sizes;
}

NoMemory::NoMemory() { g_noMemory = true; }

NoMemory::~NoMemory() { g_noMemory = false; }

} // namespace zq::LM::test
