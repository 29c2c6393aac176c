// Start positions and what is counted on a board.

#include "rules/board.h"

#include <gtest/gtest.h>

namespace {

// Few pieces are left from five eighths of them on.
TEST(Board, StartPositions) {
    constexpr struct {
        int size, pieces, gambit;
    } cases[] = {{6, 12, 7}, {8, 24, 15}, {10, 40, 25}, {12, 60, 37}};
    for (const auto &c : cases) {
        board b(c.size);
        EXPECT_EQ(b.StaringNumber(), c.pieces);
        int white = -1, black = -1;
        b.countPieces(white, black);
        EXPECT_EQ(white, c.pieces / 2);
        EXPECT_EQ(black, c.pieces / 2);
        for (int i = 0, left = c.pieces; i < c.size * c.size; ++i) {
            EXPECT_EQ(b.isGambit(), left <= c.gambit) << c.size << ", pieces left " << left;
            left -= b.squares[i / c.size][i % c.size] != 0;
            b.squares[i / c.size][i % c.size] = 0;
        }
    }
}

} // namespace
