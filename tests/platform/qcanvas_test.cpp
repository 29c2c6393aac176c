#include "platform/qcanvas.h"

#include "platform/qcanvasitem.h"
#include "platform/qcanvasview.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

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

    a->inStep = [&](int) { delete canvas; };
    canvas->advance();
    EXPECT_EQ(diary.mid(20), "a0");
    EXPECT_EQ(view.canvas(), nullptr);
}

} // namespace
