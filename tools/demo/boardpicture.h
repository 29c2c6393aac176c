// Reads the game's board from a picture of its window.
#ifndef TOOLS_DEMO_BOARDPICTURE_H
#define TOOLS_DEMO_BOARDPICTURE_H

#include <QImage>
#include <QPoint>
#include <QRect>

#include <set>
#include <utility>

// A playing square as column and row, both from 0; row 0 is the lowest.
using Square = std::pair<int, int>;

// What a square of the picture shows: a piece of either colour, or one of the square's colours.
enum class Shown { White, Black, Empty, Target, Path, Unknown };

// The 10 x 10 board in a picture of the window, found by the colours of its squares at whatever
// scale the window has.
class BoardPicture {
public:
    explicit BoardPicture(const QImage &window);

    // Whether the picture holds a board; without one nothing is shown on any square.
    bool isFound() const;
    // The middle of a square in the picture's pixels.
    QPoint centre(Square square) const;
    Shown shown(Square square) const;
    // All playing squares that show so.
    std::set<Square> squares(Shown wanted) const;

private:
    QPoint at(Square square, double acrossPart, double downPart) const;

    QImage m_window;
    QRect m_board;
};

#endif
