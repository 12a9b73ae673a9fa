// The functions with which a module begins with graphics, rerouted to the stand-in.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>

namespace zq::LM::test {

// While it lives, the module's imports lead to the stand-in. Raises std::runtime_error when the module does
// not import them all. One at a time.
class EntryPoints {
public:
    static constexpr std::size_t Count = 6;

    explicit EntryPoints(HMODULE module);
    ~EntryPoints();
    EntryPoints(const EntryPoints&) = delete;
    EntryPoints& operator=(const EntryPoints&) = delete;

private:
    struct Place {
        void** entry;
        void* original;
    };
    std::array<Place, Count> places{};
};

} // namespace zq::LM::test
