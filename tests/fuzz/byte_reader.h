// Takes values from a fuzzer's bytes; all are 0 once these have ended.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace zq::LM::test {

class ByteReader {
public:
    ByteReader(const std::uint8_t* bytes, std::size_t size) : next(bytes), left(size) {}

    bool AreLeft() const { return left > 0; }

    std::uint8_t Byte()
    {
        if (left == 0) {
            return 0;
        }
        --left;
        return *next++;
    }

    // As they lie in memory.
    template <class Value> Value Raw()
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        std::array<std::uint8_t, sizeof(Value)> bytes{};
        const std::size_t taken = std::min(left, bytes.size());
        std::copy_n(next, taken, bytes.begin());
        next += taken;
        left -= taken;
        Value value;
        std::memcpy(&value, bytes.data(), bytes.size());
        return value;
    }

private:
    const std::uint8_t* next;
    std::size_t left;
};

} // namespace zq::LM::test
