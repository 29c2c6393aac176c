#include "view/mycanvasview.h"

#include "tests/view/boardfixture.h"

#include <QSignalSpy>
#include <QTest>
#include <QWindow>

namespace {

struct MyCanvasViewTest : BoardFixture {
    void press(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(view.viewport(), button, {}, QPoint(x, y));
    }
    QSignalSpy taps{&view, &MyCanvasView::clickedBxy};
};

TEST_F(MyCanvasViewTest, CoversItsCanvas) {
    EXPECT_EQ(view.viewport()->size(), QSize(230, 230));
    canvas.resize(300, 260);
    view.resize();
    EXPECT_EQ(view.viewport()->size(), QSize(300, 260));
}

TEST_F(MyCanvasViewTest, PressesBecomePlayingSquares) {
    const struct {
        int x, y;
        Qt::MouseButton button;
        QVariantList tap; // empty: none
    } cases[] = {{0, 229, Qt::LeftButton, {0, 0, false}},  {22, 207, Qt::LeftButton, {0, 0, false}},
                 {23, 206, Qt::LeftButton, {1, 1, false}}, {23, 229, Qt::LeftButton, {}},
                 {229, 0, Qt::LeftButton, {9, 9, false}},  {0, 229, Qt::RightButton, {0, 0, true}},
                 {0, 229, Qt::MiddleButton, {0, 0, false}}};
    for (const auto &c : cases) {
        taps.clear();
        press(c.x, c.y, c.button);
        EXPECT_EQ(taps.value(0), c.tap) << c.x << ',' << c.y;
        EXPECT_EQ(taps.count(), c.tap.isEmpty() ? 0 : 1);
    }
}

TEST_F(MyCanvasViewTest, QuickPressesAllCount) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    const QPoint corner = view.viewport()->mapTo(&view, QPoint(1, 228));
    for (int i = 0; i < 3; ++i) // through the window, where double clicks are made
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, corner, 10);
    EXPECT_EQ(taps.count(), 3);
}

TEST_F(MyCanvasViewTest, TheFarEdgeOfAPixelBelongsToIt) {
    // Three device pixels a pixel: the last of them lies at two thirds.
    for (const double fraction : {0.0, 1 / 3.0, 2 / 3.0}) {
        taps.clear();
        const QPointF at(22 + fraction, 207 + fraction);
        QMouseEvent event(QEvent::MouseButtonPress, at, view.viewport()->mapToGlobal(at),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &event);
        EXPECT_EQ(taps.value(0), (QVariantList{0, 0, false})) << fraction;
    }
}

TEST_F(MyCanvasViewTest, PressesBeyondTheSquaresAreNotReported) {
    metrics.size = 8; // 28 pixels a square, a strip of 6 over
    press(225, 0);
    press(0, 225);
    press(229, 229);
    EXPECT_EQ(taps.count(), 0);
    press(223, 0);
    EXPECT_EQ(taps.value(0), (QVariantList{7, 7, false}));

    metrics.setWH(5, 5); // no room for squares at all
    press(0, 0);
    view.setBMetrics(nullptr);
    press(0, 0);
    EXPECT_EQ(taps.count(), 1);
}

} // namespace
