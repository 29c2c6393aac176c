#include "view/drcanvas.h"

#include "tests/view/boardfixture.h"

namespace {

const QColor playing(118, 118, 118);
const QColor other(138, 138, 138);
const QColor next(108, 108, 255);
const QColor path(255, 108, 108);

using DrCanvasTest = BoardFixture;

TEST_F(DrCanvasTest, SquaresFillTheBoardFromTheBottomUp) {
    EXPECT_EQ(pixel(0, 207), QColor(Qt::black)); // the outline, inside the square
    EXPECT_EQ(pixel(1, 208), playing);
    EXPECT_EQ(pixel(21, 228), playing);
    EXPECT_EQ(fill(1, 0), other);
}

TEST_F(DrCanvasTest, EverySizeOfBoardIsWholeAndLeavesTheRestWhite) {
    const struct { int size, board; } cases[] = {{6, 228}, {8, 224}, {10, 230}, {12, 228}};
    for (const auto &c : cases) {
        metrics.size = c.size;
        metrics.setWH(230, 230);
        metrics.w = metrics.h = 230; // as a change of size leaves them: a strip may be over
        DrCanvas2 sized(&metrics);
        view.setCanvas(&sized);
        view.resize();
        const int last = c.board - 1;
        EXPECT_EQ(pixel(last, last), QColor(Qt::black)) << c.size;
        EXPECT_EQ(fill(c.size - 1, 0), other) << c.size;
        if (c.board < 230) {
            EXPECT_EQ(pixel(c.board, c.board), QColor(Qt::white)) << c.size;
        }
    }
}

TEST_F(DrCanvasTest, MarksColourPlayingSquaresOnly) {
    canvas.markSQ(2, 4, MarkNext);
    canvas.markSQ(4, 4, MarkPath);
    canvas.markSQ(6, 4, static_cast<MarkType>(7));
    canvas.markSQ(3, 4, MarkNext);
    EXPECT_EQ(canvas.isMarked(2, 4), MarkNext);
    EXPECT_EQ(canvas.isMarked(6, 4), static_cast<MarkType>(7));
    EXPECT_EQ(canvas.isMarked(3, 4), MarkNone);
    EXPECT_EQ(fill(2, 4), next);
    EXPECT_EQ(fill(4, 4), path);
    EXPECT_EQ(fill(6, 4), playing);
    EXPECT_EQ(fill(3, 4), other);

    canvas.markSQ(2, 4, MarkNone);
    EXPECT_EQ(fill(2, 4), playing);
}

TEST_F(DrCanvasTest, SquaresOutsideTheBoardTakeNoMarks) {
    const XY outside[] = {{-1, -1}, {-2, 0}, {10, 10}, {0, 10}, {11, 11}, {12, 12}, {100, 0}};
    for (const XY &square : outside) {
        canvas.markSQ(square.x, square.y, MarkNext);
        canvas.ownedBy(square.x, square.y, 4);
        EXPECT_EQ(canvas.isMarked(square.x, square.y), MarkNone) << square.x << ',' << square.y;
    }
}

TEST_F(DrCanvasTest, LayingOutAgainKeepsMarksAndMovesSquares) {
    canvas.markSQ(2, 4, MarkNext);
    metrics.setWH(120, 120);
    canvas.resize(metrics.getW(), metrics.getH());
    view.resize();
    canvas.resizeSquares();
    EXPECT_EQ(view.viewport()->size(), QSize(120, 120));
    EXPECT_EQ(canvas.isMarked(2, 4), MarkNext);
    EXPECT_EQ(pixel(25, 61), next);
    EXPECT_EQ(pixel(24, 60), QColor(Qt::black));
}

TEST_F(DrCanvasTest, OwnersColourAllButTheSquaresThatMayBeTapped) {
    canvas.markSQ(2, 2, MarkNext);
    canvas.markSQ(4, 4, MarkPath);
    canvas.ownedBy(2, 2, 4);
    canvas.ownedBy(4, 4, 4);
    canvas.ownedBy(5, 5, 8);
    canvas.ownedBy(6, 6, 0);
    canvas.ownedBy(6, 5, 8);
    EXPECT_EQ(fill(2, 2), next);
    EXPECT_EQ(fill(4, 4), QColor(108, 128, 108));
    EXPECT_EQ(fill(5, 5), QColor(128, 108, 108));
    EXPECT_EQ(fill(6, 6), QColor(108, 108, 108));
    EXPECT_EQ(fill(6, 5), other);

    canvas.reset();
    EXPECT_EQ(canvas.isMarked(2, 2), MarkNone);
    EXPECT_EQ(canvas.isMarked(4, 4), MarkNone);
    EXPECT_EQ(fill(5, 5), QColor(108, 108, 108));
    canvas.ownedBy(2, 2, 4);
    EXPECT_EQ(fill(2, 2), QColor(108, 128, 108));
}

} // namespace
