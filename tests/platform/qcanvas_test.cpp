#include "platform/qcanvas.h"

#include "platform/qcanvasitem.h"
#include "platform/qcanvasview.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QPixmap>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

// A rectangle that keeps a diary of its steps and runs what it is given in them.
struct Walker : QCanvasRectangle {
    Walker(QCanvas *on, QString letter, QString &log)
        : QCanvasRectangle(0, 0, 10, 10, on), name(std::move(letter)), diary(log) {
        setAnimated(true);
    }
    void advance(int phase) override {
        diary += name + QString::number(phase);
        QCanvasRectangle::advance(phase);
        if (inStep)
            inStep(phase); // may delete this
    }
    QString name;
    QString &diary;
    std::function<void(int)> inStep;
};

TEST(QCanvas, AStepVisitsAnimatedItemsTwiceAndSurvivesWhatTheyDo) {
    QString diary;
    auto *canvas = new QCanvas(40, 30);
    QCanvasView view(canvas);
    std::make_unique<QCanvasView>(canvas).reset();
    auto *doomed = new Walker(canvas, "d", diary);
    auto *a = new Walker(canvas, "a", diary);
    auto *suicidal = new Walker(canvas, "x", diary);
    auto *resting = new Walker(canvas, "r", diary);
    a->setVelocity(1.5, -2);
    bool nested = false;
    a->inStep = [&](int phase) {
        if (phase == 0)
            delete std::exchange(doomed, nullptr);
        else if (!std::exchange(nested, true))
            canvas->advance();
    };
    suicidal->inStep = [&](int phase) {
        resting->hide(); // hidden items still step
        if (phase == 0)
            return;
        resting->setAnimated(false);
        delete suicidal;
    };
    canvas->advance();
    EXPECT_EQ(diary, "d0a0x0r0a1a0x0r0a1x1") << "a whole step inside a's second";
    EXPECT_EQ(QPointF(a->x(), a->y()), QPointF(3, -4));

    resting->setAnimated(true);
    a->inStep = [&](int) { delete canvas; };
    canvas->advance();
    EXPECT_EQ(diary.mid(20), "a0");
    EXPECT_EQ(view.canvas(), nullptr);
    EXPECT_EQ(view.sizeHint(), QSize(2 * view.frameWidth(), 2 * view.frameWidth()));
}

struct CountingCanvas : QCanvas {
    using QCanvas::QCanvas;
    void advance() override {
        ++steps;
        QCanvas::advance();
    }
    int steps = 0;
};

TEST(QCanvas, TheTimerRunsOnlyWhileSomethingIsAnimated) {
    QString diary;
    CountingCanvas canvas(40, 30);
    Walker a(&canvas, "a", diary);
    canvas.setAdvancePeriod(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return diary.size() >= 8; }, 2000));
    for (const bool animated : {false, true}) {
        a.setAnimated(animated);
        canvas.setAdvancePeriod(animated ? -1 : 5);
        canvas.steps = 0;
        QTest::qWait(30);
        EXPECT_EQ(canvas.steps, 0);
    }
}

TEST(QCanvas, RectanglesFillTheirPixelsAtEveryScale) {
    QCanvas canvas(3000, 2500);
    QCanvasView view(&canvas);
    const QSize frame(2 * view.frameWidth(), 2 * view.frameWidth());
    EXPECT_EQ(view.sizeHint(), QSize(3000, 2500) + frame) << "not cut to the screen";
    QCanvasRectangle rectangle(5, 6, 8, 7, &canvas);
    rectangle.setBrush(Qt::green);
    for (const int scale : {0, 1, 2, 3}) { // 0: hidden until shown
        const int side = 20 * std::max(scale, 1);
        QImage scaled(side, side, QImage::Format_RGB32);
        scaled.setDevicePixelRatio(scale);
        scaled.fill(Qt::white);
        if (scale >= 2) {
            QPainter painter(&scaled);
            rectangle.draw(painter);
        } else {
            rectangle.setVisible(scale == 1);
            scaled = view.viewport()->grab(QRect(0, 0, 20, 20)).toImage();
        }
        for (int at = 0; at < side * side; ++at) {
            const QPoint pixel(at / side, at % side);
            const QPoint logical(20 * pixel.x() / side, 20 * pixel.y() / side);
            const QColor want = scale == 0 || !QRect(5, 6, 8, 7).contains(logical) ? Qt::white
                                : QRect(6, 7, 6, 5).contains(logical)              ? Qt::green
                                                                                   : Qt::black;
            ASSERT_EQ(scaled.pixelColor(pixel), want) << pixel.x() << ',' << pixel.y();
        }
    }
}

} // namespace
