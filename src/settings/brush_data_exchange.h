// What the brush-data server's worker and the overlay's thread share: the bytes received last, and whether
// the worker is to go on.
#pragma once

#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace zq::LM {

// Two mutexes, of which nobody holds both.
class BrushDataExchange {
public:
    BrushDataExchange();

    // What was received before and is not taken yet is lost: only the last counts.
    void Put(std::span<const std::uint8_t> received);

    // A copy of the bytes, which are then gone. Empty when nothing has arrived since.
    std::vector<std::uint8_t> Take();

    void SetRunning(bool on);
    bool IsRunning();

private:
    std::mutex bytesMutex;
    std::vector<std::uint8_t> bytes;
    std::mutex runningMutex;
    bool running = false;
};

} // namespace zq::LM
