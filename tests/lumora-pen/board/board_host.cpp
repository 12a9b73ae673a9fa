// The Board by itself, for tests with a real mouse: what is written dries at once, Escape hides it,
// Ctrl+Escape ends.
#include "board/board_window.h"
#include "ink/dry_stroke.h"

#include <cstdlib>

namespace {

constexpr lumora::Colour Ink = {224, 32, 32};
constexpr double Width = 10;
constexpr int HideKey = 1;
constexpr int EndKey = 2;

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int)
{
    lumora_pen::DryStroke stroke;
    lumora_pen::BoardWindow* shown = nullptr;
    lumora_pen::BoardWindow board([&](const lumora_pen::InputBatch& batch) {
        for (const lumora_pen::InputSample& sample : batch.samples) {
            if (sample.pressure > 0) {
                stroke.Add({sample.x, sample.y, Width, GetTickCount()});
            } else {
                shown->Draw(stroke.DryRest(), Ink);
                stroke = {};
            }
        }
        shown->Draw(stroke.Dry(GetTickCount(), 0), Ink);
    });
    shown = &board;
    if (!RegisterHotKey(nullptr, HideKey, 0, VK_ESCAPE) ||
        !RegisterHotKey(nullptr, EndKey, MOD_CONTROL, VK_ESCAPE) ||
        board.Show(nullptr) != lumora_pen::BoardState::TakesInputAndInk) {
        return EXIT_FAILURE;
    }
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_HOTKEY && message.wParam == EndKey) {
            break;
        }
        if (message.message == WM_HOTKEY) {
            board.Hide();
        }
        DispatchMessageW(&message);
    }
    return EXIT_SUCCESS;
}
