#include "view/drcanvaspiece.h"

#include "base/host.h"
#include "rules/board.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>

namespace {

constexpr double restingZ = 1;
constexpr double flyingZ = 2;
constexpr int stepsPerSquare = 5; // animation steps along one square's diagonal

// What is left of `whole` without so many pixels on either side.
QRect inset(const QRect &whole, int dx, int dy) {
    return whole.adjusted(dx, dy, -dx, -dy);
}

// The painter's own ellipses and wide lines are not symmetric to the pixel without antialiasing;
// filled paths are, at every scale.
void drawDisc(QPainter &p, const QRect &box) {
    QPainterPath disc;
    disc.addEllipse(box);
    p.drawPath(disc);
}

// On a screen of more pixels than the canvas, edges are smooth; pixel for pixel they are as clear
// as the squares'.
void smoothEdges(QPainter &p, bool wanted) {
    p.setRenderHint(QPainter::Antialiasing, wanted && p.deviceTransform().m11() > 1);
}

void drawLine(QPainter &p, const QPoint &from, const QPoint &to) {
    QPainterPath line(from);
    line.lineTo(to);
    p.fillPath(QPainterPathStroker(p.pen()).createStroke(line), p.pen().brush());
}

} // namespace

DrCanvasPiece::DrCanvasPiece(int width, int height, DrCanvas *canvas, Draughts *owner,
                             boardMetrics *m)
    : QCanvasRectangle(canvas), w(width), h(height), type(whiteMan), metrics(m), controller(owner) {
    setZ(restingZ);
}

DrCanvasPiece::~DrCanvasPiece() = default;

void DrCanvasPiece::resize(int width, int height) {
    w = width;
    h = height;
    hide();
    show();
}

void DrCanvasPiece::setType(int t) {
    type = t;
    hide();
    show();
}

void DrCanvasPiece::setBoardPos(int column, int row) {
    move(metrics->BxToScr(column), metrics->ByToScr(row));
    bx = column;
    by = row;
}

void DrCanvasPiece::setFlyTo(int tx, int ty) {
    setZ(flyingZ);
    const double dx = metrics->BxToScr(tx) - x();
    const double dy = metrics->ByToScr(ty) - y();
    boardCanvas()->markSQ(bx, by, MarkPath);
    const double d = metrics->DistanceB(bx, by, tx, ty);
    if (d == 0) {
        // No direction to fly in: there already, and animated for the step that ends the leg.
        setBoardPos(tx, ty);
        setAnimated(true);
        return;
    }
    const double step = metrics->DistanceB(0, 0, 1, 1) / stepsPerSquare;
    bx = tx;
    by = ty;
    prevDistance = CalcDistance();
    setVelocity(dx / d * step, dy / d * step);
}

double DrCanvasPiece::CalcDistance() const {
    return metrics->Distance(x(), y(), metrics->BxToScr(bx), metrics->ByToScr(by));
}

void DrCanvasPiece::setDanceTo(QArray<XY> *path) {
    if (dancePath != nullptr) {
        host().messageBox(BoxKind::Warning, "DrCanvasPiece::setDanceTo", "still busy");
        return;
    }
    if (path == nullptr || path->isEmpty())
        return;
    dancePath = path;
    danceIndex = 0;
    setFlyTo(path->at(0).x, path->at(0).y);
}

void DrCanvasPiece::advance(int phase) {
    if (phase != 1 || dancePath == nullptr)
        return;
    const double d = CalcDistance();
    const bool targetPassed = d > prevDistance + 0.5;
    if (targetPassed || d < 1.0) {
        endLeg();
        return;
    }
    prevDistance = d;
    moveBy(xVelocity(), yVelocity());
}

void DrCanvasPiece::endLeg() {
    setBoardPos(bx, by);
    boardCanvas()->markSQ(bx, by, MarkPath);
    setVelocity(0, 0);
    prevDistance = 0;
    setZ(restingZ);
    boardCanvas()->flyFinished();
    if (dancePath == nullptr)
        return;
    ++danceIndex;
    if (danceIndex < static_cast<int>(dancePath->size())) {
        const XY next = dancePath->at(static_cast<unsigned>(danceIndex));
        setFlyTo(next.x, next.y);
        return;
    }
    dancePath = nullptr;
    danceIndex = -1;
    boardCanvas()->danceFinished();
}

bool DrCanvasPiece::collidesWith(const QCanvasItem *other) const {
    return boundingRect().intersects(other->boundingRect());
}

void DrCanvasPiece::draw(QPainter &p) {
    if (!visible())
        return;
    if (type == 0) {
        host().messageBox(BoxKind::Warning, "draw", "type == 0");
        return;
    }
    const QPen savedPen = p.pen();
    const QRect square = boundingRect();
    smoothEdges(p, true);
    p.setPen(Qt::NoPen);
    p.setBrush((type & codeWhite) != 0 ? Qt::white : Qt::black);
    drawDisc(p, inset(square, w / 7, h / 7));
    if ((type & codeKing) != 0) {
        p.setBrush(Qt::red);
        drawDisc(p, inset(square, w / 3, h / 3));
    }
    if ((type & codeTaken) != 0)
        drawCross(p, square);
    p.setPen(savedPen);
    smoothEdges(p, false);
}

void DrCanvasPiece::drawCross(QPainter &p, const QRect &square) const {
    const QRect box = inset(square, w / 3, h / 3);
    const QPoint beyond(box.right() + 1, box.bottom() + 1);
    p.setPen(QPen(Qt::green, w / 5, Qt::SolidLine, Qt::FlatCap));
    drawLine(p, box.topLeft(), beyond);
    drawLine(p, {box.left(), beyond.y()}, {beyond.x(), box.top()});
}

QRect DrCanvasPiece::boundingRect() const {
    return {static_cast<int>(x()), static_cast<int>(y()), w, h};
}

DrCanvas *DrCanvasPiece::boardCanvas() const {
    return static_cast<DrCanvas *>(canvas());
}
