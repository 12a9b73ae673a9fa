// Which device contexts have nothing to draw into.
#include "support/composition/context_targets.h"

#include <set>

namespace zq::LM::test {

namespace {

std::set<const void*> g_lacking;

} // namespace

void NoteTarget(const void* deviceContext, const void* target)
{
    if (target == nullptr) {
        g_lacking.insert(deviceContext);
    } else {
        g_lacking.erase(deviceContext);
    }
}

bool LacksTarget(const void* drawer) { return g_lacking.count(drawer) != 0; }

} // namespace zq::LM::test
