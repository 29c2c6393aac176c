// What the board shows, pixel by pixel, and which taps it reports.

#include "tests/support/recordinghost.h"
#include "tests/view/boardfixture.h"

#include <QImage>
#include <QMap>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

namespace {

struct BoardTest : BoardFixture {
    // The colour of a square's fill that no piece covers.
    std::string fill(int bx, int by) {
        const QImage image = view.viewport()->grab().toImage();
        const QPoint inside(metrics.BxToScr(bx) + 1, metrics.ByToScr(by) + 1);
        return image.pixelColor(inside).name().toStdString();
    }
};

// The board is the largest whole number of squares; every pixel of a square leads back to it.
TEST_F(BoardTest, PixelsAndSquaresLeadToEachOther) {
    const struct { int size, square; } cases[] = {{6, 38}, {8, 28}, {10, 23}, {12, 19}};
    for (const auto &[size, square] : cases) {
        for (const bool flipped : {false, true}) {
            SCOPED_TRACE(testing::Message() << size << (flipped ? " flipped" : ""));
            boardMetrics m(10, 240, 240);
            m.size = size;
            m.setWH(230, 200); // squares that are not square
            EXPECT_FALSE(m.flipBoard(flipped));
            EXPECT_EQ(m.getW(), square * size);
            EXPECT_EQ(m.BxToScr(0), flipped ? square * (size - 1) : 0);
            EXPECT_EQ(m.ByToScr(size - 1), flipped ? 200 / size * (size - 1) : 0);
            for (int b = 0; b < size; ++b) {
                for (const int inset : {0, 200 / size - 1}) {
                    EXPECT_EQ(m.ScrToBx(m.BxToScr(b) + inset), b);
                    EXPECT_EQ(m.ScrToBy(m.ByToScr(b) + inset), b);
                }
            }
            EXPECT_DOUBLE_EQ(m.DistanceB(1, 2, 4, 2), 3 * square);
        }
    }
    metrics.setWH(30, 40);
    EXPECT_DOUBLE_EQ(metrics.DistanceB(0, 0, 1, 1), 5);
    EXPECT_DOUBLE_EQ(metrics.Distance(1.5, 2, -1.5, 6), 5);
}

TEST_F(BoardTest, SquaresTakeTheColoursOfMarksAndOwners) {
    const struct {
        int bx, by;
        MarkType mark;
        int owner;
        const char *marked, *owned;
    } cases[] = {
        {2, 4, MarkNext, 4, "#6c6cff", "#6c6cff"},
        {4, 4, MarkPath, 4, "#ff6c6c", "#6c806c"},
        {5, 5, MarkNone, 8, "#767676", "#806c6c"},
        {0, 0, static_cast<MarkType>(7), 0, "#767676", "#6c6c6c"},
        {3, 4, MarkNext, 8, "#8a8a8a", "#8a8a8a"},
    };
    for (const auto &[bx, by, mark, owner, marked, owned] : cases) {
        canvas.markSQ(bx, by, mark);
        EXPECT_EQ(fill(bx, by), marked) << bx << ',' << by;
        EXPECT_EQ(canvas.isMarked(bx, by), (bx + by) % 2 == 0 ? mark : MarkNone);
        canvas.ownedBy(bx, by, owner);
        EXPECT_EQ(fill(bx, by), owned) << bx << ',' << by;
    }
    canvas.reset();
    EXPECT_EQ(canvas.isMarked(4, 4), MarkNone);
    EXPECT_EQ(fill(5, 5), "#6c6c6c");
    for (const XY outside : {XY(-1, -1), XY(10, 10), XY(0, 10), XY(12, 12)}) {
        canvas.markSQ(outside.x, outside.y, MarkNext);
        canvas.ownedBy(outside.x, outside.y, 4);
        EXPECT_EQ(canvas.isMarked(outside.x, outside.y), MarkNone);
    }
}

// Along the middle of the square from pixel (46, 161), its black outline included.
TEST_F(BoardTest, PiecesAreDiscsOfSeventeenPixelsWithCentreAndCross) {
    const struct {
        int code;
        const char *middle;
    } cases[] = {
        {5, "#..wwwwwwwwwwwwwwwww..#"},      {9, "#..#################..#"},
        {6, "#..wwwwrrrrrrrrrwwww..#"},      {10, "#..####rrrrrrrrr####..#"},
        {5 + 16, "#..wwwwwwxxxxxwwwwww..#"}, {10 + 16, "#..####rrxxxxxrr####..#"},
        {5 + 32, "#..wwwwwwwwwwwwwwwww..#"}, {0, "#.....................#"},
    };
    const QMap<QRgb, char> letters = {{qRgb(0, 0, 0), '#'},
                                      {qRgb(255, 255, 255), 'w'},
                                      {qRgb(255, 0, 0), 'r'},
                                      {qRgb(0, 255, 0), 'x'},
                                      {qRgb(118, 118, 118), '.'}};
    const RecordingHost host;
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
    const std::vector<RecordingHost::Box> box{{BoxKind::Warning, "draw", "type == 0"}};
    EXPECT_EQ(host.boxes, box);
}

TEST_F(BoardTest, PressesBecomePlayingSquares) {
    QSignalSpy taps{&view, &MyCanvasView::clickedBxy};
    metrics.size = 8; // 28 pixels a square, a strip of 6 over
    const struct {
        double x, y;
        Qt::MouseButton button;
        QVariantList tap; // empty: none
    } cases[] = {
        {0, 223, Qt::LeftButton, {0, 0, false}},
        {27.67, 196.67, Qt::LeftButton, {0, 0, false}},
        {28, 195, Qt::LeftButton, {1, 1, false}},
        {28, 223, Qt::LeftButton, {}},
        {223, 0, Qt::LeftButton, {7, 7, false}},
        {0, 223, Qt::RightButton, {0, 0, true}},
        {225, 0, Qt::LeftButton, {}},
        {0, 225, Qt::LeftButton, {}},
    };
    for (const auto &[x, y, button, tap] : cases) {
        // A second quick press arrives as a double click.
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
            taps.clear();
            const QPointF at(x, y);
            QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), button, button, {});
            QCoreApplication::sendEvent(view.viewport(), &event);
            EXPECT_EQ(taps.value(0), tap) << x << ',' << y;
        }
    }
}

} // namespace
