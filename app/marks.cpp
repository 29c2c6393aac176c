// Draughts: the marks on the board's squares.

#include "app/draughts.h"

#include "eval/heuristic.h"
#include "rules/legalmove.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"

void Draughts::markSquares(int kind) {
    if (kind == 0) {
        for (int x = 0; x < pMetrics->size; ++x) {
            for (int y = 0; y < pMetrics->size; ++y)
                pCanvas->markSQ(x, y, MarkNone);
        }
    } else if (kind == 1) {
        for (const XY &square : targets)
            pCanvas->markSQ(square.x, square.y, MarkNext);
    }
}

// The offers of a move that was being entered when the turn is handed over. The path of the last
// move stays to be seen.
void Draughts::clearTargetMarks() {
    for (int x = 0; x < pMetrics->size; ++x) {
        for (int y = 0; y < pMetrics->size; ++y) {
            if (pCanvas->isMarked(x, y) == MarkNext)
                pCanvas->markSQ(x, y, MarkNone);
        }
    }
}

void Draughts::markLastMove() {
    if (pMove == nullptr)
        return;
    for (const XY &square : pMove->path)
        pCanvas->markSQ(square.x, square.y, MarkPath);
}

void Draughts::markTakenField() {
    heuristic analysis;
    analysis.analyse(pBoard.get());
    pCanvas->reset();
    for (int x = 0; x < pMetrics->size; ++x) {
        for (int y = 0; y < pMetrics->size; ++y)
            pCanvas->ownedBy(x, y, analysis.getOwner(x, y));
    }
}
