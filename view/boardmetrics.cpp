#include "view/boardmetrics.h"

#include <algorithm>
#include <cmath>
#include <utility>

boardMetrics::boardMetrics(int squaresPerSide, int width, int height)
    : size(std::clamp(squaresPerSide, 7, 12)), w(width), h(height) {}

void boardMetrics::setWH(int width, int height) {
    w = width;
    h = height;
    w = size * SquareWidthB();
    h = size * SquareHeightB();
}

int boardMetrics::BxToScr(int bx) const {
    const int column = flipped ? size - bx - 1 : bx;
    return column * SquareWidthB();
}

int boardMetrics::ByToScr(int by) const {
    const int row = flipped ? size - by - 1 : by;
    return (size - row - 1) * SquareHeightB();
}

int boardMetrics::ScrToBx(int x) const {
    const int column = x / SquareWidthB();
    return flipped ? size - column - 1 : column;
}

int boardMetrics::ScrToBy(int y) const {
    const int row = y / SquareHeightB();
    return flipped ? row : size - row - 1;
}

double boardMetrics::DistanceB(int bx1, int by1, int bx2, int by2) const {
    const int dx = BxToScr(bx1) - BxToScr(bx2);
    const int dy = ByToScr(by1) - ByToScr(by2);
    return std::sqrt(static_cast<double>(dx * dx + dy * dy));
}

double boardMetrics::Distance(double x1, double y1, double x2, double y2) const {
    const double dx = x1 - x2;
    const double dy = y1 - y2;
    return std::sqrt(dx * dx + dy * dy);
}

bool boardMetrics::flipBoard(bool f) {
    return std::exchange(flipped, f);
}
