// One call that the recorder has noted.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zq::LM::test {

struct RecordedCall {
    std::string object; // such as "Brush#2"; empty for a function
    std::string method;
    std::string arguments;               // what the call takes, in order; not where it puts its result
    std::optional<std::uint32_t> result; // a HRESULT, or the references that remain; none for the rest
    std::string made;                    // what the call gave
    std::int64_t enteredAt = 0;          // of the performance counter
    std::int64_t leftAt = 0;

    std::string Kind() const; // "Brush"
    std::string Step() const; // "Brush.Release" or "D3D11CreateDevice": what Count and Answer take
    std::string Name() const; // "Brush#2.Release"
    std::string Text() const; // "Brush#2.Release() = 0"
};

} // namespace zq::LM::test
