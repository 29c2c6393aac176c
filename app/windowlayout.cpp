// Draughts: where the board lies in the window.

#include "app/draughts.h"

#include "rules/board.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <QResizeEvent>

namespace {

constexpr int leastHeight = 300;
constexpr int boardPixels = 230;

} // namespace

void Draughts::resizeEvent(QResizeEvent *event) {
    MainForm::resizeEvent(event);
    if (height() < leastHeight)
        resize(width(), leastHeight);
    pMetrics->setWH(boardPixels, boardPixels);
    pCanvas->resize(pMetrics->getW(), pMetrics->getH());
    pView->resize();
    placeView();
    pCanvas->resizeSquares();
    pCanvas->setAllChanged();
    ResizeCanvasPieces();
}

// Centred horizontally, at the top of the form.
void Draughts::placeView() {
    pView->move((width() - pView->width()) / 2, formOrigin().y());
}

// A piece in flight keeps its course: it belongs to the square that it flies to.
void Draughts::ResizeCanvasPieces() {
    for (int x = 0; x < pMetrics->size; ++x) {
        for (int y = 0; y < pMetrics->size; ++y) {
            DrCanvasPiece *piece = pieces[x][y];
            if (pBoard->squares[x][y] == 0 || piece == nullptr)
                continue;
            piece->resize(pMetrics->SquareWidthB(), pMetrics->SquareHeightB());
            if (!piece->isDancing())
                piece->setBoardPos(x, y);
        }
    }
    pCanvas->update();
}
