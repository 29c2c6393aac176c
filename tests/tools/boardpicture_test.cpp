#include "tools/demo/boardpicture.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace {

// A window as the game lays it out, enlarged by a whole factor, drawn without the game's own code:
// squares of 23 pixels with black outlines, the frame's corner at (3, 0), the board's at (5, 2).
class DrawnWindow {
public:
    explicit DrawnWindow(int scale)
        : m_image(240 * scale, 320 * scale, QImage::Format_RGB32), m_scale(scale) {
        m_image.fill(qRgb(239, 239, 239));
        for (int column = 0; column < 10; ++column) {
            for (int row = 0; row < 10; ++row) {
                square({column, row},
                       (column + row) % 2 == 0 ? QColor(118, 118, 118) : QColor(138, 138, 138));
            }
        }
    }

    void square(Square at, const QColor &colour) {
        QPainter painter(&m_image);
        painter.scale(m_scale, m_scale);
        painter.translate(corner(at));
        painter.fillRect(0, 0, 23, 23, Qt::black);
        painter.fillRect(1, 1, 21, 21, colour);
    }

    void piece(Square at, const QColor &colour, bool king = false, bool taken = false) {
        QPainter painter(&m_image);
        painter.scale(m_scale, m_scale);
        painter.translate(corner(at));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(3, 3, 17, 17);
        if (king) {
            painter.setBrush(Qt::red);
            painter.drawEllipse(7, 7, 9, 9);
        }
        if (taken) {
            painter.setPen(QPen(Qt::green, 4));
            painter.drawLine(7, 7, 16, 16);
            painter.drawLine(7, 16, 16, 7);
        }
    }

    // A control below the board that happens to have the squares' colour.
    void greyButton() {
        QPainter(&m_image).fillRect(5 * m_scale, 260 * m_scale, 40 * m_scale, 20 * m_scale,
                                    QColor(118, 118, 118));
    }

    const QImage &image() const { return m_image; }

private:
    static QPoint corner(Square at) { return {5 + 23 * at.first, 2 + 23 * (9 - at.second)}; }

    QImage m_image;
    int m_scale;
};

class BoardPictureAtScale : public testing::TestWithParam<int> {};

TEST_P(BoardPictureAtScale, tellsWhatEverySquareShows) {
    DrawnWindow window(GetParam());
    window.piece({0, 0}, Qt::white);
    window.piece({9, 9}, Qt::black);
    window.piece({3, 5}, Qt::white, true);
    window.piece({6, 4}, Qt::black, true, true);
    window.piece({1, 7}, Qt::white, false, true);
    window.square({4, 4}, QColor(108, 108, 255));
    window.square({5, 3}, QColor(255, 108, 108));
    window.greyButton();

    const BoardPicture board(window.image());
    ASSERT_TRUE(board.isFound());
    EXPECT_EQ(board.squares(Shown::White), (std::set<Square>{{0, 0}, {3, 5}, {1, 7}}));
    EXPECT_EQ(board.squares(Shown::Black), (std::set<Square>{{9, 9}, {6, 4}}));
    EXPECT_EQ(board.squares(Shown::Target), (std::set<Square>{{4, 4}}));
    EXPECT_EQ(board.squares(Shown::Path), (std::set<Square>{{5, 3}}));
    EXPECT_EQ(board.squares(Shown::Empty).size(), 50U - 7U);
    EXPECT_TRUE(board.squares(Shown::Unknown).empty());
}

TEST_P(BoardPictureAtScale, findsTheMiddleOfASquare) {
    const int scale = GetParam();
    const BoardPicture board(DrawnWindow(scale).image());
    for (const Square &square : {Square{0, 0}, Square{5, 3}, Square{9, 9}}) {
        const QPointF middle((5 + 23 * square.first + 11.5) * scale,
                             (2 + 23 * (9 - square.second) + 11.5) * scale);
        const QPointF miss = QPointF(board.centre(square)) - middle;
        EXPECT_LE(miss.manhattanLength(), 2.0 * scale) << square.first << ',' << square.second;
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, BoardPictureAtScale, testing::Values(1, 2, 3));

TEST(BoardPicture, findsNoBoardWhereThereIsNone) {
    QImage plain(480, 640, QImage::Format_RGB32);
    plain.fill(qRgb(239, 239, 239));
    QImage grey(480, 640, QImage::Format_RGB32);
    grey.fill(qRgb(118, 118, 118));
    for (const QImage &window : {QImage(), plain, grey}) {
        const BoardPicture board(window);
        EXPECT_FALSE(board.isFound());
        EXPECT_TRUE(board.squares(Shown::Empty).empty());
    }
}

} // namespace
