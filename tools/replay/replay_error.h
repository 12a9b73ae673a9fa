// What stops the program, beside lumora::Error.
#pragma once

#include <stdexcept>

namespace lumora::replay {

// what() is one line for the user.
class ReplayError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace lumora::replay
