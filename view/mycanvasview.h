// MyCanvasView: the board as a widget that turns taps into squares.
#ifndef VIEW_MYCANVASVIEW_H
#define VIEW_MYCANVASVIEW_H

#include "platform/qcanvasview.h"

class boardMetrics;

// Shows the board canvas and reports which playing square was pressed. It knows no rules: what a
// press means is the listener's business.
class MyCanvasView : public QCanvasView {
    Q_OBJECT

public:
    // A view on `canvas`, of its size hint. `m` is shared and outlives the view.
    MyCanvasView(QCanvas *canvas, QWidget *parent, boardMetrics *m);
    // A view with no canvas and no parent.
    explicit MyCanvasView(boardMetrics *m);
    ~MyCanvasView() override;

    // Without metrics (null) no press is reported.
    void setBMetrics(boardMetrics *m);
    // Fits the view to its canvas again.
    void resize();
    using QCanvasView::resize;

signals:
    // A playing square of the board was pressed, with the right button or another.
    void clickedBxy(int bx, int by, bool rightButton);

protected:
    // Presses on other squares and beyond the board's squares are not reported.
    void contentsMousePressEvent(QMouseEvent *e) override;

    boardMetrics *metrics;
};

#endif
