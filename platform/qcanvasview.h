// QCanvasView: the widget that shows a QCanvas.
#ifndef PLATFORM_QCANVASVIEW_H
#define PLATFORM_QCANVASVIEW_H

#include <QGraphicsView>
#include <QPointer>

class QCanvas;
class QMouseEvent;

// Shows a canvas pixel for pixel with its top left corner in the view's own, inside the frame. No
// scroll bars, no scaling, no antialiasing. Presses and movements of the mouse arrive in canvas
// coordinates through the contents... operations. Takes the keyboard focus only where a subclass
// does.
class QCanvasView : public QGraphicsView {
    Q_OBJECT

public:
    // `canvas` may be null, is not owned and may be destroyed before the view.
    explicit QCanvasView(QCanvas *canvas = nullptr, QWidget *parent = nullptr);
    ~QCanvasView() override;

    QCanvas *canvas() const;
    void setCanvas(QCanvas *canvas);

    // The canvas plus the frame; the frame alone without a canvas.
    QSize sizeHint() const override;

protected:
    // The event's position is the canvas pixel under the pointer, in whole logical pixels. Events
    // that are not handled are ignored and go on to the parent widget.
    virtual void contentsMousePressEvent(QMouseEvent *event);
    virtual void contentsMouseReleaseEvent(QMouseEvent *event);
    virtual void contentsMouseMoveEvent(QMouseEvent *event);
    // The second of two quick presses comes as a double click in place of a press; unless a
    // subclass wants it apart, it counts as a press.
    virtual void contentsMouseDoubleClickEvent(QMouseEvent *event);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    using ContentsHandler = void (QCanvasView::*)(QMouseEvent *);
    void deliver(QMouseEvent *event, ContentsHandler handler);

    QPointer<QCanvas> canvas_;
};

#endif
