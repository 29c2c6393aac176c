// QCanvasItem and QCanvasRectangle: what can be put on a QCanvas.
#ifndef PLATFORM_QCANVASITEM_H
#define PLATFORM_QCANVASITEM_H

#include <QBrush>
#include <QPen>
#include <QRect>
#include <QSize>

#include <memory>

class QCanvas;
class QPainter;

// Something drawn on a canvas. It draws itself in canvas coordinates, in logical pixels and without
// antialiasing. Its position is kept in doubles; what is drawn is up to the subclass, as a rule at
// the position truncated to whole pixels. Owned by its canvas, but may be deleted before it.
class QCanvasItem {
public:
    enum RttiValues { Rtti_Item = 0, Rtti_Rectangle = 5 };

    // Puts the item on `canvas` at (0, 0) with z 0, hidden and at rest. `canvas` may be null: such
    // an item is never seen or advanced and belongs to its creator.
    explicit QCanvasItem(QCanvas *canvas);
    // Takes the item off its canvas.
    virtual ~QCanvasItem();
    QCanvasItem(const QCanvasItem &) = delete;
    QCanvasItem &operator=(const QCanvasItem &) = delete;

    QCanvas *canvas() const { return canvas_; }

    double x() const { return x_; }
    double y() const { return y_; }
    // Moves to exactly that position; the other moving operations end here.
    virtual void move(double x, double y);
    void moveBy(double dx, double dy) { move(x_ + dx, y_ + dy); }

    // Items of higher z are drawn over items of lower z; among equals the later made is on top.
    double z() const { return z_; }
    void setZ(double z);

    // Whether the item is shown; false until the first show().
    bool visible() const { return visible_; }
    void show() { setVisible(true); }
    void hide() { setVisible(false); }
    virtual void setVisible(bool visible);

    double xVelocity() const { return xVelocity_; }
    double yVelocity() const { return yVelocity_; }
    // In pixels a step. A velocity other than (0, 0) makes the item animated, (0, 0) ends that.
    virtual void setVelocity(double vx, double vy);
    bool animated() const { return animated_; }
    // Whether the canvas's advance() visits the item, whatever its velocity.
    virtual void setAnimated(bool animated);

    // One animation step of an animated item. Here: phase 0 does nothing, phase 1 moves the item by
    // its velocity.
    virtual void advance(int phase);

    virtual bool collidesWith(const QCanvasItem *other) const = 0;
    // Draws the item; nothing outside boundingRect() is sure to be seen.
    virtual void draw(QPainter &painter) = 0;
    // The kind of item, for telling subclasses apart.
    virtual int rtti() const { return Rtti_Item; }
    // All pixels that the item may draw on. A subclass whose rectangle changes other than by moving
    // calls changed() (or hides and shows itself) afterwards.
    virtual QRect boundingRect() const = 0;

protected:
    // Has the item repainted where it was and where it is now.
    void changed();

private:
    class Sprite;

    QCanvas *canvas_;
    std::unique_ptr<Sprite> sprite_; // the graphics scene's side of the item
    double x_ = 0;
    double y_ = 0;
    double z_ = 0;
    double xVelocity_ = 0;
    double yVelocity_ = 0;
    bool visible_ = false;
    bool animated_ = false;
};

// A filled rectangle. The outline (a thin black line unless set otherwise) lies inside the width x
// height pixels; the fill (none unless set) covers what the outline leaves.
class QCanvasRectangle : public QCanvasItem {
public:
    // 32 x 32 pixels at (0, 0).
    explicit QCanvasRectangle(QCanvas *canvas);
    QCanvasRectangle(int x, int y, int width, int height, QCanvas *canvas);

    int width() const { return size_.width(); }
    int height() const { return size_.height(); }
    QSize size() const { return size_; }
    // Negative sizes count as 0.
    void setSize(int width, int height);

    QPen pen() const { return pen_; }
    // Width 0 counts as 1. The outline is drawn solid whatever the style, unless it is Qt::NoPen.
    void setPen(const QPen &pen);
    QBrush brush() const { return brush_; }
    void setBrush(const QBrush &brush);

    // True when the bounding rectangles share a pixel.
    bool collidesWith(const QCanvasItem *other) const override;
    void draw(QPainter &painter) override;
    int rtti() const override { return Rtti_Rectangle; }
    QRect boundingRect() const override;

private:
    int outlineWidth() const;

    QSize size_{32, 32};
    QPen pen_;
    QBrush brush_;
};

#endif
