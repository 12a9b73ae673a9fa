// Entries of the tables of virtual functions through which the system's objects are called.
#include "support/composition/vtable_slots.h"

#include "support/import_entry.h"

#include <map>
#include <mutex>

namespace zq::LM::test {

namespace {

// For the life of the process: the system's own threads may be inside a hook at any time.
std::mutex g_lock;
std::map<const void*, void*> g_originals;

void** Table(const void* object) { return *static_cast<void** const*>(object); }

} // namespace

void PatchSlot(void* object, std::size_t slot, void* hook)
{
    void** entry = Table(object) + slot;
    const std::lock_guard guard(g_lock);
    if (*entry != hook) { // also when the system's library has been loaded anew
        g_originals[entry] = *entry;
        WriteEntry(entry, hook);
    }
}

void* OriginalOfSlot(const void* object, std::size_t slot)
{
    const std::lock_guard guard(g_lock);
    return g_originals.at(Table(object) + slot);
}

} // namespace zq::LM::test
