// What the brush-data server's worker and the overlay's thread share.
#include "settings/brush_data_exchange.h"

namespace zq::LM {

BrushDataExchange::BrushDataExchange()
{
    constexpr std::size_t Reserved = 4096; // far more than one receive, so that the worker allocates nothing
    bytes.reserve(Reserved);
}

void BrushDataExchange::Put(std::span<const std::uint8_t> received)
{
    const std::lock_guard lock(bytesMutex);
    bytes.assign(received.begin(), received.end());
}

std::vector<std::uint8_t> BrushDataExchange::Take()
{
    const std::lock_guard lock(bytesMutex);
    std::vector<std::uint8_t> taken = bytes; // a copy: the capacity stays here
    bytes.clear();
    return taken;
}

void BrushDataExchange::SetRunning(bool on)
{
    const std::lock_guard lock(runningMutex);
    running = on;
}

bool BrushDataExchange::IsRunning()
{
    const std::lock_guard lock(runningMutex);
    return running;
}

} // namespace zq::LM
