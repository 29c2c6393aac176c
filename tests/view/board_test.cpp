// What the board shows, how its pieces fly, and which taps it reports.

#include "rules/board.h"
#include "tests/support/recordinghost.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace {

// 10 x 10 squares of 23 pixels.
struct BoardTest : testing::Test {
    RecordingHost host;
    boardMetrics metrics{10, 230, 230};
    DrCanvas2 canvas{&metrics};
    MyCanvasView view{&canvas, nullptr, &metrics};

    // The canvas deletes it.
    DrCanvasPiece *place(int code, int bx, int by) {
        auto *piece = new DrCanvasPiece(23, 23, &canvas, nullptr, &metrics);
        piece->setType(code);
        piece->setBoardPos(bx, by);
        return piece;
    }
    // What a press at a pixel reports: column, row, whether with the right button.
    QVariantList press(QPointF at, Qt::MouseButton button = Qt::LeftButton) {
        QSignalSpy taps(&view, &MyCanvasView::clickedBxy);
        QMouseEvent event(QEvent::MouseButtonPress, at, at, button, button, {});
        QCoreApplication::sendEvent(view.viewport(), &event);
        return taps.value(0);
    }
    // The colour at (dx, dy) of a square; there is nothing but the square's own at (1, 1).
    std::string colour(int bx, int by, int dx = 1, int dy = 1) {
        const QPoint at(bx * 23 + dx, (9 - by) * 23 + dy);
        return view.viewport()->grab().toImage().pixelColor(at).name().toStdString();
    }
    // All colours there are on a screen of `scale` pixels a canvas pixel.
    std::set<std::string> colours(double scale) {
        QImage screen((QSizeF(230, 230) * scale).toSize(), QImage::Format_RGB32);
        screen.setDevicePixelRatio(scale);
        view.viewport()->render(&screen);
        std::set<std::string> found;
        for (int at = 0; at < screen.width() * screen.height(); ++at) {
            const QPoint pixel(at % screen.width(), at / screen.width());
            found.insert(screen.pixelColor(pixel).name().toStdString());
        }
        return found;
    }
};

// A fifth of a square's diagonal a step, and one step more to end the leg.
struct FlightTest : BoardTest {
    // Sends a new piece from (1,1) on its way.
    void launch(std::initializer_list<XY> squares) {
        path.resize(0);
        for (const XY &square : squares)
            path.append(square);
        piece = place(whiteMan, 1, 1);
        piece->setDanceTo(&path);
    }
    void step(int steps) {
        for (; steps > 0; --steps) {
            piece->advance(0);
            piece->advance(1);
        }
    }

    DrCanvasPiece *piece = nullptr;
    QArray<XY> path;
};

} // namespace

TEST_F(BoardTest, MarksAndOwnersColourPlayingSquares) {
    canvas.markSQ(2, 4, MarkPath);
    EXPECT_EQ(colour(2, 4), "#ff6c6c");
    canvas.markSQ(2, 4, MarkNone);
    EXPECT_EQ(colour(2, 4), "#767676");
    canvas.markSQ(2, 4, MarkNext);
    EXPECT_EQ(colour(2, 4), "#6c6cff");
    canvas.reset();
    EXPECT_EQ(colour(2, 4), "#6c6c6c") << "nobody's";
    canvas.ownedBy(2, 4, 4);
    EXPECT_EQ(colour(2, 4), "#6c806c") << "White's";
    canvas.ownedBy(2, 4, 8);
    EXPECT_EQ(colour(2, 4), "#806c6c") << "Black's";
}

TEST_F(BoardTest, SquaresLaidOutAnewKeepTheirMarks) {
    canvas.markSQ(0, 8, MarkNext);
    metrics.setWH(100, 230); // squares of 10 x 23 pixels
    canvas.resizeSquares();
    EXPECT_EQ(colour(0, 8, 8), "#6c6cff");
}

// Of 23 pixels the body leaves 3 free on each side and the king's centre 7. Along the middle of the
// square, its outline included.
TEST_F(BoardTest, PiecesAreDiscsWithCentreAndCrossUntilDeleted) {
    const std::pair<int, const char *> cases[] = {
        {whiteMan, "#..wwwwwwwwwwwwwwwww..#"},
        {whiteKing, "#..wwwwrrrrrrrrrwwww..#"},
        {blackKing | codeTaken, "#..####rrxxxxxrr####..#"},
    };
    const std::map<std::string, char> letters = {
        {"#000000", '#'}, {"#ffffff", 'w'}, {"#ff0000", 'r'}, {"#00ff00", 'x'}, {"#767676", '.'}};
    DrCanvasPiece *piece = place(whiteMan, 2, 2);
    for (const auto &[code, middle] : cases) {
        piece->setType(code);
        std::string row;
        for (int at = 0; at < 23; ++at)
            row += letters.at(colour(2, 2, at, 11));
        EXPECT_EQ(row, middle) << code;
    }
    delete piece;
    EXPECT_EQ(colour(2, 2, 11, 11), "#767676");
}

