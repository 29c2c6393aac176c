// What the board shows, pixel by pixel, how its pieces fly, and which taps it reports.

#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QMap>
#include <QMouseEvent>
#include <QPixmap>
#include <QSignalSpy>

#include <memory>
#include <tuple>

namespace {

struct BoardTest : testing::Test {
    boardMetrics metrics{10, 230, 230};
    DrCanvas2 canvas{&metrics};
    MyCanvasView view{&canvas, nullptr, &metrics};

    DrCanvasPiece *place(int code, int bx, int by) {
        auto *piece = new DrCanvasPiece(23, 23, &canvas, nullptr, &metrics);
        piece->setType(code);
        piece->setBoardPos(bx, by);
        return piece;
    }
};

// The board is the largest whole number of squares; every pixel of a square leads back to it.
TEST_F(BoardTest, PixelsAndSquaresLeadToEachOther) {
    const struct { int size, square; } cases[] = {{6, 38}, {8, 28}, {10, 23}, {12, 19}};
    boardMetrics &m = metrics;
    for (int round = 0; round < 8; ++round) {
        const bool flipped = round >= 4;
        const auto [size, square] = cases[round % 4];
        SCOPED_TRACE(testing::Message() << size << (flipped ? " flipped" : ""));
        m.size = size;
        m.setWH(230, 200); // squares that are not square
        m.flipBoard(flipped);
        EXPECT_EQ(m.getW(), square * size);
        EXPECT_EQ(m.BxToScr(0), flipped ? square * (size - 1) : 0);
        EXPECT_EQ(m.ByToScr(size - 1), flipped ? 200 / size * (size - 1) : 0);
        for (int b = 0; b < size; ++b) {
            for (const int inset : {0, 200 / size - 1}) {
                EXPECT_EQ(m.ScrToBx(m.BxToScr(b) + inset), b);
                EXPECT_EQ(m.ScrToBy(m.ByToScr(b) + inset), b);
            }
        }
    }
    EXPECT_DOUBLE_EQ(m.DistanceB(0, 0, 3, 0), 3 * 19);
}

TEST_F(BoardTest, SquaresTakeTheColoursOfMarksAndOwners) {
    const std::tuple<int, int, MarkType, int, const char *, const char *> cases[] = {
        {2, 4, MarkNext, 4, "#6c6cff", "#6c6cff"},
        {4, 4, MarkPath, 4, "#ff6c6c", "#6c806c"},
        {5, 5, MarkNone, 8, "#767676", "#806c6c"},
        {0, 0, MarkNone, 0, "#767676", "#6c6c6c"},
        {3, 4, MarkNext, 8, "#8a8a8a", "#8a8a8a"}};
    for (const auto &[bx, by, mark, owner, marked, owned] : cases) {
        const QPoint at(metrics.BxToScr(bx) + 1, metrics.ByToScr(by) + 1);
        const auto fill = [&] { return view.viewport()->grab().toImage().pixelColor(at).name(); };
        canvas.markSQ(bx, by, mark);
        EXPECT_EQ(fill(), marked) << bx << ',' << by;
        EXPECT_EQ(canvas.isMarked(bx, by), (bx + by) % 2 == 0 ? mark : MarkNone);
        canvas.ownedBy(bx, by, owner);
        EXPECT_EQ(fill(), owned) << bx << ',' << by;
    }
    for (const XY outside : {XY(-1, -1), XY(10, 10), XY(0, 10), XY(12, 12)}) {
        canvas.markSQ(outside.x, outside.y, MarkNext);
        canvas.ownedBy(outside.x, outside.y, 4);
        EXPECT_EQ(canvas.isMarked(outside.x, outside.y), MarkNone);
    }
}

// Along the middle of the square from pixel (46, 161), its black outline included.
TEST_F(BoardTest, PiecesAreDiscsOfSeventeenPixelsWithCentreAndCross) {
    const std::pair<int, const char *> cases[] = {
        {5, "#..wwwwwwwwwwwwwwwww..#"},      {9, "#..#################..#"},
        {6, "#..wwwwrrrrrrrrrwwww..#"},      {10, "#..####rrrrrrrrr####..#"},
        {5 + 16, "#..wwwwwwxxxxxwwwwww..#"}, {10 + 16, "#..####rrxxxxxrr####..#"},
    };
    const QMap<QRgb, char> letters = {{qRgb(0, 0, 0), '#'},
                                      {qRgb(255, 255, 255), 'w'},
                                      {qRgb(255, 0, 0), 'r'},
                                      {qRgb(0, 255, 0), 'x'},
                                      {qRgb(118, 118, 118), '.'}};
    for (const auto &[code, middle] : cases) {
        const std::unique_ptr<DrCanvasPiece> piece(place(code, 2, 2));
        const QImage square = view.viewport()->grab(QRect(46, 161, 23, 23)).toImage();
        std::string row, column;
        for (int at = 0; at < 23; ++at) {
            row += letters.value(square.pixel(at, 11), '?');
            column += letters.value(square.pixel(11, at), '?');
        }
        EXPECT_EQ(row, middle) << code;
        EXPECT_EQ(column, middle) << code;
    }
}

TEST_F(BoardTest, PressesBecomePlayingSquares) {
    QSignalSpy taps{&view, &MyCanvasView::clickedBxy};
    metrics.size = 8; // 28 pixels a square, a strip of 6 over
    const std::pair<QPointF, QVariantList> cases[] = {
        {{27.67, 196.67}, {0, 0, false}},
        {{28, 195}, {1, 1, false}},
        {{223, 0}, {7, 7, false}},
        {{0, 223}, {0, 0, true}}, // with the right button
        {{28, 223}, {}},
        {{225, 0}, {}},
        {{0, 225}, {}}};
    for (const auto &[at, tap] : cases) {
        const auto button = tap.value(2).toBool() ? Qt::RightButton : Qt::LeftButton;
        // A second quick press arrives as a double click.
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
            taps.clear();
            QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), button, button, {});
            QCoreApplication::sendEvent(view.viewport(), &event);
            EXPECT_EQ(taps.value(0), tap) << at.x() << ',' << at.y();
        }
    }
}

