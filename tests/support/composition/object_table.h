// The objects that the watched module has been given: their names and how often it holds each.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace zq::LM::test {

class ObjectTable {
public:
    // The module got a reference: a new object, or one more reference of a known one.
    void Given(const void* object, const char* kind);
    void Added(const void* object);
    void Released(const void* object);

    bool Knows(const void* object) const;

    // The references that the module still holds, by object.
    std::map<std::string, int> Held() const;

    // Objects that it released more often than it got them.
    const std::vector<std::string>& ReleasedTooOften() const { return releasedTooOften; }

private:
    struct Entry {
        std::string name;
        int references = 0;
    };

    std::map<const void*, Entry> entries; // also those released: a further release must be noticed
    std::map<std::string, int> numbers;   // the last one of each kind
    std::vector<std::string> releasedTooOften;
};

} // namespace zq::LM::test
