// QCanvas: a pixel area with items on it that views show and a timer animates.
#ifndef PLATFORM_QCANVAS_H
#define PLATFORM_QCANVAS_H

#include <QColor>
#include <QGraphicsScene>
#include <QObject>
#include <QSize>
#include <QTimer>

#include <vector>

class QCanvasItem;

// A canvas of whole logical pixels, (0, 0) at its top left corner. Items put themselves on it and
// are owned by it: it deletes the ones that are left when it is destroyed. Views and canvas may go
// in either order. Every change of an item that can be seen is repainted in all views at the event
// loop's next turn. Where there is a canvas message boxes are real: items may have to say something
// while they are painted, which takes a host that knows about painting (see guihost.h).
class QCanvas : public QObject {
    Q_OBJECT

public:
    // A white canvas of that size (negative counts as 0) with no advance period.
    QCanvas(int width, int height);
    ~QCanvas() override;

    int width() const { return size_.width(); }
    int height() const { return size_.height(); }
    QSize size() const { return size_; }
    // Changes the size only: items stay where they are, also beyond the new edges.
    virtual void resize(int width, int height);

    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

    // Calls advance() every so many milliseconds; negative: never (as at construction). The timer
    // runs only while some item is animated.
    void setAdvancePeriod(int milliseconds);

    // Counts the whole canvas as changed: the next update() or advance() repaints all of it.
    void setAllChanged() { allChanged_ = true; }

public slots:
    // One animation step: every animated item gets advance(0), then every one advance(1), then
    // update(). Items may be hidden, moved, created or deleted by these calls, and advance() called
    // again inside one. An item that stops being animated, or is deleted, gets no further call in
    // this step; one that starts is first visited by the next step.
    virtual void advance();
    // Has the changes so far repainted, a pending setAllChanged() included.
    virtual void update();

private:
    friend class QCanvasItem;
    friend class QCanvasView;

    void addItem(QCanvasItem *item);
    void removeItem(QCanvasItem *item);
    void setItemAnimated(QCanvasItem *item, bool animated);
    bool isAnimated(const QCanvasItem *item) const;
    void runTimerAsNeeded();

    QGraphicsScene scene_;
    QTimer timer_;
    QSize size_;
    int period_ = -1;
    bool allChanged_ = false;
    std::vector<QCanvasItem *> items_;    // all of them, owned
    std::vector<QCanvasItem *> animated_; // those that advance() visits
};

#endif
