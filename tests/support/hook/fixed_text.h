// A text as a template argument: each hooked function has a hook of its own.
#pragma once

#include <algorithm>
#include <cstddef>

namespace zq::LM::test {

template <std::size_t Size> struct FixedText {
    constexpr FixedText(const char (&source)[Size]) { std::copy_n(source, Size, text); }
    char text[Size]{};
};

} // namespace zq::LM::test
