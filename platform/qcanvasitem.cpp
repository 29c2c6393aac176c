#include "platform/qcanvasitem.h"

#include "platform/qcanvas.h"

#include <QGraphicsItem>
#include <QPainter>

#include <algorithm>

// Stands at the scene's origin for good, so that scene and canvas coordinates are the same, and
// keeps the item's rectangle as last told: the scene never asks an item that is being destroyed.
class QCanvasItem::Sprite : public QGraphicsItem {
public:
    explicit Sprite(QCanvasItem &item) : item_(item) { setVisible(false); }

    void setArea(const QRect &area) {
        if (area_ == area)
            return;
        prepareGeometryChange();
        area_ = area;
    }

    QRectF boundingRect() const override { return area_; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override {
        item_.draw(*painter);
    }

private:
    QCanvasItem &item_;
    QRect area_;
};

QCanvasItem::QCanvasItem(QCanvas *canvas) : canvas_(canvas) {
    if (canvas_ == nullptr)
        return;
    sprite_ = std::make_unique<Sprite>(*this);
    canvas_->addItem(this);
    canvas_->scene_.addItem(sprite_.get());
}

QCanvasItem::~QCanvasItem() {
    if (canvas_ != nullptr)
        canvas_->removeItem(this);
}

void QCanvasItem::move(double x, double y) {
    x_ = x;
    y_ = y;
    changed();
}

void QCanvasItem::setZ(double z) {
    z_ = z;
    if (sprite_ != nullptr)
        sprite_->setZValue(z);
}

void QCanvasItem::setVisible(bool visible) {
    visible_ = visible;
    if (sprite_ == nullptr)
        return;
    changed();
    sprite_->setVisible(visible);
}

void QCanvasItem::setVelocity(double vx, double vy) {
    xVelocity_ = vx;
    yVelocity_ = vy;
    setAnimated(vx != 0 || vy != 0);
}

void QCanvasItem::setAnimated(bool animated) {
    if (animated_ == animated)
        return;
    animated_ = animated;
    if (canvas_ != nullptr)
        canvas_->setItemAnimated(this, animated);
}

void QCanvasItem::advance(int phase) {
    if (phase == 1)
        moveBy(xVelocity_, yVelocity_);
}

void QCanvasItem::changed() {
    if (!visible_ || sprite_ == nullptr)
        return;
    sprite_->setArea(boundingRect());
    sprite_->update();
}

QCanvasRectangle::QCanvasRectangle(QCanvas *canvas) : QCanvasItem(canvas) {}

QCanvasRectangle::QCanvasRectangle(int x, int y, int width, int height, QCanvas *canvas)
    : QCanvasItem(canvas) {
    setSize(width, height);
    QCanvasItem::move(x, y);
}

void QCanvasRectangle::setSize(int width, int height) {
    size_ = QSize(std::max(width, 0), std::max(height, 0));
    changed();
}

void QCanvasRectangle::setPen(const QPen &pen) {
    pen_ = pen;
    changed();
}

void QCanvasRectangle::setBrush(const QBrush &brush) {
    brush_ = brush;
    changed();
}

bool QCanvasRectangle::collidesWith(const QCanvasItem *other) const {
    return boundingRect().intersects(other->boundingRect());
}

// Filled strips rather than a stroked rectangle: a stroke lies astride the pixels' edges, off by
// half a pixel as soon as the screen has more pixels than the canvas.
void QCanvasRectangle::draw(QPainter &painter) {
    const QRect whole = QCanvasRectangle::boundingRect();
    const int line = outlineWidth();
    const QRect inner = whole.adjusted(line, line, -line, -line);
    if (!inner.isValid()) {
        painter.fillRect(whole, pen_.brush());
        return;
    }
    painter.fillRect(inner, brush_);
    if (line == 0)
        return;
    painter.fillRect(whole.x(), whole.y(), whole.width(), line, pen_.brush());
    painter.fillRect(whole.x(), inner.bottom() + 1, whole.width(), line, pen_.brush());
    painter.fillRect(whole.x(), inner.y(), line, inner.height(), pen_.brush());
    painter.fillRect(inner.right() + 1, inner.y(), line, inner.height(), pen_.brush());
}

QRect QCanvasRectangle::boundingRect() const {
    return {static_cast<int>(x()), static_cast<int>(y()), width(), height()};
}

int QCanvasRectangle::outlineWidth() const {
    return pen_.style() == Qt::NoPen ? 0 : std::max(pen_.width(), 1);
}
