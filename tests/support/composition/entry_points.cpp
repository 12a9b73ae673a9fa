// The functions with which a module begins with graphics, rerouted to the stand-in.
#include "support/composition/entry_points.h"

#include "support/composition/composition_device.h"
#include "support/composition/method_hook.h"
#include "support/import_entry.h"

#include <dwrite.h>
#include <dxgi1_3.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace zq::LM::test {

namespace {

// A function that goes on to the system.
template <MethodName Name, typename Signature> struct FunctionHook;

template <MethodName Name, typename Result, typename... Arguments>
struct FunctionHook<Name, Result(Arguments...)> {
    static inline Result(WINAPI* original)(Arguments...) = nullptr;

    static Result WINAPI Call(Arguments... arguments)
    {
        CallScope scope(LUMORA_CALLER, nullptr, Name.text);
        if (!scope.IsRecorded()) {
            return original(arguments...);
        }
        scope.Arguments(arguments...);
        return Make<Result>(scope, original, arguments...);
    }

    static void KeepOriginal(void* function) { original = reinterpret_cast<decltype(original)>(function); }
};

// A function that the system has no use for: the stand-in's own device.
template <MethodName Name, typename Device>
HRESULT WINAPI CreateCompositionDevice(Device* device, const GUID& id, void** out)
{
    CallScope scope(LUMORA_CALLER, nullptr, Name.text);
    scope.Arguments(device, id);
    *out = nullptr;
    if (const auto chosen = scope.Chosen()) {
        return scope.Result(*chosen);
    }
    const HRESULT result = CompositionDevice::Create(id, out);
    if (SUCCEEDED(result)) {
        scope.Made(*out, CompositionDevice::Kind);
    }
    return scope.Result(result);
}

using D3DHook = FunctionHook<"D3D11CreateDevice",
                             HRESULT(IDXGIAdapter*, D3D_DRIVER_TYPE, HMODULE, UINT, const D3D_FEATURE_LEVEL*,
                                     UINT, UINT, ID3D11Device**, D3D_FEATURE_LEVEL*, ID3D11DeviceContext**)>;
using DxgiHook = FunctionHook<"CreateDXGIFactory2", HRESULT(UINT, const GUID&, void**)>;
using D2DHook = FunctionHook<"D2D1CreateFactory",
                             HRESULT(D2D1_FACTORY_TYPE, const GUID&, const D2D1_FACTORY_OPTIONS*, void**)>;
using WriteHook = FunctionHook<"DWriteCreateFactory", HRESULT(DWRITE_FACTORY_TYPE, const GUID&, IUnknown**)>;

struct Rerouted {
    const char* dll;
    const char* function;
    void* replacement;
    void (*keepOriginal)(void*);
};

template <typename Hook> Rerouted Through(const char* dll, const char* function)
{
    return {dll, function, AsAddress(Hook::Call), Hook::KeepOriginal};
}

void KeepNothing(void*) {}

// What every module that draws needs comes first, then what the engine needs.
constexpr std::size_t DrawingFunctions = 2;

std::vector<Rerouted> AllRerouted()
{
    return {Through<D2DHook>("d2d1.dll", "D2D1CreateFactory"),
            Through<WriteHook>("dwrite.dll", "DWriteCreateFactory"),
            Through<D3DHook>("d3d11.dll", "D3D11CreateDevice"),
            Through<DxgiHook>("dxgi.dll", "CreateDXGIFactory2"),
            {"dcomp.dll", "DCompositionCreateDevice",
             AsAddress(CreateCompositionDevice<"DCompositionCreateDevice", IDXGIDevice>), KeepNothing},
            {"dcomp.dll", "DCompositionCreateDevice3",
             AsAddress(CreateCompositionDevice<"DCompositionCreateDevice3", IUnknown>), KeepNothing}};
}

} // namespace

EntryPoints::EntryPoints(HMODULE module)
{
    const std::vector<Rerouted> all = AllRerouted();
    std::vector<Rerouted> imported;
    std::string missing;
    for (const Rerouted& each : all) {
        if (void** entry = FindImportEntry(module, each.dll, each.function)) {
            imported.push_back(each);
            places.push_back({entry, *entry});
        } else if (missing.empty()) {
            missing = each.function;
        }
    }
    const bool drawsOnly = imported.size() == DrawingFunctions && missing == all[DrawingFunctions].function;
    if (!missing.empty() && !drawsOnly) {
        throw std::runtime_error("the module does not import " + missing);
    }
    for (std::size_t i = 0; i < imported.size(); ++i) {
        imported[i].keepOriginal(places[i].original);
        WriteEntry(places[i].entry, imported[i].replacement);
    }
}

EntryPoints::~EntryPoints()
{
    for (const Place& place : places) {
        WriteEntry(place.entry, place.original);
    }
}

} // namespace zq::LM::test
