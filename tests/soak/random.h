// Random numbers that are the same for a seed whoever compiles this.
#pragma once

#include <cstdint>
#include <random>

namespace zq::LM::soak {

class Random {
public:
    explicit Random(std::uint64_t seed) : engine(seed) {}

    int Between(int low, int high)
    {
        return low + static_cast<int>(engine() % static_cast<std::uint64_t>(high - low + 1));
    }
    bool OneIn(int number) { return Between(1, number) == 1; }
    std::uint8_t Flag() { return static_cast<std::uint8_t>(Between(0, 1)); }

private:
    std::mt19937_64 engine; // whose numbers the standard fixes, other than those of its distributions
};

} // namespace zq::LM::soak
