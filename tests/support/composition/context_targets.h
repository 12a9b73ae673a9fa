// Which device contexts have nothing to draw into. Real ones put up with it and say so at the end of the
// frame; those of systems without a composition engine break.
#pragma once

#include <set>

namespace zq::LM::test {

inline std::set<const void*> g_contextsWithoutTarget;

inline void NoteTarget(const void* deviceContext, const void* target)
{
    if (target == nullptr) {
        g_contextsWithoutTarget.insert(deviceContext);
    } else {
        g_contextsWithoutTarget.erase(deviceContext);
    }
}

// False for everything that is no device context.
inline bool LacksTarget(const void* drawer) { return g_contextsWithoutTarget.contains(drawer); }

} // namespace zq::LM::test
