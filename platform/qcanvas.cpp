#include "platform/qcanvas.h"

#include "platform/guihost.h"
#include "platform/qcanvasitem.h"

#include <QBrush>
#include <QPointer>

#include <algorithm>

QCanvas::QCanvas(int width, int height) {
    GuiHost::provide();
    // A few hundred items, all of them redrawn often: an index would cost more than it saves.
    scene_.setItemIndexMethod(QGraphicsScene::NoIndex);
    setBackgroundColor(Qt::white);
    QCanvas::resize(width, height);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &QCanvas::advance);
}

QCanvas::~QCanvas() {
    while (!items_.empty())
        delete items_.back(); // takes itself off the list
}

void QCanvas::resize(int width, int height) {
    size_ = QSize(std::max(width, 0), std::max(height, 0));
    scene_.setSceneRect(QRect(QPoint(0, 0), size_));
}

QColor QCanvas::backgroundColor() const {
    return scene_.backgroundBrush().color();
}

void QCanvas::setBackgroundColor(const QColor &color) {
    scene_.setBackgroundBrush(color);
}

void QCanvas::setAdvancePeriod(int milliseconds) {
    period_ = milliseconds;
    timer_.stop();
    runTimerAsNeeded();
}

void QCanvas::advance() {
    // What an item's step sets off may delete any item and even the canvas.
    const QPointer<QCanvas> self(this);
    const std::vector<QCanvasItem *> visited = animated_;
    for (int phase = 0; phase <= 1; ++phase) {
        for (QCanvasItem *item : visited) {
            if (isAnimated(item))
                item->advance(phase);
            if (self.isNull())
                return;
        }
    }
    update();
}

void QCanvas::update() {
    if (allChanged_)
        scene_.update();
    allChanged_ = false;
}

void QCanvas::addItem(QCanvasItem *item) {
    items_.push_back(item);
}

void QCanvas::removeItem(QCanvasItem *item) {
    setItemAnimated(item, false);
    std::erase(items_, item);
}

void QCanvas::setItemAnimated(QCanvasItem *item, bool animated) {
    std::erase(animated_, item);
    if (animated)
        animated_.push_back(item);
    runTimerAsNeeded();
}

bool QCanvas::isAnimated(const QCanvasItem *item) const {
    return std::find(animated_.begin(), animated_.end(), item) != animated_.end();
}

void QCanvas::runTimerAsNeeded() {
    if (animated_.empty() || period_ < 0)
        timer_.stop();
    else if (!timer_.isActive())
        timer_.start(period_);
}
