#include "rules/polengine.h"

AbstractEngine *PolEngine::selfClone(::board *b, int budget, thinkStatistic *stat, int squares) {
    return new PolEngine(b, budget, stat, squares);
}

void PolEngine::FillCaptureMoves() {
    listCaptures();
}
