#include "search/abstractengine.h"

#include "search/hashtable.h"

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

AbstractEngine::~AbstractEngine() {
    releaseTree();
    board = nullptr;
}

void AbstractEngine::releaseTree() {
    for (int i = moveList.count() - 1; i >= 0; --i) {
        LegalMove &m = moveList[i];
        delete m.subEngine;
        m.subEngine = nullptr;
        delete m.subBoard;
        m.subBoard = nullptr;
    }
}

LegalMove *AbstractEngine::getLegalMove(int i) {
    return i < moveList.count() ? &moveList[i] : nullptr;
}

bool AbstractEngine::isCapture() const {
    return !moveList.isEmpty() && moveList.first().isCapture();
}
