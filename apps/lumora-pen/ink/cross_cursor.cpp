// The pointer of the Board.
#include "ink/cross_cursor.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace lumora_pen {

namespace {

// Four arms that leave room for a dot, the place itself.
bool IsBlack(int across, int down, int arm)
{
    constexpr int Gap = 3;
    const int farther = (std::max)(std::abs(across), std::abs(down));
    const bool isOnAxis = across == 0 || down == 0;
    return isOnAxis && (farther == 0 || (farther >= Gap && farther <= arm));
}

bool IsAtBlack(int across, int down, int arm)
{
    for (int x = across - 1; x <= across + 1; ++x) {
        for (int y = down - 1; y <= down + 1; ++y) {
            if (IsBlack(x, y, arm)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

CursorMasks CrossMasks(int width, int height)
{
    CursorMasks masks;
    masks.hotX = width / 2;
    masks.hotY = height / 2;
    const int arm = (std::min)(width, height) / 3;
    const auto rowBytes = static_cast<std::size_t>(width + 15) / 16 * 2;
    masks.keep.assign(rowBytes * static_cast<std::size_t>(height), 0xFF);
    masks.white.assign(masks.keep.size(), 0);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const std::size_t place =
                static_cast<std::size_t>(y) * rowBytes + static_cast<std::size_t>(x / 8);
            const auto bit = static_cast<std::uint8_t>(0x80U >> static_cast<unsigned>(x % 8));
            const bool isBlack = IsBlack(x - masks.hotX, y - masks.hotY, arm);
            if (isBlack || IsAtBlack(x - masks.hotX, y - masks.hotY, arm)) {
                masks.keep[place] &= static_cast<std::uint8_t>(~bit);
                masks.white[place] |= isBlack ? std::uint8_t{0} : bit;
            }
        }
    }
    return masks;
}

} // namespace lumora_pen
