// Squares and pixels.

#include "view/boardmetrics.h"

#include <gtest/gtest.h>

TEST(BoardMetrics, BoardIsTheLargestWholeNumberOfSquares) {
    constexpr struct {
        int size, square, board;
    } cases[] = {{6, 38, 228}, {8, 28, 224}, {10, 23, 230}, {12, 19, 228}};
    boardMetrics metrics(6, 240, 240);
    EXPECT_EQ(metrics.size, 7) << "the constructor's least";
    for (const auto &[size, square, board] : cases) {
        metrics.size = size;
        metrics.setWH(230, 230);
        EXPECT_EQ(metrics.SquareWidthB(), square);
        EXPECT_EQ(metrics.getW(), board);
    }
}

TEST(BoardMetrics, EveryPixelOfASquareLeadsBackToIt) {
    boardMetrics metrics(10, 230, 230);
    for (const bool flipped : {true, false}) {
        EXPECT_NE(metrics.flipBoard(flipped), flipped) << "what it was before";
        EXPECT_EQ(metrics.BxToScr(9), flipped ? 0 : 207);
        EXPECT_EQ(metrics.ByToScr(0), flipped ? 0 : 207);
        for (int pixel = 0; pixel < 230; ++pixel) {
            const int square = pixel / 23 * 23;
            EXPECT_EQ(metrics.BxToScr(metrics.ScrToBx(pixel)), square) << pixel;
            EXPECT_EQ(metrics.ByToScr(metrics.ScrToBy(pixel)), square) << pixel;
        }
    }
}
