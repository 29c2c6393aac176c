#include "view/mycanvasview.h"

#include "view/boardmetrics.h"
#include "view/boardtable.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace {

// Seen on every colour that a square can have.
constexpr Qt::GlobalColor frameColour = Qt::yellow;
constexpr Qt::GlobalColor frameEdge = Qt::black;
constexpr int framePixels = 2;
constexpr int edgePixels = 1;

std::optional<CursorStep> stepOf(int key) {
    constexpr std::pair<Qt::Key, CursorStep> steps[] = {
        {Qt::Key_Left, CursorStep::Left},     {Qt::Key_Right, CursorStep::Right},
        {Qt::Key_Up, CursorStep::Up},         {Qt::Key_Down, CursorStep::Down},
        {Qt::Key_Home, CursorStep::RowStart}, {Qt::Key_End, CursorStep::RowEnd},
        {Qt::Key_PageUp, CursorStep::Top},    {Qt::Key_PageDown, CursorStep::Bottom}};
    for (const auto &[stepKey, step] : steps) {
        if (key == stepKey)
            return step;
    }
    return std::nullopt;
}

// The focus comes back to where it was, with the window or after a list or menu.
bool comesBack(const QFocusEvent &event) {
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

bool comesByKey(const QFocusEvent &event) {
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
           event.reason() == Qt::ShortcutFocusReason;
}

// A frame of device pixels along the inner edge of `outer`; returns what it leaves free.
QRect fillFrame(QPainter &painter, const QRect &outer, int width, Qt::GlobalColor colour) {
    const QRect inner = outer.adjusted(width, width, -width, -width);
    for (const QRect &side : QRegion(outer) - QRegion(inner))
        painter.fillRect(side, colour);
    return inner;
}

} // namespace

MyCanvasView::MyCanvasView(QCanvas *canvas, QWidget *parent, boardMetrics *m)
    : QCanvasView(canvas, parent), metrics(m) {
    setFocusPolicy(Qt::TabFocus);
    BoardTable::install();
    connect(this, &MyCanvasView::cursorMoved, this, &MyCanvasView::tellFocus);
    resize();
}

MyCanvasView::MyCanvasView(boardMetrics *m) : metrics(m) {
    setFocusPolicy(Qt::TabFocus);
}

MyCanvasView::~MyCanvasView() = default;

void MyCanvasView::setBMetrics(boardMetrics *m) {
    metrics = m;
}

void MyCanvasView::resize() {
    resize(sizeHint());
}

void MyCanvasView::moveCursor(XY square) {
    if (metrics == nullptr || square == cursor_ || (square.x + square.y) % 2 != 0 ||
        !QRect(0, 0, metrics->size, metrics->size).contains(square.x, square.y))
        return;
    cursor_ = square;
    viewport()->update();
    emit cursorMoved(square.x, square.y);
}

void MyCanvasView::contentsMousePressEvent(QMouseEvent *e) {
    showCursor(false);
    if (metrics == nullptr)
        return;
    // After a change of size the squares may leave a strip of the canvas free.
    const QPoint at = e->position().toPoint();
    const int boardWidth = metrics->size * metrics->SquareWidthB();
    const int boardHeight = metrics->size * metrics->SquareHeightB();
    if (!QRect(0, 0, boardWidth, boardHeight).contains(at))
        return;

    const int bx = metrics->ScrToBx(at.x());
    const int by = metrics->ScrToBy(at.y());
    if ((bx + by) % 2 != 0)
        return;
    moveCursor({bx, by});
    emit clickedBxy(bx, by, e->button() == Qt::RightButton);
}

void MyCanvasView::keyPressEvent(QKeyEvent *e) {
    constexpr Qt::KeyboardModifiers others =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool worked = metrics != nullptr && (e->modifiers() & others) == 0 && work(*e);
    e->setAccepted(worked);
}

// A key held down moves the cursor on, but taps once.
bool MyCanvasView::work(const QKeyEvent &key) {
    const bool repeated = key.isAutoRepeat();
    if (const std::optional<CursorStep> step = stepOf(key.key())) {
        typed_.forget();
        showCursor(true);
        moveCursor(cursorStep(*metrics, cursor_, *step));
        return true;
    }
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        showCursor(true);
        if (!repeated)
            emit clickedBxy(cursor_.x, cursor_.y, false);
        return true;
    case Qt::Key_Escape:
        emit cancelled();
        return true;
    case Qt::Key_N:
        showCursor(true);
        emit pieceWanted((key.modifiers() & Qt::ShiftModifier) == 0);
        return true;
    default:
        return type(key);
    }
}

// On keyboards with digits on the shifted level the key's own value is a digit all the same.
bool MyCanvasView::type(const QKeyEvent &key) {
    const bool letter = key.key() >= Qt::Key_A && key.key() < Qt::Key_A + maxBoardSize;
    const bool digit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
    if (!letter && !digit)
        return false;
    showCursor(true);
    if (const std::optional<XY> square = typed_.type(QChar(key.key()), metrics->size))
        moveCursor(*square);
    return true;
}

void MyCanvasView::focusInEvent(QFocusEvent *e) {
    if (comesByKey(*e))
        showCursor(true);
    QCanvasView::focusInEvent(e);
    // The toolkit tells of the board itself first, and only after this event.
    QMetaObject::invokeMethod(this, &MyCanvasView::tellFocus, Qt::QueuedConnection);
    viewport()->update();
}

// Whoever left the board otherwise comes back to it in a way of his own.
void MyCanvasView::focusOutEvent(QFocusEvent *e) {
    if (!comesBack(*e))
        showCursor(false);
    typed_.forget();
    QCanvasView::focusOutEvent(e);
    viewport()->update();
}

void MyCanvasView::showCursor(bool byKey) {
    if (byKey_ != byKey)
        viewport()->update();
    byKey_ = byKey;
}

QRect MyCanvasView::squareRect(XY square) const {
    return {metrics->BxToScr(square.x), metrics->ByToScr(square.y), metrics->SquareWidthB(),
            metrics->SquareHeightB()};
}

// In device pixels: a frame that falls between them would be blurred, or thicker on one side.
void MyCanvasView::drawForeground(QPainter *painter, const QRectF &rect) {
    QCanvasView::drawForeground(painter, rect);
    if (metrics == nullptr || !isCursorShown())
        return;
    const QTransform toDevice = painter->deviceTransform();
    const qreal scale = toDevice.m11();
    const QRect square = toDevice.mapRect(QRectF(squareRect(cursor_))).toRect();
    painter->save();
    painter->setWorldTransform(toDevice.inverted(), true);
    const QRect inside = fillFrame(*painter, square, qRound(framePixels * scale), frameColour);
    fillFrame(*painter, inside, qRound(edgePixels * scale), frameEdge);
    painter->restore();
}

SquareReport MyCanvasView::report(XY square) const {
    return reader_ ? reader_(square) : SquareReport();
}

void MyCanvasView::tellSquares() {
    if (BoardTable *const table = BoardTable::of(this))
        table->tellChanges();
}

void MyCanvasView::tellFocus() {
    if (BoardTable *const table = BoardTable::of(this))
        table->tellFocus();
}
