#include "view/boardcursor.h"

#include "view/boardmetrics.h"

#include <algorithm>

namespace {

// Columns from the left and rows from the bottom of the screen, and back.
XY mirrored(const boardMetrics &metrics, XY square) {
    const int last = metrics.size - 1;
    return metrics.flipped ? XY(last - square.x, last - square.y) : square;
}

// The playing square of a row in the same pair of columns.
XY inRow(XY seen, int row) {
    return {seen.x - seen.y % 2 + row % 2, row};
}

int readingOrder(const boardMetrics &metrics, XY square) {
    const XY seen = mirrored(metrics, square);
    return seen.x - seen.y * metrics.size;
}

} // namespace

XY cursorStep(const boardMetrics &metrics, XY from, CursorStep step) {
    const int last = metrics.size - 1;
    const XY seen = mirrored(metrics, from);
    XY to = seen;
    switch (step) {
    case CursorStep::Left:
        to.x -= 2;
        break;
    case CursorStep::Right:
        to.x += 2;
        break;
    case CursorStep::Up:
        to = inRow(seen, std::min(seen.y + 1, last));
        break;
    case CursorStep::Down:
        to = inRow(seen, std::max(seen.y - 1, 0));
        break;
    case CursorStep::RowStart:
        to.x = seen.y % 2;
        break;
    case CursorStep::RowEnd:
        to.x = last - (last - seen.y) % 2;
        break;
    case CursorStep::Top:
        to = inRow(seen, last);
        break;
    case CursorStep::Bottom:
        to = inRow(seen, 0);
        break;
    }
    return to.x >= 0 && to.x <= last ? mirrored(metrics, to) : from;
}

XY nextStop(const boardMetrics &metrics, XY from, const QList<XY> &stops, bool forward) {
    XY best = from;
    int bestWay = 0;
    const int squares = metrics.size * metrics.size;
    for (const XY &stop : stops) {
        const int way = readingOrder(metrics, stop) - readingOrder(metrics, from);
        // Round the board at most once; a stop where the cursor stands comes last.
        const int ahead = ((forward ? way : -way) + squares - 1) % squares + 1;
        if (bestWay == 0 || ahead < bestWay) {
            best = stop;
            bestWay = ahead;
        }
    }
    return best;
}

QString squareName(XY square) {
    return QChar(u'a' + square.x) + QString::number(square.y + 1);
}

std::optional<XY> TypedSquare::type(QChar typed, int squares) {
    const int column = typed.toLower().unicode() - u'a';
    const int digit = typed.unicode() - u'0';
    if (column >= 0 && column < squares) {
        column_ = column;
        number_ = 0;
    } else if (column_ >= 0 && digit >= 0 && digit <= 9) {
        // What cannot be a row any more is the first digit of another one.
        number_ = 10 * number_ + digit > squares ? digit : 10 * number_ + digit;
    }
    const bool playing = (column_ + number_ - 1) % 2 == 0;
    if (column_ < 0 || number_ < 1 || number_ > squares || !playing)
        return std::nullopt;
    return XY(column_, number_ - 1);
}
