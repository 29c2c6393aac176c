#include "platform/qcanvas.h"

#include "platform/paintscope.h"
#include "platform/qcanvasitem.h"
#include "platform/qcanvasview.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPaintEvent>
#include <QPixmap>
#include <QTest>

#include <functional>
#include <memory>

namespace {

// A rectangle that keeps a diary of its steps and runs what it is given in them.
struct Walker : QCanvasRectangle {
    Walker(QCanvas *on, QString letter, QString &log)
        : QCanvasRectangle(0, 0, 10, 10, on), name(std::move(letter)), diary(log) {
        setBrush(Qt::red);
        setAnimated(true);
    }
    void advance(int phase) override {
        diary += name + QString::number(phase);
        QCanvasRectangle::advance(phase);
        if (inStep)
            inStep(phase); // may delete this
    }
    void draw(QPainter &painter) override {
        drawnInScope = PaintScope::active();
        QCanvasRectangle::draw(painter);
    }
    QString name;
    QString &diary;
    std::function<void(int)> inStep;
    bool drawnInScope = false;
};

struct QCanvasTest : testing::Test {
    QImage picture() { return view.viewport()->grab().toImage(); }

    QCanvas canvas{40, 30};
    QString diary;
    QCanvasView view{&canvas};
};

TEST_F(QCanvasTest, AStepVisitsAnimatedItemsInTwoPhases) {
    Walker a(&canvas, "a", diary), b(&canvas, "b", diary), still(&canvas, "s", diary);
    still.setVelocity(1, 0);
    still.setVelocity(0, 0);
    a.setVelocity(1.5, -2);
    canvas.advance();
    EXPECT_EQ(diary, "a0b0a1b1");
    EXPECT_EQ(a.x(), 1.5);
    EXPECT_EQ(a.y(), -2);
}

TEST_F(QCanvasTest, AStepSurvivesWhatItsItemsDo) {
    auto *doomed = new Walker(&canvas, "d", diary);
    Walker a(&canvas, "a", diary);
    auto *suicidal = new Walker(&canvas, "x", diary);
    Walker resting(&canvas, "r", diary);
    a.inStep = [&](int phase) {
        if (phase == 0)
            delete doomed;
    };
    suicidal->inStep = [&](int phase) {
        resting.hide(); // hidden items still step
        if (phase == 0)
            return;
        resting.setAnimated(false);
        delete suicidal;
    };
    canvas.advance();
    EXPECT_EQ(diary, "d0a0x0r0a1x1");
}

TEST_F(QCanvasTest, AStepInsideAStepIsWhole) {
    Walker a(&canvas, "a", diary), b(&canvas, "b", diary);
    bool nested = false;
    a.inStep = [&](int phase) {
        if (phase == 1 && !std::exchange(nested, true))
            canvas.advance();
    };
    canvas.advance();
    EXPECT_EQ(diary, "a0b0a1a0b0a1b1b1");
}

TEST(QCanvasLifeTest, TheCanvasMayGoInsideItsOwnStep) {
    QString diary;
    auto *canvas = new QCanvas(10, 10);
    auto *a = new Walker(canvas, "a", diary);
    new Walker(canvas, "b", diary);
    a->inStep = [&](int) { delete canvas; };
    canvas->advance();
    EXPECT_EQ(diary, "a0");
}

TEST(QCanvasLifeTest, ViewAndCanvasGoInEitherOrder) {
    auto canvas = std::make_unique<QCanvas>(10, 10);
    auto view = std::make_unique<QCanvasView>(canvas.get());
    view.reset();
    view = std::make_unique<QCanvasView>(canvas.get());
    canvas.reset();
    EXPECT_EQ(view->canvas(), nullptr);
    EXPECT_EQ(view->sizeHint(), QSize(2 * view->frameWidth(), 2 * view->frameWidth()));
}

TEST_F(QCanvasTest, TheTimerRunsOnlyWhileSomethingIsAnimated) {
    canvas.setAdvancePeriod(5);
    Walker a(&canvas, "a", diary);
    EXPECT_TRUE(QTest::qWaitFor([&] { return diary.size() >= 8; }, 2000));
    a.setVelocity(0, 0);
    a.setAnimated(false);
    diary.clear();
    QTest::qWait(30);
    EXPECT_EQ(diary, "");
    a.setVelocity(1, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !diary.isEmpty(); }, 2000));
    canvas.setAdvancePeriod(-1);
    diary.clear();
    QTest::qWait(30);
    EXPECT_EQ(diary, "");
}

