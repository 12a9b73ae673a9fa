// Stands between a module and the methods of the system's objects.
#include "support/hook/method_slot.h"

#include "support/hook/import_table.h"

#include <map>
#include <mutex>

namespace zq::LM::test::slots {

namespace {

// For the life of the process: the system's own threads may be inside a hook at any time.
std::mutex g_lock;
std::map<const void*, void*> g_originals;

void** TableOf(const void* object) { return *static_cast<void** const*>(object); }

} // namespace

void Patch(void* object, std::size_t slot, void* hook)
{
    void** entry = TableOf(object) + slot;
    const std::lock_guard guard(g_lock);
    if (*entry != hook) { // also when the system's library has been loaded anew
        g_originals[entry] = *entry;
        WriteEntry(entry, hook);
    }
}

void* Original(const void* object, std::size_t slot)
{
    const std::lock_guard guard(g_lock);
    return g_originals.at(TableOf(object) + slot);
}

} // namespace zq::LM::test::slots
