#include "search/enginenode.h"

#include "base/host.h"
#include "eval/heuristic.h"
#include "search/deepsearch.h"
#include "search/eventpump.h"
#include "search/hashtable.h"
#include "search/movesort.h"
#include "search/nodeprocedure.h"
#include "search/thinkstatistic.h"

#include <algorithm>

namespace {

// Children of nodes up to this level are kept.
constexpr int lastCachedLevel = 2;

} // namespace

void EngineNode::begin(int level) {
    level_ = level;
    if (level > lastCachedLevel)
        deep_ = DeepSearch::running();
    if (trace_)
        key_ = engine_.board->HKey();
    if (level == 0) {
        AbstractEngine::absHorizon = engine_.board->plyCount + engine_.depth / 10;
        AbstractEngine::pHT->clear();
    }
}

// A list that was searched before is ordered by the scores of that time.
bool EngineNode::listMoves() {
    if (!engine_.moveList.isEmpty()) {
        sortByScore(engine_.moveList);
        AbstractEngine::depthUpdate(&engine_.moveList);
        return false;
    }
    const bool noMoves = engine_.FillMoveList();
    engine_.randMoveList();
    return noMoves;
}

void EngineNode::count(int level) {
    thinkStatistic &statistic = *engine_.statistic;
    thinkStatistic::count(statistic.nodes, 1);
    statistic.maxLevel = std::max(statistic.maxLevel, level);
    thinkStatistic::count(statistic.movesGenerated, moves());
    pumpEvents(nodesBetweenEvents);
}

bool EngineNode::giveAway() const {
    return engine_.statistic->giveAway;
}

bool EngineNode::staticValue(int level, int, int &value) {
    int freedom = 0;
    bool canPass = false;
    heuristic analysis;
    heuristic *passages = engine_.doHeuristic(&analysis, freedom, canPass);
    if (!engine_.canScore(level, canPass))
        return false;
    value = engine_.materialScore(passages) + freedom;
    if (giveAway())
        value = -value;
    return true;
}

void EngineNode::enter(int i, int childBudget) {
    LegalMove &m = engine_.moveList[i];
    childBudget_ = childBudget - std::max(m.reduction, 0);
    if (deep_ != nullptr)
        deep_->enter(*engine_.board, m);
    else if (AbstractEngine::breakThinking && m.subEngine == nullptr)
        enterInPassing(m);
    else
        enterEngine(m, childBudget);
}

// A clone is made with the budget that the move's reduction has not been taken from yet.
void EngineNode::enterEngine(LegalMove &m, int childBudget) {
    if (m.subBoard == nullptr) {
        m.subBoard = new board(engine_.board);
        engine_.makeMove(m.subBoard, &m);
    }
    if (m.subEngine == nullptr)
        m.subEngine = engine_.selfClone(m.subBoard, childBudget, engine_.statistic, engine_.size);
    m.subEngine->depth = childBudget_;
}

// A search that is broken off only asks the table for what it has not searched yet. On the way out
// of a long listing an engine and a board of its own for every move would take a while.
void EngineNode::enterInPassing(LegalMove &m) {
    passed_.emplace(engine_.board);
    engine_.makeMove(&*passed_, &m);
}

bool EngineNode::probe(int i, int beta, int alpha, Score &value) {
    if (deep_ != nullptr)
        return deep_->probe(beta, alpha, value);
    board *child = engine_.moveList[i].subBoard;
    if (child == nullptr)
        child = &*passed_;
    if (trace_)
        childKey_ = child->HKey();
    if (!engine_.canUseHT(child, beta, alpha))
        return false;
    thinkStatistic::count(engine_.statistic->hashHits, 1);
    value.set(child->hashScore, child->hashHorizon);
    return true;
}

void EngineNode::search(int i, int level, Score &value, const Score &alpha, const Score &beta,
                        BestLine &line) {
    AbstractEngine *child = engine_.moveList[i].subEngine;
    if (deep_ != nullptr)
        deep_->search(level, childBudget_, value, alpha, beta, line);
    else if (child != nullptr)
        child->getBestMove(level, value, alpha, beta, line, false);
    else
        NodeProcedure<EngineNode>::breakOff(level, value, line);
}

void EngineNode::leave(int i, int level) {
    if (level <= lastCachedLevel || deep_ != nullptr)
        return;
    LegalMove &m = engine_.moveList[i];
    delete m.subEngine;
    m.subEngine = nullptr;
    delete m.subBoard;
    m.subBoard = nullptr;
}

void EngineNode::updateLine(BestLine &line, int i, int level) const {
    line.updateAt(&engine_.moveList[i], level);
}

void EngineNode::countCutoff() {
    thinkStatistic::count(engine_.statistic->cutoffs, 1);
}

void EngineNode::countSacrifice() {
    thinkStatistic::count(engine_.statistic->senselessSacrifices, 1);
}

void EngineNode::record(const Score &value, int alpha0, const Score &beta, bool insert) {
    board &b = *engine_.board;
    b.hashHorizon = AbstractEngine::absHorizon;
    b.hashScore = value.value;
    b.hashAlpha = alpha0;
    b.hashBeta = beta.value;
    if (insert && AbstractEngine::pHT->insert(&b) == 1 && DeepSearch::running() != nullptr)
        DeepSearch::running()->noteStored(b);
}

void EngineNode::trace(int alpha0, const Score &beta) const {
    if (trace_)
        engine_.printPLM(alpha0, beta.value, key_, childKey_, level_);
}
