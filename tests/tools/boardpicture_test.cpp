#include "tools/demo/boardpicture.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace {

// A window as the game lays it out, enlarged by a whole factor, drawn without the game's own code:
// squares of 23 pixels with black outlines, the frame's corner at (3, 0), the board's at (5, 2).
struct DrawnWindow {
    const QColor playing{118, 118, 118};
    QImage image;
    QPainter painter;

    explicit DrawnWindow(int scale)
        : image(240 * scale, 320 * scale, QImage::Format_RGB32), painter(&image) {
        painter.scale(scale, scale);
        painter.fillRect(0, 0, 240, 320, qRgb(239, 239, 239));
        painter.fillRect(5, 260, 40, 20, playing); // a button that happens to have this colour
        for (int at = 0; at < 100; ++at)
            square(at % 10, at / 10, (at / 10 + at) % 2 == 0 ? playing : QColor(138, 138, 138));
    }
    void square(int x, int y, const QColor &colour) {
        painter.fillRect(5 + 23 * x, 2 + 23 * (9 - y), 23, 23, Qt::black);
        painter.fillRect(6 + 23 * x, 3 + 23 * (9 - y), 21, 21, colour);
    }
    void piece(int x, int y, const QColor &colour, bool king = false, bool taken = false) {
        const QPoint middle(16 + 23 * x, 13 + 23 * (9 - y));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(middle, 9, 9);
        painter.setBrush(Qt::red);
        if (king)
            painter.drawEllipse(middle, 5, 5);
        painter.setPen(QPen(Qt::green, 4));
        for (const int half : {4, -4})
            if (taken)
                painter.drawLine(middle - QPoint(4, half), middle + QPoint(4, half));
    }
};

TEST(BoardPicture, tellsWhatAndWhereEverySquareIsAtEveryScale) {
    for (const int scale : {1, 2, 3}) {
        SCOPED_TRACE(scale);
        DrawnWindow window(scale);
        window.piece(0, 0, Qt::white);
        window.piece(9, 9, Qt::black);
        window.piece(3, 5, Qt::white, true);
        window.piece(6, 4, Qt::black, true, true);
        window.piece(1, 7, Qt::white, false, true);
        window.square(4, 4, QColor(108, 108, 255));
        window.square(5, 3, QColor(255, 108, 108));
        const BoardPicture board(window.image);
        ASSERT_TRUE(board.isFound());
        EXPECT_EQ(board.squares(Shown::White), (std::set<Square>{{0, 0}, {3, 5}, {1, 7}}));
        EXPECT_EQ(board.squares(Shown::Black), (std::set<Square>{{9, 9}, {6, 4}}));
        EXPECT_EQ(board.squares(Shown::Target), (std::set<Square>{{4, 4}}));
        EXPECT_EQ(board.squares(Shown::Path), (std::set<Square>{{5, 3}}));
        EXPECT_EQ(board.squares(Shown::Empty).size(), 50U - 7U);
        for (const auto &[x, y] : {Square{0, 0}, Square{5, 3}, Square{9, 9}}) {
            const QPoint middle(16 + 23 * x, 13 + 23 * (9 - y));
            EXPECT_LE((board.centre({x, y}) - middle * scale).manhattanLength(), 3 * scale);
        }
    }
    QImage plain(480, 640, QImage::Format_RGB32);
    plain.fill(qRgb(118, 118, 118));
    EXPECT_FALSE(BoardPicture(plain).isFound());
    EXPECT_TRUE(BoardPicture(plain).squares(Shown::Empty).empty());
    EXPECT_FALSE(BoardPicture(QImage()).isFound());
}

} // namespace
