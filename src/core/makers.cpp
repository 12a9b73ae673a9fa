// How a Core comes by the parts that need a graphics device, the network or a person.
#include "core/makers.h"

#include "platform/make_or_null.h"
#include "render/d2d.h"
#include "render/direct_composition.h"
#include "render/gdi.h"
#include "settings/settings_dialog.h"

namespace zq::LM {

namespace {

template <typename BackEnd> std::unique_ptr<DrawingLib> MakeBackEnd(PaintRecord& record)
{
    return MakeOrNull<BackEnd>(record);
}

std::unique_ptr<DrawingLib> MakeComposition(PaintRecord&) { return MakeOrNull<DirectComposition>(); }

Owned<ParamsView> MakeDialog(HWND parent, HMODULE module, Params* record)
{
    auto dialog = MakeOrNull<SettingsDialog>(parent, module);
    if (dialog != nullptr) {
        dialog->SetRecord(record);
    }
    return Owned<ParamsView>(dialog.release());
}

std::unique_ptr<BrushDataServer> MakeServer(std::uint16_t port) { return MakeOrNull<BrushDataServer>(port); }

} // namespace

const Makers LibraryMakers = {
    .backEnds = {MakeComposition, MakeBackEnd<D2D>, MakeBackEnd<GDI>},
    .paramsView = MakeDialog,
    .brushDataServer = MakeServer,
};

} // namespace zq::LM
