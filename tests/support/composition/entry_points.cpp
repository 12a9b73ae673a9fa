// The functions with which a module begins with graphics, rerouted to the stand-in.
#include "support/composition/entry_points.h"

#include "support/composition/composition_device.h"
#include "support/composition/method_hook.h"

namespace zq::LM::test {

namespace {

// A function that goes on to the system. Nobody but the module calls through its imports.
template <FixedText name, typename Result, typename... Arguments>
void RecordAndPassOn(Hook<name, Result(Arguments...)>& hook)
{
    hook.Answer([&hook](Arguments... arguments) {
        CallScope scope(nullptr, nullptr, name.text);
        if (!scope.IsRecorded()) {
            return hook.Real(arguments...);
        }
        scope.Arguments(arguments...);
        return Make<Result>(
            scope, [&hook](Arguments... taken) { return hook.Real(taken...); }, arguments...);
    });
}

// A function that the system has no use for: the stand-in's own device.
template <FixedText name, typename Device>
void GiveDevice(Hook<name, HRESULT(Device*, const GUID&, void**)>& hook)
{
    hook.Answer([](Device* device, const GUID& id, void** out) {
        CallScope scope(nullptr, nullptr, name.text);
        scope.Arguments(device, id);
        return scope.Give(out, CompositionDevice::Kind, [&] { return CompositionDevice::Create(id, out); });
    });
}

} // namespace

EntryPoints::EntryPoints(HMODULE module) : d2d(module), write(module)
{
    RecordAndPassOn(d2d);
    RecordAndPassOn(write);
    if (FindImport(module, "D3D11CreateDevice") != nullptr ||
        FindImport(module, "DCompositionCreateDevice") != nullptr) {
        engine.emplace(module);
    }
}

EntryPoints::Engine::Engine(HMODULE module)
    : d3d(module), dxgi(module), composition(module), thirdComposition(module)
{
    RecordAndPassOn(d3d);
    RecordAndPassOn(dxgi);
    GiveDevice(composition);
    GiveDevice(thirdComposition);
}

} // namespace zq::LM::test