struct FlightTest : BoardTest {
    // Sends a new piece from (1,1) on its way along "44 24": columns and rows.
    DrCanvasPiece *launch(const std::string &squares) {
        path.resize(0);
        for (std::size_t i = 0; i < squares.size(); i += 3)
            path.append({squares[i] - '0', squares[i + 1] - '0'});
        DrCanvasPiece *piece = place(5, 1, 1);
        piece->setDanceTo(&path);
        return piece;
    }
    // The number of steps until the piece rests on its square, or 1000 when it never does.
    int stepsToEnd(DrCanvasPiece *piece, int bx, int by) {
        int steps = 0;
        for (; piece->isDancing() && steps < 1000; ++steps) {
            piece->advance(0);
            piece->advance(1);
        }
        EXPECT_EQ(XY(piece->boardX(), piece->boardY()), XY(bx, by));
        EXPECT_EQ(piece->boundingRect(), QRect(metrics.BxToScr(bx), metrics.ByToScr(by),
                                               metrics.SquareWidthB(), metrics.SquareHeightB()));
        EXPECT_EQ(piece->z(), 1);
        return steps;
    }

    QArray<XY> path;
    QSignalSpy flights{&canvas, &DrCanvas::signalFly};
    QSignalSpy dances{&canvas, &DrCanvas::signalDance};
};

TEST_F(FlightTest, OneSquareTakesSixStepsWithItsEndsMarked) {
    DrCanvasPiece *piece = launch("22");
    EXPECT_EQ(canvas.isMarked(1, 1), MarkPath);
    for (int step = 1; step <= 5; ++step) {
        piece->advance(1);
        EXPECT_EQ(piece->z(), 2);
        EXPECT_NEAR(piece->x(), 23 + step * 23 / 5.0, 1e-9);
        EXPECT_NEAR(piece->y(), 184 - step * 23 / 5.0, 1e-9);
        EXPECT_EQ(canvas.isMarked(2, 2), MarkNone);
    }
    EXPECT_EQ(dances.count(), 0);
    EXPECT_EQ(stepsToEnd(piece, 2, 2), 1);
    EXPECT_EQ(canvas.isMarked(2, 2), MarkPath);
}

} // namespace
