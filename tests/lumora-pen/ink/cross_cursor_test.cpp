// The pointer of the Board, as text.
#include "ink/cross_cursor.h"

#include <gtest/gtest.h>

#include <string>

namespace lumora_pen {
namespace {

// A row: '#' black, 'o' white, '.' see-through, '!' inverted.
std::string Row(const CursorMasks& masks, int y, int width)
{
    const auto rowBytes = static_cast<std::size_t>(width + 15) / 16 * 2;
    std::string row;
    for (int x = 0; x < width; ++x) {
        const std::size_t place = static_cast<std::size_t>(y) * rowBytes + static_cast<std::size_t>(x / 8);
        const unsigned bit = 0x80U >> static_cast<unsigned>(x % 8);
        const bool isKept = (masks.keep[place] & bit) != 0;
        const bool isWhite = (masks.white[place] & bit) != 0;
        row += isKept ? (isWhite ? '!' : '.') : (isWhite ? 'o' : '#');
    }
    return row;
}

std::vector<std::string> Rows(int width, int height)
{
    const CursorMasks masks = CrossMasks(width, height);
    std::vector<std::string> rows;
    for (int y = 0; y < height; ++y) {
        rows.push_back(Row(masks, y, width));
    }
    return rows;
}

TEST(CrossCursor, IsACrossAroundADot)
{
    const std::string none = "...................";
    const std::string end = "........ooo........";
    const std::string arm = "........o#o........";
    const std::string edge = "..ooooooooooooooo..";
    EXPECT_EQ(Rows(19, 19),
              (std::vector<std::string>{none, none, end, arm, arm, arm, arm, end, edge, "..o####oo#oo####o..",
                                        edge, end, arm, arm, arm, arm, end, none, none}));
}

TEST(CrossCursor, HasItsPlaceInTheMiddle)
{
    const CursorMasks masks = CrossMasks(32, 32);
    EXPECT_EQ(masks.hotX, 16);
    EXPECT_EQ(masks.hotY, 16);
    EXPECT_EQ(Row(masks, 16, 32)[16], '#');
}

TEST(CrossCursor, IsNeverInvertedNorBlackWithoutAWhiteEdge)
{
    for (const int size : {16, 32, 33, 48, 64, 96}) {
        const std::vector<std::string> rows = Rows(size, size);
        int blacks = 0;
        for (int y = 1; y + 1 < size; ++y) {
            for (int x = 1; x + 1 < size; ++x) {
                const auto at = [&](int dx, int dy) {
                    const int row = y + dy;
                    const int column = x + dx;
                    return rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
                };
                ASSERT_NE(at(0, 0), '!');
                if (at(0, 0) == '#') {
                    ++blacks;
                    const int whites =
                        (at(-1, 0) == 'o') + (at(1, 0) == 'o') + (at(0, -1) == 'o') + (at(0, 1) == 'o');
                    EXPECT_GE(whites, 2) << size << ": " << x << ", " << y;
                    EXPECT_NE(at(-1, 0), '.');
                    EXPECT_NE(at(1, 0), '.');
                }
            }
        }
        EXPECT_GT(blacks, size / 3);
    }
}

TEST(CrossCursor, HasRowsOfWholeWords)
{
    EXPECT_EQ(CrossMasks(33, 10).keep.size(), 60U);
    EXPECT_EQ(CrossMasks(32, 10).white.size(), 40U);
    EXPECT_EQ(CrossMasks(0, 0).keep.size(), 0U);
}

} // namespace
} // namespace lumora_pen