TEST_F(BoardTest, NothingShowsBetweenTheSquaresAtQuarterSteps) {
    const std::set<std::string> squares = {"#000000", "#767676", "#8a8a8a"};
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25})
        EXPECT_EQ(colours(scale), squares) << scale;
}

TEST_F(BoardTest, PiecesHaveSmoothEdgesWhereTheScreenIsFiner) {
    place(whiteMan, 2, 2);
    EXPECT_EQ(colours(1), (std::set<std::string>{"#000000", "#767676", "#8a8a8a", "#ffffff"}));
    for (const double scale : {1.25, 2.0})
        EXPECT_GT(colours(scale).size(), 8) << scale;
}

TEST_F(BoardTest, PieceWithoutACodeReportsItselfAndIsNotDrawn) {
    place(0, 2, 2);
    EXPECT_EQ(colour(2, 2, 11, 11), "#767676");
    EXPECT_EQ(host.boxes, "warning: draw: type == 0 [Ok]\n");
}

TEST_F(FlightTest, LegsTakeTimeInProportionToTheirLength) {
    const struct {
        XY target;
        int steps;
    } legs[] = {{.target = {2, 2}, .steps = 6},
                {.target = {1, 5}, .steps = 15}}; // 14 steps of 6.5 of 92 pixels
    for (const auto &leg : legs) {
        launch({leg.target});
        step(3);
        EXPECT_NEAR(std::hypot(piece->x() - 23, piece->y() - 184), 3 * 23 * std::sqrt(2) / 5, 1e-9);
        step(leg.steps - 4);
        EXPECT_TRUE(piece->isDancing()) << leg.steps;
        step(1);
        EXPECT_FALSE(piece->isDancing()) << leg.steps;
        EXPECT_EQ(piece->CalcDistance(), 0);
    }
}

TEST_F(FlightTest, SecondDanceIsRefused) {
    launch({{2, 2}});
    QArray<XY> elsewhere;
    elsewhere.append({3, 3});
    piece->setDanceTo(&elsewhere);
    EXPECT_EQ(host.boxes, "warning: DrCanvasPiece::setDanceTo: still busy [Ok]\n");
    step(6);
    EXPECT_FALSE(piece->isDancing());
    EXPECT_EQ(piece->boardX(), 2) << "where it was sent first";
}

TEST_F(BoardTest, PressesBecomePlayingSquares) {
    EXPECT_EQ(press({22.67, 207.33}), QVariantList({0, 0, false}));
    EXPECT_EQ(press({23, 206}), QVariantList({1, 1, false}));
    EXPECT_EQ(press({23, 229}), QVariantList()) << "a light square";
    EXPECT_EQ(press({0, 229}, Qt::RightButton), QVariantList({0, 0, true}));
    // 8 squares of 28 pixels leave a strip of 6. The points in it lie where playing squares would
    // go on: in column 8 of row 6, and in column 1 of the row below the board.
    metrics.size = 8;
    EXPECT_EQ(press({223, 0}), QVariantList({7, 7, false}));
    EXPECT_EQ(press({225, 30}), QVariantList());
    EXPECT_EQ(press({30, 225}), QVariantList());
}

// On 12 x 12 squares, which have names with two digits.
TEST_F(BoardTest, KeysMoveTheCursorAsSeen) {
    metrics.size = 12;
    const struct {
        const char *from;
        Qt::Key key;
        const char *to, *onFlippedBoard;
    } cases[] = {
        {.from = "c3", .key = Qt::Key_Left, .to = "a3", .onFlippedBoard = "e3"},
        {.from = "b10", .key = Qt::Key_Right, .to = "d10", .onFlippedBoard = "b10"},
        {.from = "c3", .key = Qt::Key_Up, .to = "d4", .onFlippedBoard = "d2"},
        {.from = "d4", .key = Qt::Key_Down, .to = "c3", .onFlippedBoard = "c5"},
        {.from = "c11", .key = Qt::Key_Home, .to = "a11", .onFlippedBoard = "k11"},
        {.from = "d4", .key = Qt::Key_End, .to = "l4", .onFlippedBoard = "b4"},
        {.from = "c3", .key = Qt::Key_PageUp, .to = "d12", .onFlippedBoard = "c1"},
        {.from = "d12", .key = Qt::Key_PageDown, .to = "c1", .onFlippedBoard = "d12"},
    };
    for (const auto &c : cases) {
        for (const bool flipped : {false, true}) {
            metrics.flipBoard(flipped);
            QTest::keyClicks(&view, c.from);
            QTest::keyClick(&view, c.key);
            const std::string reached = squareName(view.cursorSquare()).toStdString();
            EXPECT_EQ(reached, flipped ? c.onFlippedBoard : c.to) << "from " << c.from;
        }
    }
}
