// The functions with which a module begins with graphics, rerouted to the stand-in.
#pragma once

#include "support/hook/import_hook.h"

#include <d2d1.h>
#include <d3d11.h>
#include <dcomp.h>
#include <dwrite.h>
#include <dxgi1_3.h>

#include <optional>

namespace zq::LM::test {

// While it lives, the module's imports lead to the stand-in. Raises std::runtime_error when the module does
// not import them all; only the engine may be missing, as a whole, from a module that draws into bitmaps.
class EntryPoints {
public:
    explicit EntryPoints(HMODULE module);

private:
    // What the engine needs besides.
    struct Engine {
        explicit Engine(HMODULE module);

        Hook<"D3D11CreateDevice", decltype(D3D11CreateDevice)> d3d;
        Hook<"CreateDXGIFactory2", decltype(CreateDXGIFactory2)> dxgi;
        Hook<"DCompositionCreateDevice", decltype(DCompositionCreateDevice)> composition;
        Hook<"DCompositionCreateDevice3", decltype(DCompositionCreateDevice3)> thirdComposition;
    };

    Hook<"D2D1CreateFactory", HRESULT(D2D1_FACTORY_TYPE, const GUID&, const D2D1_FACTORY_OPTIONS*, void**)>
        d2d;
    Hook<"DWriteCreateFactory", decltype(DWriteCreateFactory)> write;
    std::optional<Engine> engine;
};

} // namespace zq::LM::test
