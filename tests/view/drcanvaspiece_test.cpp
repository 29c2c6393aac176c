#include "view/drcanvaspiece.h"

#include "tests/support/recordinghost.h"
#include "tests/view/boardfixture.h"

#include <QSignalSpy>

namespace {

struct DrCanvasPieceTest : BoardFixture {
    DrCanvasPiece *place(int code, int bx, int by) {
        auto *placed = new DrCanvasPiece(23, 23, &canvas, nullptr, &metrics);
        placed->setType(code);
        placed->setBoardPos(bx, by);
        return placed;
    }
    // Steps until the dance is over; the number of steps, or -1 when it never ends.
    static int stepsToEnd(DrCanvasPiece *piece) {
        for (int steps = 1; steps <= 1000; ++steps) {
            piece->advance(0);
            piece->advance(1);
            if (!piece->isDancing())
                return steps;
        }
        return -1;
    }
    static QArray<XY> pathOf(std::initializer_list<XY> squares) {
        QArray<XY> path;
        for (const XY &square : squares)
            path.append(square);
        return path;
    }
    void expectAtRestOn(const DrCanvasPiece *piece, int bx, int by) {
        EXPECT_EQ(piece->boardX(), bx);
        EXPECT_EQ(piece->boardY(), by);
        EXPECT_EQ(piece->x(), metrics.BxToScr(bx));
        EXPECT_EQ(piece->y(), metrics.ByToScr(by));
        EXPECT_EQ(piece->z(), 1);
        EXPECT_FALSE(piece->animated());
    }

