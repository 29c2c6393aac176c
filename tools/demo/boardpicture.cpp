#include "tools/demo/boardpicture.h"

#include <QtMath>

#include <algorithm>
#include <vector>

namespace {

constexpr int squaresPerSide = 10;
constexpr QRgb playingGrey = qRgb(118, 118, 118);
constexpr QRgb otherGrey = qRgb(138, 138, 138);

bool isSquareGrey(QRgb colour) {
    return colour == playingGrey || colour == otherGrey;
}

// First and last index whose count is at least a quarter of the highest: stray grey pixels of
// buttons and texts stay far below that.
std::pair<int, int> extent(const std::vector<int> &counts) {
    const int least = std::max(1, *std::max_element(counts.begin(), counts.end()) / 4);
    int first = 0;
    int last = static_cast<int>(counts.size()) - 1;
    while (first <= last && counts[static_cast<size_t>(first)] < least) {
        ++first;
    }
    while (last >= first && counts[static_cast<size_t>(last)] < least) {
        --last;
    }
    return {first, last};
}

QRect findBoard(const QImage &window) {
    if (window.isNull()) {
        return {};
    }
    std::vector<int> columns(static_cast<size_t>(window.width()));
    std::vector<int> rows(static_cast<size_t>(window.height()));
    for (int y = 0; y < window.height(); ++y) {
        for (int x = 0; x < window.width(); ++x) {
            if (isSquareGrey(window.pixel(x, y))) {
                ++columns[static_cast<size_t>(x)];
                ++rows[static_cast<size_t>(y)];
            }
        }
    }
    const auto [left, right] = extent(columns);
    const auto [top, bottom] = extent(rows);
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

BoardPicture::BoardPicture(const QImage &window)
    : m_window(window.convertToFormat(QImage::Format_RGB32)), m_board(findBoard(m_window)) {}

bool BoardPicture::isFound() const {
    // Square as the board is, up to the outlines, and most of the window's width.
    return m_board.isValid() && qAbs(m_board.width() - m_board.height()) * 50 < m_board.width() &&
           m_board.width() * 4 > m_window.width() * 3;
}

QPoint BoardPicture::at(Square square, double acrossPart, double downPart) const {
    const auto [column, row] = square;
    const double side = double(m_board.width()) / squaresPerSide;
    return {m_board.left() + qFloor((column + acrossPart) * side),
            m_board.top() + qFloor((squaresPerSide - 1 - row + downPart) * side)};
}

QPoint BoardPicture::centre(Square square) const {
    return at(square, 0.5, 0.5);
}

Shown BoardPicture::shown(Square square) const {
    if (!isFound()) {
        return Shown::Unknown;
    }
    // The upper part of the disc: a king's red centre and the cross of a taken piece leave it free.
    switch (m_window.pixel(at(square, 0.5, 0.25))) {
    case qRgb(255, 255, 255):
        return Shown::White;
    case qRgb(0, 0, 0):
        return Shown::Black;
    case playingGrey:
        return Shown::Empty;
    case qRgb(108, 108, 255):
        return Shown::Target;
    case qRgb(255, 108, 108):
        return Shown::Path;
    default:
        return Shown::Unknown;
    }
}

std::set<Square> BoardPicture::squares(Shown wanted) const {
    std::set<Square> found;
    for (int column = 0; column < squaresPerSide; ++column) {
        for (int row = column % 2; row < squaresPerSide; row += 2) {
            if (shown({column, row}) == wanted) {
                found.insert({column, row});
            }
        }
    }
    return found;
}
