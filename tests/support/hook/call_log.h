// The one list of recorded calls, whoever records them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace zq::LM::test {

struct RecordedCall {
    std::string object; // such as "Brush#2"; empty for a function
    std::string method;
    std::string arguments;               // what the call takes, in order; not where it puts its result
    std::optional<std::uint32_t> result; // a HRESULT, or the references that remain; none for the rest
    std::string made;                    // what the call gave
    std::int64_t enteredAt = 0;          // of the performance counter
    std::int64_t leftAt = 0;
    bool isLine = false; // no call, but a text among calls: it is the method's name

    std::string Kind() const; // "Brush"
    std::string Step() const; // "Brush.Release" or "D3D11CreateDevice": what Count and Of take
    std::string Name() const; // "Brush#2.Release"
    std::string Text() const; // "Brush#2.Release() = 0"
};

// From any thread.
class CallLog {
public:
    void Add(RecordedCall call);
    void AddLine(std::string line);

    std::vector<RecordedCall> Calls() const;                  // since the last Take
    std::vector<std::string> Take();                          // their texts, and forgets them
    std::vector<std::string> TakeOf(const std::string& step); // of this step alone; forgets the others too
    std::vector<std::string> Of(const std::string& step) const;
    std::size_t Count(const std::string& step) const;

private:
    mutable std::mutex mutex;
    std::vector<RecordedCall> calls;
};

} // namespace zq::LM::test
