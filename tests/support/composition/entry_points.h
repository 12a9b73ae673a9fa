// The functions with which a module begins with graphics, rerouted to the stand-in.
#pragma once

#include <windows.h>

#include <vector>

namespace zq::LM::test {

// While it lives, the module's imports lead to the stand-in. Raises std::runtime_error when the module does
// not import them all; only the engine may be missing, as a whole, from a module that draws into bitmaps. One
// at a time.
class EntryPoints {
public:
    explicit EntryPoints(HMODULE module);
    ~EntryPoints();
    EntryPoints(const EntryPoints&) = delete;
    EntryPoints& operator=(const EntryPoints&) = delete;

private:
    struct Place {
        void** entry;
        void* original;
    };
    std::vector<Place> places;
};

} // namespace zq::LM::test
