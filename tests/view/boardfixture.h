// BoardFixture: a board canvas in a view, seen through the pixels of its viewport.
#ifndef TESTS_VIEW_BOARDFIXTURE_H
#define TESTS_VIEW_BOARDFIXTURE_H

#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPixmap>

#include <ostream>

inline void PrintTo(const QColor &color, std::ostream *out) {
    *out << color.name().toStdString();
}

struct BoardFixture : testing::Test {
    boardMetrics metrics{10, 230, 230};
    DrCanvas2 canvas{&metrics};
    MyCanvasView view{&canvas, nullptr, &metrics};

    BoardFixture() { view.show(); }

    QColor pixel(int x, int y) { return view.viewport()->grab().toImage().pixelColor(x, y); }
    // A pixel of the square's fill that no piece covers.
    QColor fill(int bx, int by) { return pixel(metrics.BxToScr(bx) + 1, metrics.ByToScr(by) + 1); }
};

#endif
