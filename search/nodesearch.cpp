// The node search of AbstractEngine, and the tests it applies at a node.

#include "base/host.h"
#include "eval/heuristic.h"
#include "rules/capturelimit.h"
#include "search/abstractengine.h"
#include "search/enginenode.h"
#include "search/hashtable.h"
#include "search/nodeprocedure.h"
#include "search/searchcontext.h"
#include "search/thinkstatistic.h"

#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

// The tree dump processes events more often than the search: writing is slow.
constexpr int dumpsBetweenEvents = 20;

} // namespace

LegalMove *AbstractEngine::getBestMove(int level, Score &result, Score alpha, Score beta,
                                       BestLine &line, bool trace) {
    const CaptureLimitScope report;
    SearchContext context(*statistic);
    if (level == 0) {
        absHorizon = board->plyCount + depth / 10;
        pHT->clear();
        context.startDeepSearch(*this);
    }
    alpha.reviveNone();
    beta.reviveNone();
    const NodeOutcome outcome = searchNode(*this, context, level, alpha.value, beta.value, line);
    result = outcome.value;
    if (trace && outcome.searched)
        printPLM(alpha.value, beta.value, board->HKey(), 0, level);
    return outcome.best;
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
    SearchContext context(*statistic);
    BestLine line;
    EngineNode node(*this, context, 0, line);
    Score value(material, 0);
    const bool senseless =
        NodeProcedure<EngineNode>::senselessSacrifice(node, alpha.value, beta.value, value);
    material = value.value;
    return senseless;
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
    int i = moveList.count();
    for (auto it = moveList.end(); it != moveList.begin();) {
        --it;
        std::printf("m=%d/%d\t tScore=%d\t score=%d\t \n", --i, moveList.count(), it->reduction,
                    it->score);
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
    if (--eventLoop < 0) {
        host().processEvents();
        eventLoop = dumpsBetweenEvents;
    }
    for (LegalMove &m : moveList) {
        ::board after(board);
        makeMove(&after, &m);
        const std::unique_ptr<AbstractEngine> child(selfClone(&after, depth, statistic, size));
        child->genFullTree(ts, level + 1);
    }
}
