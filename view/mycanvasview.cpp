#include "view/mycanvasview.h"

#include "view/boardmetrics.h"

#include <QMouseEvent>

MyCanvasView::MyCanvasView(QCanvas *canvas, QWidget *parent, boardMetrics *m)
    : QCanvasView(canvas, parent), metrics(m) {
    resize();
}

MyCanvasView::MyCanvasView(boardMetrics *m) : metrics(m) {}

MyCanvasView::~MyCanvasView() = default;

void MyCanvasView::setBMetrics(boardMetrics *m) {
    metrics = m;
}

void MyCanvasView::resize() {
    resize(sizeHint());
}

void MyCanvasView::contentsMousePressEvent(QMouseEvent *e) {
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
    if ((bx + by) % 2 == 0)
        emit clickedBxy(bx, by, e->button() == Qt::RightButton);
}
