#include "platform/qcanvasview.h"

#include "platform/paintscope.h"
#include "platform/qcanvas.h"

#include <QMouseEvent>

#include <cmath>

QCanvasView::QCanvasView(QCanvas *canvas, QWidget *parent) : QGraphicsView(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setRenderHints({});
    setInteractive(false);
    setFocusPolicy(Qt::NoFocus);
    setCanvas(canvas);
}

QCanvasView::~QCanvasView() = default;

QCanvas *QCanvasView::canvas() const {
    return canvas_;
}

void QCanvasView::setCanvas(QCanvas *canvas) {
    canvas_ = canvas;
    setScene(canvas != nullptr ? &canvas->scene_ : nullptr);
}

QSize QCanvasView::sizeHint() const {
    const int frame = 2 * frameWidth();
    const QSize shown = canvas_.isNull() ? QSize(0, 0) : canvas_->size();
    return shown + QSize(frame, frame);
}

void QCanvasView::contentsMousePressEvent(QMouseEvent *event) {
    event->ignore();
}

void QCanvasView::contentsMouseReleaseEvent(QMouseEvent *event) {
    event->ignore();
}

void QCanvasView::contentsMouseMoveEvent(QMouseEvent *event) {
    event->ignore();
}

void QCanvasView::contentsMouseDoubleClickEvent(QMouseEvent *event) {
    contentsMousePressEvent(event);
}

void QCanvasView::mousePressEvent(QMouseEvent *event) {
    deliver(event, &QCanvasView::contentsMousePressEvent);
}

void QCanvasView::mouseReleaseEvent(QMouseEvent *event) {
    deliver(event, &QCanvasView::contentsMouseReleaseEvent);
}

void QCanvasView::mouseMoveEvent(QMouseEvent *event) {
    deliver(event, &QCanvasView::contentsMouseMoveEvent);
}

void QCanvasView::mouseDoubleClickEvent(QMouseEvent *event) {
    deliver(event, &QCanvasView::contentsMouseDoubleClickEvent);
}

void QCanvasView::paintEvent(QPaintEvent *event) {
    const PaintScope painting;
    QGraphicsView::paintEvent(event);
}

// On a screen of several device pixels a logical pixel the position has a fraction. Rounding it
// would give the pixel's far half to its neighbour.
void QCanvasView::deliver(QMouseEvent *event, ContentsHandler handler) {
    const QPointF at = event->position();
    const QPoint pixel(static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y())));
    QMouseEvent contents(event->type(), mapToScene(pixel), event->scenePosition(),
                         event->globalPosition(), event->button(), event->buttons(),
                         event->modifiers(), event->source(), event->pointingDevice());
    (this->*handler)(&contents);
    event->setAccepted(contents.isAccepted());
}
