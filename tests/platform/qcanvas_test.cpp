#include "platform/qcanvas.h"

#include "platform/qcanvasitem.h"

#include <gtest/gtest.h>

#include <QTest>

#include <functional>
#include <string>
#include <utility>

namespace {

// An animated rectangle that keeps a diary of its steps and runs what it is given in them.
struct Walker : QCanvasRectangle {
    Walker(QCanvas *on, std::string letter, std::string &log)
        : QCanvasRectangle(0, 0, 10, 10, on), name(std::move(letter)), diary(log) {
        setAnimated(true);
    }
    void advance(int phase) override {
        diary += name + std::to_string(phase) + ' ';
        QCanvasRectangle::advance(phase);
        if (inStep)
            inStep(phase); // may delete this
    }
    std::string name;
    std::string &diary;
    std::function<void(int)> inStep;
};

struct CanvasTest : testing::Test {
    std::string diary;
    QCanvas canvas{40, 30};
    Walker *a = new Walker(&canvas, "a", diary);
    Walker *b = new Walker(&canvas, "b", diary);
};

TEST_F(CanvasTest, AStepHasTwoPhasesAndTheSecondMoves) {
    a->setVelocity(1.5, -2);
    b->hide(); // steps nevertheless
    a->inStep = [&](int phase) { EXPECT_EQ(a->x(), phase == 0 ? 0 : 1.5); };
    canvas.advance();
    EXPECT_EQ(diary, "a0 b0 a1 b1 ");
    EXPECT_EQ(a->y(), -2);
}

TEST_F(CanvasTest, ItemsMayBeDeletedInAStep) {
    auto *c = new Walker(&canvas, "c", diary);
    a->inStep = [&](int) { delete std::exchange(b, nullptr); };
    c->inStep = [&](int phase) { phase == 0 ? void() : delete c; };
    canvas.advance();
    canvas.advance();
    EXPECT_EQ(diary, "a0 c0 a1 c1 a0 a1 ");
}

TEST(QCanvas, MayGoInAStep) {
    std::string diary;
    auto *canvas = new QCanvas(40, 30);
    auto *item = new Walker(canvas, "a", diary);
    item->inStep = [&](int) { delete canvas; };
    canvas->advance();
    EXPECT_EQ(diary, "a0 ");
}

// Counts its steps, also those without an item.
struct CountingCanvas : QCanvas {
    CountingCanvas() : QCanvas(40, 30) {}
    void advance() override {
        ++steps;
        QCanvas::advance();
    }
    int steps = 0;
};

TEST(QCanvas, StepsByItselfOnlyWhileSomethingMoves) {
    constexpr int period = 20;
    CountingCanvas canvas;
    QCanvasRectangle item(&canvas);
    item.setVelocity(1, 0);
    canvas.setAdvancePeriod(period);
    EXPECT_TRUE(QTest::qWaitFor([&] { return canvas.steps >= 3; }));
    item.setVelocity(0, 0);
    canvas.steps = 0;
    QTest::qWait(2 * period);
    EXPECT_EQ(canvas.steps, 0) << "nothing moves";
}

} // namespace
