#include "view/boardmetrics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace {

TEST(BoardMetricsTest, ConstructionLimitsTheSizeOnly) {
    for (const auto &[asked, kept] : {std::pair{6, 7}, {7, 7}, {10, 10}, {12, 12}, {20, 12}})
        EXPECT_EQ(boardMetrics(asked, 241, 243).size, kept);
    EXPECT_EQ(boardMetrics(10, 241, 243).getW(), 241);
    EXPECT_EQ(boardMetrics(10, 241, 243).getH(), 243);
}

TEST(BoardMetricsTest, TheBoardIsTheLargestWholeNumberOfSquares) {
    const struct {
        int size, square, board;
    } cases[] = {{6, 38, 228}, {8, 28, 224}, {10, 23, 230}, {12, 19, 228}};
    for (const auto &c : cases) {
        boardMetrics metrics(10, 240, 240);
        metrics.size = c.size;
        metrics.setWH(230, 230);
        EXPECT_EQ(metrics.SquareWidthB(), c.square) << c.size << " squares";
        EXPECT_EQ(metrics.getH(), c.board) << c.size << " squares";
    }
}

TEST(BoardMetricsTest, CornersLieWhereTheFlipPutsThem) {
    boardMetrics metrics(10, 230, 230);
    EXPECT_EQ(metrics.BxToScr(0), 0);
    EXPECT_EQ(metrics.ByToScr(0), 207);
    EXPECT_EQ(metrics.ByToScr(9), 0);
    EXPECT_FALSE(metrics.flipBoard(true));
    EXPECT_EQ(metrics.BxToScr(0), 207);
    EXPECT_EQ(metrics.ByToScr(0), 0);
    EXPECT_TRUE(metrics.flipBoard(false));
}

TEST(BoardMetricsTest, EveryPixelOfASquareLeadsBackToIt) {
    for (const bool flipped : {false, true}) {
        for (const int size : {6, 8, 10, 12}) {
            boardMetrics metrics(10, 240, 240);
            metrics.size = size;
            metrics.setWH(230, 200); // squares that are not square
            metrics.flipBoard(flipped);
            for (int b = 0; b < size; ++b) {
                for (const int inset : {0, metrics.SquareWidthB() - 1})
                    EXPECT_EQ(metrics.ScrToBx(metrics.BxToScr(b) + inset), b) << size;
                for (const int inset : {0, metrics.SquareHeightB() - 1})
                    EXPECT_EQ(metrics.ScrToBy(metrics.ByToScr(b) + inset), b) << size;
            }
        }
    }
}

TEST(BoardMetricsTest, DistancesAreBetweenTopLeftCorners) {
    boardMetrics metrics(10, 230, 400); // squares of 23 x 40
    EXPECT_DOUBLE_EQ(metrics.DistanceB(3, 4, 3, 4), 0);
    EXPECT_DOUBLE_EQ(metrics.DistanceB(1, 2, 5, 2), 4 * 23);
    const double diagonal = std::sqrt(23.0 * 23 + 40.0 * 40);
    EXPECT_DOUBLE_EQ(metrics.DistanceB(0, 0, 1, 1), diagonal);
    EXPECT_DOUBLE_EQ(metrics.DistanceB(7, 3, 6, 4), diagonal);
    metrics.flipBoard(true);
    EXPECT_DOUBLE_EQ(metrics.DistanceB(0, 0, 1, 1), diagonal);
    EXPECT_DOUBLE_EQ(metrics.Distance(1.5, 2, -1.5, 6), 5);
}

} // namespace
