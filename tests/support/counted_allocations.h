// Counts every allocation through operator new, and makes one fail. A test program that uses it has its own
// operator new, so it stands in a program of its own.
#pragma once

#include <cstddef>
#include <vector>

namespace zq::LM::test {

// What was allocated since its construction, on any thread.
class CountedAllocations {
public:
    CountedAllocations();

    std::size_t Count() const;

    // The sizes of the first of them, up to 64.
    std::vector<std::size_t> Sizes() const;

private:
    std::size_t before;
};

// Every allocation raises std::bad_alloc while it lives.
class NoMemory {
public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

} // namespace zq::LM::test
