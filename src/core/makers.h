// How a Core comes by the parts that need a graphics device, the network or a person.
#pragma once

#include "ink/params.h"
#include "platform/endable.h"
#include "render/canvas.h"
#include "settings/brush_data_server.h"
#include "settings/params_view.h"

#include <cstdint>
#include <memory>

namespace zq::LM {

// Plain functions, so that a program which links the Core can bring parts of its own. Each gives null for a
// part that cannot be had; the Core works on without it.
struct Makers {
    Canvas::BackEndMakers backEnds{};
    Owned<ParamsView> (*paramsView)(HWND parent, HMODULE module, Params* record) = nullptr;
    std::unique_ptr<BrushDataServer> (*brushDataServer)(std::uint16_t port) = nullptr;

    // Off in the library, where nothing turns it on: the server asks nobody who they are.
    bool useBrushDataServer = false;
};

// The library's own.
extern const Makers LibraryMakers;

} // namespace zq::LM
