// BoardFixture: a board of ten squares in a view, seen through the pixels of its viewport.
#ifndef TESTS_VIEW_BOARDFIXTURE_H
#define TESTS_VIEW_BOARDFIXTURE_H

#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <gtest/gtest.h>

#include <memory>

struct BoardFixture : testing::Test {
    boardMetrics metrics{10, 230, 230};
    DrCanvas2 canvas{&metrics};
    MyCanvasView view{&canvas, nullptr, &metrics};

    DrCanvasPiece *place(int code, int bx, int by) {
        auto *piece = new DrCanvasPiece(23, 23, &canvas, nullptr, &metrics);
        piece->setType(code);
        piece->setBoardPos(bx, by);
        return piece;
    }
};

#endif
