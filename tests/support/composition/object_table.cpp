// The objects that the watched module has been given.
#include "support/composition/object_table.h"

#include "support/hook/names.h"

namespace zq::LM::test {

void ObjectTable::Given(const void* object, const char* kind)
{
    Entry& entry = entries[object];
    if (entry.references <= 0) { // new, or made where a released one was
        entry.name = std::string(kind) + '#' + std::to_string(++numbers[kind]);
        entry.references = 0;
        GiveName(object, entry.name);
    }
    ++entry.references;
}

void ObjectTable::Added(const void* object) { ++entries.at(object).references; }

void ObjectTable::Released(const void* object)
{
    Entry& entry = entries.at(object);
    if (entry.references <= 0) {
        releasedTooOften.push_back(entry.name);
        return;
    }
    --entry.references;
}

bool ObjectTable::Knows(const void* object) const { return entries.count(object) != 0; }

std::map<std::string, int> ObjectTable::Held() const
{
    std::map<std::string, int> held;
    for (const auto& [object, entry] : entries) {
        if (entry.references > 0) {
            held[entry.name] = entry.references;
        }
    }
    return held;
}

} // namespace zq::LM::test
