// A test with a Board: a screen of its choice, and what the Board has handed out.
#pragma once

#include "board/board_window.h"
#include "canvas_pixels.h"

#include "support/hook/import_hook.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace lumora_pen::test {

using zq::LM::test::Hook;

using Place = std::pair<double, double>; // of a sample

// The system's calls by which the window gets its picture are watched.
class BoardTest : public testing::Test {
protected:
    BoardTest()
    {
        metrics.Answer([this](int which) {
            switch (which) {
            case SM_XVIRTUALSCREEN:
                return static_cast<int>(screen.left);
            case SM_YVIRTUALSCREEN:
                return static_cast<int>(screen.top);
            case SM_CXVIRTUALSCREEN:
                return static_cast<int>(screen.Width());
            case SM_CYVIRTUALSCREEN:
                return static_cast<int>(screen.Height());
            default:
                return metrics.Real(which);
            }
        });
        parts.Before([this](HWND, const UPDATELAYEREDWINDOWINFO* info) {
            part = info->prcDirty != nullptr ? std::optional(*info->prcDirty) : std::nullopt;
        });
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return SendMessageW(board.Window(), message, wParam, lParam);
    }

    // A message of the mouse at a place of the screen.
    LRESULT SendMouse(UINT message, int x, int y, bool isDown = true)
    {
        return Send(message, isDown ? MK_LBUTTON : 0, MAKELPARAM(x - screen.left, y - screen.top));
    }

    bool DrawLine(int x1, int y1, int x2, int y2)
    {
        return board.Draw(std::vector<InkPoint>{{1.0 * x1, 1.0 * y1, 6, 0}, {1.0 * x2, 1.0 * y2, 6, 0}}, Red);
    }

    void FailBothUpdates()
    {
        parts.Fail(FALSE);
        wholes.Fail(FALSE);
    }

    void ExpectPart(const PixelRectangle& expected) const
    {
        ASSERT_TRUE(part.has_value());
        EXPECT_EQ((PixelRectangle{part->left, part->top, part->right, part->bottom}), expected);
    }

    void ExpectWindowAt(const PixelRectangle& area) const
    {
        RECT place = {};
        GetWindowRect(board.Window(), &place);
        EXPECT_EQ((PixelRectangle{place.left, place.top, place.right, place.bottom}), area);
    }

    static std::vector<Place> PlacesOf(const InputBatch& batch)
    {
        std::vector<Place> places;
        for (const InputSample& sample : batch.samples) {
            places.emplace_back(sample.x, sample.y);
        }
        return places;
    }

    static std::vector<std::int32_t> PressuresOf(const InputBatch& batch)
    {
        std::vector<std::int32_t> felt;
        for (const InputSample& sample : batch.samples) {
            felt.push_back(sample.pressure);
        }
        return felt;
    }

    std::uint32_t At(int x, int y) const { return PixelOf(board.Canvas(), x, y); }

    HMODULE program = GetModuleHandleW(nullptr);
    PixelRectangle screen = {0, 0, 1024, 768};
    Hook<"GetSystemMetrics", decltype(GetSystemMetrics)> metrics{program};
    Hook<"UpdateLayeredWindowIndirect", decltype(UpdateLayeredWindowIndirect)> parts{program};
    Hook<"UpdateLayeredWindow", decltype(UpdateLayeredWindow)> wholes{program};
    Hook<"CreateDIBSection", decltype(CreateDIBSection)> bitmaps{program};
    std::optional<RECT> part; // of the last update
    std::vector<InputBatch> taken;
    std::function<void()> onTake;
    BoardWindow board{[this](const InputBatch& batch) {
        taken.push_back(batch);
        if (onTake) {
            onTake();
        }
    }};
};

} // namespace lumora_pen::test
