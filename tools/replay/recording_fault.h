// What stops the reading of a nested file, from wherever it is noticed.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace lumora::replay {

class RecordingFault : public std::runtime_error {
public:
    RecordingFault(std::size_t faultyLine, const std::string& reason)
        : std::runtime_error(reason), line(faultyLine)
    {
    }

    std::size_t line;
};

} // namespace lumora::replay
