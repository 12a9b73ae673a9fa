// Systems differ in whether they can compose: no device here, so that every overlay starts alike, and fast.
#pragma once

#include "support/hook/import_hook.h"

#include <d2d1.h>
#include <d3d11.h>

namespace zq::LM::test {

// The Direct2D back-end finds no Direct2D: every instance makes one, which takes time. It asks for the first
// interface of a factory, and nobody else does, so Direct2D is there for others.
class NoDirect2DBackEnd {
public:
    explicit NoDirect2DBackEnd(HMODULE library) : hook(library)
    {
        hook.Answer([this](auto type, const GUID& id, auto options, void** factory) {
            return id == __uuidof(ID2D1Factory) ? E_FAIL : hook.Real(type, id, options, factory);
        });
    }

private:
    Hook<"D2D1CreateFactory", HRESULT(D2D1_FACTORY_TYPE, const GUID&, const D2D1_FACTORY_OPTIONS*, void**)>
        hook;
};

// A composition stand-in put on top of it brings a device of its own.
class NoGraphicsDevice {
public:
    explicit NoGraphicsDevice(HMODULE library) : device(library), noDirect2D(library) { device.Fail(E_FAIL); }

private:
    Hook<"D3D11CreateDevice", decltype(D3D11CreateDevice)> device;
    NoDirect2DBackEnd noDirect2D;
};

} // namespace zq::LM::test
