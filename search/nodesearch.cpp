// The node search of AbstractEngine, and the tests it applies at a node.

#include "eval/heuristic.h"
#include "rules/capturelimit.h"
#include "rules/listingwatch.h"
#include "search/abstractengine.h"
#include "search/deepsearch.h"
#include "search/enginenode.h"
#include "search/eventpump.h"
#include "search/hashtable.h"
#include "search/nodeprocedure.h"
#include "search/thinkstatistic.h"

#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

// The tree dump processes events more often than the search: writing is slow.
constexpr int dumpsBetweenEvents = 20;

// Asked during long listings.
bool searchGoesOn() {
    host().processEvents();
    return !AbstractEngine::breakThinking;
}

} // namespace

LegalMove *AbstractEngine::getBestMove(int level, Score &result, Score alpha, Score beta,
                                       BestLine &line, bool trace) {
    const CaptureLimitScope report;
    std::optional<DeepSearchScope> deep;
    std::optional<ListingWatch> watch;
    if (level == 0) {
        deep.emplace(*this);
        watch.emplace(&searchGoesOn);
    }
    EngineNode node(*this, trace);
    const int best = NodeProcedure<EngineNode>(node, level).run(result, alpha, beta, line);
    return best < 0 ? nullptr : &moveList[best];
}

bool AbstractEngine::canScore(int level) const {
    return NodeProcedure<EngineNode>::canScore(level, depth / 10, moveList.count());
}

bool AbstractEngine::canScore(int level, bool canPass) const {
    return !canPass || level >= depth / 10 + 1;
}

heuristic *AbstractEngine::doHeuristic(heuristic *h, int &freedom, bool &canPass) {
    bool white = false;
    bool black = false;
    h->analyse(board);
    canPass = h->canPass(white, black);
    if (white)
        h->findPassage(codeWhite);
    if (black)
        h->findPassage(codeBlack);
    freedom = (board->whiteToMove ? freedomValue : -freedomValue) * h->freedom();
    return canPass ? h : nullptr;
}

bool AbstractEngine::senseLessSacryfice(const Score &alpha, const Score &beta, int &material) {
    EngineNode node(*this, false);
    return NodeProcedure<EngineNode>::senselessSacrifice(node, alpha, beta, material);
}

// The record was made by a node of this position with the window it had then; the child's present
// window must lie inside that.
bool AbstractEngine::canUseHT(::board *b, int betaValue, int alphaValue) {
    unsigned int idx = 0;
    if (pHT->find(b, idx) != 1)
        return false;
    const ::board &stored = *pHT->getBoard(static_cast<int>(idx));
    if (alphaValue < stored.hashBeta || betaValue < stored.hashAlpha ||
        stored.hashHorizon < absHorizon)
        return false;
    b->hashScore = stored.hashScore >= -alphaValue ? Score::none : stored.hashScore;
    b->hashHorizon = stored.hashHorizon;
    b->hashBeta = stored.hashBeta;
    b->hashAlpha = stored.hashAlpha;
    return true;
}

// The third column of a move's line is its reduction.
void AbstractEngine::printPLM(int alpha0, int beta, unsigned int thisKey, unsigned int, int level) {
    std::printf("\n thisKey=\t %u \tlevel=%d\t Depth=%d < %d, %d >\n", thisKey, level, depth,
                alpha0, -beta);
    for (int i = moveList.count() - 1; i >= 0; --i) {
        std::printf("m=%d/%d\t tScore=%d\t score=%d\t \n", i, moveList.count(),
                    moveList[i].reduction, moveList[i].score);
    }
}

void AbstractEngine::genFullTree(QTextStream &ts, int level) {
    if (breakThinking)
        return;
    const CaptureLimitScope report;
    const bool noMoves = FillMoveList();
    board->toStream(ts);
    thinkStatistic::count(statistic->nodes, 1);
    statistic->maxLevel = std::max(statistic->maxLevel, level);
    thinkStatistic::count(statistic->movesGenerated, moveList.count());
    if (noMoves || level >= depth)
        return;
    pumpEvents(dumpsBetweenEvents);
    for (LegalMove &m : moveList) {
        ::board after(board);
        makeMove(&after, &m);
        const std::unique_ptr<AbstractEngine> child(selfClone(&after, depth, statistic, size));
        child->genFullTree(ts, level + 1);
    }
}
