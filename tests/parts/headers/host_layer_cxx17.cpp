// The C++ layer over the host's functions, in C++17: compiled, never linked.
#include "lumora/lumora.hpp"

#include <type_traits>
#include <vector>

static_assert(std::is_nothrow_move_constructible_v<lumora::Overlay>);
static_assert(std::is_nothrow_move_assignable_v<lumora::Overlay>);
static_assert(!std::is_copy_constructible_v<lumora::Overlay> && !std::is_copy_assignable_v<lumora::Overlay>);
static_assert(std::is_base_of_v<std::runtime_error, lumora::Error>);

// A host's whole session.
void UseTheLayer(MSG& message);

void UseTheLayer(MSG& message)
{
    lumora::OverlayOptions options;
    options.backEnd = lumora::BackEnd::GDI;
    lumora::Overlay overlay(options);
    lumora::Overlay moved = std::move(overlay);
    moved.ChangeParams([](lumora::Params& params) { params.inkColor = {200, 0, 0}; });
    moved.Input({moved.SampleAt({1, 2}, 3)});
    moved.Input(std::vector<LM_PenData>(2));
    moved.Send(lumora::MakeInkColor(0x000000FF));
    moved.OpenSettings();
    if (!moved.HandleDialogMessage(message)) {
        DispatchMessageW(&message);
    }
    moved.Use(lumora::BackEnd::Direct2D);
}