TEST_F(QCanvasTest, RectanglesLieInsideTheirPixels) {
    QCanvasRectangle rectangle(5, 6, 8, 7, &canvas);
    rectangle.setBrush(Qt::green);
    EXPECT_EQ(picture().pixelColor(8, 8), QColor(Qt::white)) << "hidden until shown";
    rectangle.show();
    const QImage shown = picture();
    for (int x = 0; x < 40; ++x) {
        for (int y = 0; y < 30; ++y) {
            const QRect outside(5, 6, 8, 7), inside(6, 7, 6, 5);
            const QColor want = inside.contains(x, y)    ? Qt::green
                                : outside.contains(x, y) ? Qt::black
                                                         : Qt::white;
            ASSERT_EQ(shown.pixelColor(x, y), want) << x << ',' << y;
        }
    }
    rectangle.setPen(QPen(Qt::blue, 4)); // wider than half the rectangle
    EXPECT_EQ(picture().pixelColor(9, 9), QColor(Qt::blue));
    EXPECT_EQ(picture().pixelColor(4, 5), QColor(Qt::white));
}

TEST_F(QCanvasTest, HigherItemsCoverLowerOnes) {
    QCanvasRectangle first(0, 0, 20, 20, &canvas), second(0, 0, 20, 20, &canvas);
    first.setBrush(Qt::red);
    second.setBrush(Qt::blue);
    first.show();
    second.show();
    EXPECT_EQ(picture().pixelColor(10, 10), QColor(Qt::blue));
    first.setZ(1);
    EXPECT_EQ(picture().pixelColor(10, 10), QColor(Qt::red));
}

TEST_F(QCanvasTest, TheSizeHintIsNotCutToTheScreen) {
    canvas.resize(3000, 2500);
    const int frame = 2 * view.frameWidth();
    EXPECT_EQ(view.sizeHint(), QSize(3000 + frame, 2500 + frame));
}

TEST_F(QCanvasTest, EveryDevicePixelOfAScaledScreenIsSharp) {
    QCanvasRectangle rectangle(5, 6, 8, 7, &canvas);
    rectangle.setBrush(Qt::green);
    rectangle.show();
    for (const int scale : {2, 3}) {
        QImage scaled(40 * scale, 30 * scale, QImage::Format_RGB32);
        scaled.setDevicePixelRatio(scale);
        scaled.fill(Qt::white);
        QPainter painter(&scaled);
        rectangle.draw(painter);
        painter.end();
        const QImage plain = picture();
        for (int x = 0; x < scaled.width(); ++x) {
            for (int y = 0; y < scaled.height(); ++y)
                ASSERT_EQ(scaled.pixelColor(x, y), plain.pixelColor(x / scale, y / scale))
                    << scale << " times, at " << x << ',' << y;
        }
    }
}

// Collects what a widget is asked to repaint.
struct PaintWatch : QObject {
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
    QRegion painted;
};

TEST_F(QCanvasTest, ChangesRepaintTheOldPlaceAndTheNew) {
    canvas.resize(200, 200);
    Walker item(&canvas, "i", diary);
    item.show();
    view.resize(view.sizeHint());
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QTest::qWait(50);
    EXPECT_TRUE(item.drawnInScope);
    EXPECT_FALSE(PaintScope::active());

    PaintWatch watch;
    view.viewport()->installEventFilter(&watch);
    item.move(100, 120);
    QTest::qWait(50);
    EXPECT_TRUE(watch.painted.contains(QRect(0, 0, 10, 10)));
    EXPECT_TRUE(watch.painted.contains(QRect(100, 120, 10, 10)));
    EXPECT_FALSE(watch.painted.contains(QPoint(180, 20)));

    canvas.setAllChanged();
    canvas.update();
    QTest::qWait(50);
    EXPECT_TRUE(watch.painted.contains(QRect(0, 0, 200, 200)));
}

} // namespace
