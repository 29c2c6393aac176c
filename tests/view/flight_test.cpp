// A piece's way along its path.

#include "tests/support/recordinghost.h"
#include "tests/view/boardfixture.h"

#include <QSignalSpy>

#include <string>

namespace {

struct FlightTest : BoardFixture {
    // "44 24": columns and rows.
    static QArray<XY> pathOf(const std::string &squares) {
        QArray<XY> path;
        for (std::size_t i = 0; i < squares.size(); i += 3)
            path.append({squares[i] - '0', squares[i + 1] - '0'});
        return path;
    }
    // Steps until the dance is over; the number of steps, or 1000 when it never ends.
    static int stepsToEnd(DrCanvasPiece *piece) {
        int steps = 0;
        for (; piece->isDancing() && steps < 1000; ++steps) {
            piece->advance(0);
            piece->advance(1);
        }
        return steps;
    }
    void expectAtRestOn(const DrCanvasPiece *piece, int bx, int by) {
        EXPECT_EQ(piece->boardX(), bx);
        EXPECT_EQ(piece->boardY(), by);
        EXPECT_EQ(piece->boundingRect(), QRect(metrics.BxToScr(bx), metrics.ByToScr(by),
                                               metrics.SquareWidthB(), metrics.SquareHeightB()));
        EXPECT_EQ(piece->z(), 1);
        EXPECT_FALSE(piece->animated());
    }

    QSignalSpy flights{&canvas, &DrCanvas::signalFly};
    QSignalSpy dances{&canvas, &DrCanvas::signalDance};
};

TEST_F(FlightTest, OneSquareTakesSixStepsAndBearsNoSecondPath) {
    RecordingHost host;
    DrCanvasPiece *piece = place(5, 3, 3);
    QArray<XY> path = pathOf("44");
    piece->setDanceTo(&path);
    EXPECT_EQ(canvas.isMarked(3, 3), MarkPath);
    for (int step = 1; step <= 5; ++step) {
        piece->advance(1);
        EXPECT_EQ(piece->z(), 2);
        EXPECT_NEAR(piece->x(), 69 + step * 23 / 5.0, 1e-9);
        EXPECT_NEAR(piece->y(), 138 - step * 23 / 5.0, 1e-9);
        EXPECT_EQ(canvas.isMarked(4, 4), MarkNone);
    }
    QArray<XY> second = pathOf("24");
    piece->setDanceTo(&second);
    const std::vector<RecordingHost::Box> box{
        {BoxKind::Warning, "DrCanvasPiece::setDanceTo", "still busy"}};
    EXPECT_EQ(host.boxes, box);
    EXPECT_EQ(dances.count(), 0);
    EXPECT_EQ(stepsToEnd(piece), 1);
    expectAtRestOn(piece, 4, 4);
    EXPECT_EQ(canvas.isMarked(4, 4), MarkPath);
}

// Five steps a square and one more to end each leg.
TEST_F(FlightTest, PathsEndOnTheirLastSquareAfterAllTheirLegs) {
    const struct {
        const char *squares;
        int legs, steps;
    } cases[] = {{"33 51 95", 3, 11 + 11 + 21},
                 {"55 55 11", 3, 21 + 1 + 21}, // round, and a leg of no length
                 {"11", 1, 1},
                 {"", 0, 0}};
    for (const auto &[squares, legs, steps] : cases) {
        SCOPED_TRACE(steps);
        DrCanvasPiece *piece = place(5, 1, 1);
        QArray<XY> path = pathOf(squares);
        flights.clear();
        dances.clear();
        piece->setDanceTo(&path);
        EXPECT_EQ(stepsToEnd(piece), steps);
        const XY end = path.isEmpty() ? XY(1, 1) : path.last();
        expectAtRestOn(piece, end.x, end.y);
        EXPECT_EQ(flights.count(), legs);
        EXPECT_EQ(dances.count(), legs > 0 ? 1 : 0);
        for (const XY &square : path)
            EXPECT_EQ(canvas.isMarked(square.x, square.y), MarkPath);
    }
}

TEST_F(FlightTest, ABoardResizedInFlightStillLandsOnItsSquare) {
    for (const int pixels : {60, 120, 400}) {
        metrics.setWH(230, 230);
        DrCanvasPiece *piece = place(5, 1, 1);
        QArray<XY> path = pathOf("55 37");
        piece->setDanceTo(&path);
        piece->advance(1);
        metrics.setWH(pixels, pixels);
        piece->resize(metrics.SquareWidthB(), metrics.SquareHeightB());
        EXPECT_LT(stepsToEnd(piece), 1000) << pixels;
        expectAtRestOn(piece, 3, 7);
    }
}

} // namespace
