// Says when a block of memory is given back.
#include "windows/window/watched_frees.h"

#include "support/system_calls.h"

#include <cstdlib>
#include <new>

namespace zq::LM::test {

namespace {

struct Watch {
    const void* block = nullptr;
    std::size_t size = 0;
    std::string text;
};

Watch g_blockWatch;
Watch g_sizeWatch;

void Say(Watch& watch)
{
    // Disarmed first: adding to the list gives memory back too.
    watch.block = nullptr;
    watch.size = 0;
    AddLine(watch.text);
}

} // namespace

void WatchFree(const void* block, const std::string& text) { g_blockWatch = {block, 0, text}; }

void WatchFreeOfSize(std::size_t size, const std::string& text) { g_sizeWatch = {nullptr, size, text}; }

void StopWatchingFrees()
{
    g_blockWatch = {};
    g_sizeWatch = {};
}

static void NoteFree(const void* block, std::size_t size)
{
    if (block != nullptr && block == g_blockWatch.block) {
        Say(g_blockWatch);
    }
    if (size != 0 && size == g_sizeWatch.size) {
        Say(g_sizeWatch);
    }
}

} // namespace zq::LM::test

void* operator new(std::size_t size)
{
    if (void* block = std::malloc(size != 0 ? size : 1)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept
{
    zq::LM::test::NoteFree(block, 0);
    std::free(block);
}

void operator delete(void* block, std::size_t size) noexcept
{
    zq::LM::test::NoteFree(block, size);
    std::free(block);
}
