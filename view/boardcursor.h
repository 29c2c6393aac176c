// Where the keyboard's cursor can go on the board, and what the squares are called.
#ifndef VIEW_BOARDCURSOR_H
#define VIEW_BOARDCURSOR_H

#include "rules/xy.h"

#include <QList>
#include <QString>

#include <optional>

class boardMetrics;

// Directions as seen on the screen, also on a flipped board.
enum class CursorStep { Left, Right, Up, Down, RowStart, RowEnd, Top, Bottom };

// The playing square one step from `from`, a playing square of the board; `from` itself at the
// board's edge. Left and right go along the row. Up and down go to the nearest square of the next
// row: of the two that are equally near the one in the same pair of columns, so that a way up is
// the same way down.
XY cursorStep(const boardMetrics &metrics, XY from, CursorStep step);

// The stop after `from`, or before it, in the order of reading, and from the last one on to the
// first. `from` when there are no stops.
XY nextStop(const boardMetrics &metrics, XY from, const QList<XY> &stops, bool forward);

// Letter of the column and number of the row: "a1" is (0, 0), at the left hand of whoever plays
// white.
QString squareName(XY square);

// A name that is being typed: a letter, then the digits of a number. The letter stays until the
// next one or until it is forgotten.
class TypedSquare {
public:
    // Takes one more letter or digit. The square so named, as soon as it is a playing square of a
    // board of that many squares a side; none for other characters.
    std::optional<XY> type(QChar typed, int squares);
    void forget() { *this = TypedSquare(); }

private:
    int column_ = -1; // none
    int number_ = 0;
};

#endif
