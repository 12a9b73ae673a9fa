// What the library has taken from GDI and not given back.
#pragma once

#include "support/hook/import_hook.h"

#include <windows.h>

#include <cstddef>

namespace zq::LM::test {

// Since its making. What stays on purpose is each window's one device context.
class GdiTraffic {
public:
    explicit GdiTraffic(HMODULE module)
        : taken(module), released(module), contexts(module), bitmaps(module), brushes(module),
          deletedContexts(module), deletedObjects(module)
    {
    }

    std::size_t WindowContexts() const { return taken.Count() - released.Count(); }
    std::size_t MemoryContexts() const { return contexts.Count() - deletedContexts.Count(); }
    std::size_t Objects() const { return bitmaps.Count() + brushes.Count() - deletedObjects.Count(); }

private:
    Hook<"GetDC", decltype(GetDC)> taken;
    Hook<"ReleaseDC", decltype(ReleaseDC)> released;
    Hook<"CreateCompatibleDC", decltype(CreateCompatibleDC)> contexts;
    Hook<"CreateCompatibleBitmap", decltype(CreateCompatibleBitmap)> bitmaps;
    Hook<"CreateSolidBrush", decltype(CreateSolidBrush)> brushes;
    Hook<"DeleteDC", decltype(DeleteDC)> deletedContexts;
    Hook<"DeleteObject", decltype(DeleteObject)> deletedObjects;
};

} // namespace zq::LM::test
