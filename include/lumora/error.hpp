/* What lumora/lumora.hpp throws, whatever the library was built with. */
#ifndef LUMORA_ERROR_HPP
#define LUMORA_ERROR_HPP

#include <stdexcept>

namespace lumora {

/* what() is one line for a person. */
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} /* namespace lumora */

#endif