    RecordingHost recorder;
    QSignalSpy flights{&canvas, &DrCanvas::signalFly};
    QSignalSpy dances{&canvas, &DrCanvas::signalDance};
};

TEST_F(DrCanvasPieceTest, DrawsDiscCentreAndCross) {
    const QColor white(Qt::white), black(Qt::black), red(Qt::red), green(Qt::green);
    const struct {
        int code;
        QColor body, centre;
    } cases[] = {{5, white, white},      {9, black, black},      {6, white, red},
                 {10, black, red},       {5 + 32, white, white}, {5 + 16, white, green},
                 {10 + 16, black, green}};
    for (const auto &c : cases) {
        DrCanvasPiece *piece = place(c.code, 2, 2); // from pixel (46, 161)
        EXPECT_EQ(pixel(46 + 11, 161 + 4), c.body) << c.code;
        EXPECT_EQ(pixel(46 + 11, 161 + 11), c.centre) << c.code;
        delete piece;
    }
    EXPECT_EQ(pixel(46 + 11, 161 + 11), QColor(118, 118, 118));
}

TEST_F(DrCanvasPieceTest, TheDiscIsSeventeenPixelsOfTwentyThree) {
    place(6, 2, 2);
    const QImage square = view.viewport()->grab(QRect(46, 161, 23, 23)).toImage();
    const QColor ground(118, 118, 118), body(Qt::white), centre(Qt::red);
    for (const auto &[at, color] : {std::pair{2, ground},
                                    {3, body},
                                    {6, body},
                                    {7, centre},
                                    {15, centre},
                                    {16, body},
                                    {19, body},
                                    {20, ground}}) {
        EXPECT_EQ(square.pixelColor(at, 11), color) << "column " << at;
        EXPECT_EQ(square.pixelColor(11, at), color) << "row " << at;
    }
}

TEST_F(DrCanvasPieceTest, CodeZeroIsReportedAndNotDrawn) {
    place(0, 2, 2);
    EXPECT_EQ(pixel(46 + 11, 161 + 11), QColor(118, 118, 118));
    const std::vector<RecordingHost::Box> box{{BoxKind::Warning, "draw", "type == 0"}};
    EXPECT_EQ(recorder.boxes, box);
}

TEST_F(DrCanvasPieceTest, SizingShowsItAndItsBoundsAreWholePixels) {
    auto *piece = new DrCanvasPiece(23, 23, &canvas, nullptr, &metrics);
    EXPECT_FALSE(piece->visible());
    piece->resize(23, 23);
    EXPECT_TRUE(piece->visible());
    piece->move(23.9, 46.2);
    EXPECT_EQ(piece->boundingRect(), QRect(23, 46, 23, 23));
    EXPECT_TRUE(piece->collidesWith(place(5, 1, 7)));  // from (23, 46)
    EXPECT_FALSE(piece->collidesWith(place(5, 2, 7))); // from (46, 46): only touches
}

TEST_F(DrCanvasPieceTest, OneSquareTakesSixSteps) {
    DrCanvasPiece *piece = place(5, 3, 3);
    QArray<XY> path = pathOf({{4, 4}});
    piece->setDanceTo(&path);
    EXPECT_EQ(canvas.isMarked(3, 3), MarkPath);
    EXPECT_EQ(canvas.isMarked(4, 4), MarkNone);
    for (int step = 1; step <= 5; ++step) {
        piece->advance(1);
        EXPECT_EQ(piece->z(), 2);
        EXPECT_NEAR(piece->x(), 69 + step * 23 / 5.0, 1e-9);
        EXPECT_NEAR(piece->y(), 138 - step * 23 / 5.0, 1e-9);
        EXPECT_EQ(dances.count(), 0);
    }
    piece->advance(1);
    expectAtRestOn(piece, 4, 4);
    EXPECT_EQ(canvas.isMarked(4, 4), MarkPath);
    EXPECT_EQ(flights.count(), 1);
    EXPECT_EQ(dances.count(), 1);
}

TEST_F(DrCanvasPieceTest, ACaptureReportsEveryLegAndThePathOnce) {
    DrCanvasPiece *piece = place(5, 1, 1);
    QArray<XY> path = pathOf({{3, 3}, {5, 1}, {9, 5}});
    piece->setDanceTo(&path);
    EXPECT_EQ(stepsToEnd(piece), 11 + 11 + 21); // five a square, one more to end each leg
    expectAtRestOn(piece, 9, 5);
    EXPECT_EQ(flights.count(), 3);
    EXPECT_EQ(dances.count(), 1);
    for (const XY &square : {XY(1, 1), XY(3, 3), XY(5, 1), XY(9, 5)})
        EXPECT_EQ(canvas.isMarked(square.x, square.y), MarkPath);
}

TEST_F(DrCanvasPieceTest, ASecondDanceIsRefusedWhileOneRuns) {
    DrCanvasPiece *piece = place(5, 3, 3);
    QArray<XY> path = pathOf({{4, 4}});
    QArray<XY> second = pathOf({{2, 4}});
    piece->setDanceTo(&path);
    piece->advance(1);
    piece->setDanceTo(&second);
    const std::vector<RecordingHost::Box> box{
        {BoxKind::Warning, "DrCanvasPiece::setDanceTo", "still busy"}};
    EXPECT_EQ(recorder.boxes, box);
    EXPECT_EQ(stepsToEnd(piece), 5);
    expectAtRestOn(piece, 4, 4);
    EXPECT_EQ(dances.count(), 1);
}

TEST_F(DrCanvasPieceTest, OddPathsEnd) {
    DrCanvasPiece *piece = place(5, 3, 3);
    QArray<XY> none;
    piece->setDanceTo(nullptr);
    piece->setDanceTo(&none);
    EXPECT_FALSE(piece->isDancing());

    QArray<XY> standing = pathOf({{3, 3}});
    piece->setDanceTo(&standing);
    EXPECT_TRUE(piece->animated());
    EXPECT_EQ(stepsToEnd(piece), 1);
    expectAtRestOn(piece, 3, 3);

    QArray<XY> circular = pathOf({{5, 5}, {5, 5}, {3, 3}});
    piece->setDanceTo(&circular);
    EXPECT_EQ(stepsToEnd(piece), 11 + 1 + 11);
    expectAtRestOn(piece, 3, 3);
    EXPECT_EQ(dances.count(), 2);
}

TEST_F(DrCanvasPieceTest, ABoardResizedInFlightStillLandsOnItsSquare) {
    for (const int pixels : {60, 120, 400}) {
        metrics.setWH(230, 230);
        DrCanvasPiece *piece = place(5, 1, 1);
        QArray<XY> path = pathOf({{5, 5}, {3, 7}});
        piece->setDanceTo(&path);
        piece->advance(1);
        metrics.setWH(pixels, pixels);
        piece->resize(metrics.SquareWidthB(), metrics.SquareHeightB());
        EXPECT_GT(stepsToEnd(piece), 0) << pixels;
        expectAtRestOn(piece, 3, 7);
        EXPECT_EQ(piece->boundingRect().width(), pixels / 10);
    }
}

TEST_F(DrCanvasPieceTest, TheCanvasFliesItOnItsTimer) {
    canvas.setAdvancePeriod(25);
    DrCanvasPiece *piece = place(5, 3, 3);
    QArray<XY> path = pathOf({{4, 4}});
    piece->setDanceTo(&path);
    ASSERT_TRUE(dances.wait(2000));
    expectAtRestOn(piece, 4, 4);
}

} // namespace
