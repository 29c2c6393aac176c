#include "view/drcanvas.h"

#include "platform/qcanvasitem.h"
#include "view/boardmetrics.h"

#include <QBrush>
#include <QColor>

#include <algorithm>

namespace {

const QColor playingColor(118, 118, 118);
const QColor otherColor(138, 138, 138);
const QColor nextColor(108, 108, 255);
const QColor pathColor(255, 108, 108);
const QColor whiteOwnedColor(108, 128, 108);
const QColor blackOwnedColor(128, 108, 108);
const QColor unownedColor(108, 108, 108);

enum Owner { ownerWhite = 4, ownerBlack = 8 };

bool isPlayingSquare(int bx, int by) {
    return (bx + by) % 2 == 0;
}

QColor markColor(MarkType t) {
    switch (t) {
    case MarkNext:
        return nextColor;
    case MarkPath:
        return pathColor;
    case MarkNone:
        break;
    }
    return playingColor;
}

QColor ownerColor(int owner) {
    switch (owner) {
    case ownerWhite:
        return whiteOwnedColor;
    case ownerBlack:
        return blackOwnedColor;
    default:
        return unownedColor;
    }
}

// Gives a square its colour and has it redrawn.
void recolor(QCanvasRectangle &square, const QColor &color) {
    square.setBrush(color);
    square.hide();
    square.show();
}

} // namespace

DrCanvas::DrCanvas(boardMetrics *m) : QCanvas(m->getW(), m->getH()), metrics(m) {
    resizeSquares();
}

DrCanvas::~DrCanvas() = default;

void DrCanvas::resizeSquares() {
    const int size = std::min(metrics->size, maxBoardSize);
    for (int bx = 0; bx < size; ++bx) {
        for (int by = 0; by < size; ++by) {
            QCanvasRectangle *&square = squares[bx][by];
            if (square == nullptr) {
                square = new QCanvasRectangle(this);
                square->setBrush(isPlayingSquare(bx, by) ? playingColor : otherColor);
            }
            square->setSize(metrics->SquareWidthB(), metrics->SquareHeightB());
            square->move(metrics->BxToScr(bx), metrics->ByToScr(by));
            square->show();
        }
    }
}

void DrCanvas::markSQ(int bx, int by, MarkType t) {
    QCanvasRectangle *square = playingSquare(bx, by);
    if (square == nullptr)
        return;
    marks[bx][by] = t;
    recolor(*square, markColor(t));
}

MarkType DrCanvas::isMarked(int bx, int by) const {
    return playingSquare(bx, by) != nullptr ? marks[bx][by] : MarkNone;
}

void DrCanvas::danceFinished() {
    emit signalDance();
}

void DrCanvas::flyFinished() {
    emit signalFly();
}

void DrCanvas::advance() {
    QCanvas::advance();
}

QCanvasRectangle *DrCanvas::playingSquare(int bx, int by) const {
    if (bx < 0 || by < 0 || bx >= maxBoardSize || by >= maxBoardSize || !isPlayingSquare(bx, by))
        return nullptr;
    return squares[bx][by];
}

DrCanvas2::DrCanvas2(boardMetrics *m) : DrCanvas(m) {}

DrCanvas2::~DrCanvas2() = default;

void DrCanvas2::ownedBy(int bx, int by, int owner) {
    QCanvasRectangle *square = playingSquare(bx, by);
    if (square == nullptr)
        return;
    recolor(*square, marks[bx][by] == MarkNext ? nextColor : ownerColor(owner));
}

void DrCanvas2::reset() {
    for (int bx = 0; bx < maxBoardSize; ++bx) {
        for (int by = 0; by < maxBoardSize; ++by) {
            marks[bx][by] = MarkNone;
            ownedBy(bx, by, 0);
        }
    }
}
