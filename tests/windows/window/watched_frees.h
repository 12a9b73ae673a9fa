// Says when a block of memory is given back, for objects whose end nothing else shows.
#pragma once

#include <cstddef>
#include <string>

namespace zq::LM::test {

// Until the test ends: giving back the block at this address, or the next one of this size, adds the text to
// the recorded calls. Replaces the program's operators new and delete.
void WatchFree(const void* block, const std::string& text);
void WatchFreeOfSize(std::size_t size, const std::string& text);
void StopWatchingFrees();

} // namespace zq::LM::test
