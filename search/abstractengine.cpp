#include "search/abstractengine.h"

#include "search/hashtable.h"
#include "search/listingwatch.h"
#include "search/thinkstatistic.h"

bool AbstractEngine::breakThinking = false;
bool AbstractEngine::isGambit = false;
int AbstractEngine::eventLoop = 0;
int AbstractEngine::absHorizon = -1;
SquaresValue *AbstractEngine::pSQV = nullptr;
hashTable *AbstractEngine::pHT = nullptr;
constinit const XY AbstractEngine::jmpInter[4] = {{1, 1}, {1, -1}, {-1, -1}, {-1, 1}};
constinit const XY AbstractEngine::jmpEnd[4] = {{2, 2}, {2, -2}, {-2, -2}, {-2, 2}};

AbstractEngine::AbstractEngine(::board *b, int budget, thinkStatistic *stat, int squares)
    : depth(budget), board(b), size(squares), statistic(stat) {}

bool AbstractEngine::listMoves(ListingWatch &watch) {
    watch_ = &watch;
    const bool noMoves = FillMoveList();
    watch_ = nullptr;
    return noMoves;
}

bool AbstractEngine::countJump() {
    return watch_ != nullptr && watch_->countJump();
}

int AbstractEngine::staticValue(int balance) {
    thinkStatistic::count(statistic->scoresCalculated, 1);
    return (board->whiteToMove ? balance : -balance) + statistic->randomTerm();
}

LegalMove *AbstractEngine::getLegalMove(int i) {
    return i < moveList.count() ? &moveList[i] : nullptr;
}

bool AbstractEngine::isCapture() const {
    return !moveList.isEmpty() && moveList.first().isCapture();
}
