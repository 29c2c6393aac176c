#include "search/enginenode.h"

#include "eval/heuristic.h"
#include "search/deepsearch.h"
#include "search/hashtable.h"
#include "search/movesort.h"
#include "search/nodeprocedure.h"
#include "search/searchcontext.h"

#include <algorithm>

namespace {

template <SearchNode Node>
NodeOutcome run(Node &&node, int alpha, int beta) {
    const Score value = NodeProcedure<Node>::run(node, alpha, beta);
    NodeOutcome outcome = node.outcome();
    outcome.value = value;
    return outcome;
}

void dropChild(LegalMove &m) {
    delete m.subEngine;
    m.subEngine = nullptr;
    delete m.subBoard;
    m.subBoard = nullptr;
}

} // namespace

NodeOutcome searchNode(AbstractEngine &engine, SearchContext &context, int level, int alpha,
                       int beta, BestLine &line) {
    if (level > EngineNode::lastCachedLevel && context.deepSearch() != nullptr)
        return run(HandoverNode(engine, context, level, line), alpha, beta);
    return run(EngineNode(engine, context, level, line), alpha, beta);
}

// A list that was searched before is ordered by the scores of that time.
bool MoveListNode::listMoves() {
    QValueList<LegalMove> &list = engine_.moveList;
    engine_.wake();
    if (list.isEmpty()) {
        engine_.listMoves(context_.listingWatch());
        engine_.randMoveList();
    } else {
        sortByScore(list);
        AbstractEngine::depthUpdate(&list);
    }
    moves_.reserve(static_cast<std::size_t>(list.count()));
    for (LegalMove &m : list)
        moves_.push_back(&m);
    return !context_.listingWatch().isGivenUp();
}

Score MoveListNode::material() {
    return {engine_.materialScore(nullptr), engine_.board->plyCount};
}

Score MoveListNode::staticValue() {
    int freedom = 0;
    bool canPass = false;
    heuristic analysis;
    heuristic *passages = engine_.doHeuristic(&analysis, freedom, canPass);
    if (!engine_.canScore(level_, canPass))
        return {Score::none, 0};
    return {engine_.materialScore(passages) + freedom, engine_.board->plyCount};
}

void MoveListNode::prepareMoves(int childBudget) {
    childBudget_ = childBudget;
    outcome_.searched = true;
}

void MoveListNode::setBest(int i) {
    outcome_.best = move(i);
    line_.copyFrom(&childLine_, level_ + 1);
    line_.updateAt(move(i), level_);
}

void MoveListNode::record(int value, int alpha0, int beta, bool insert) {
    board &b = *engine_.board;
    b.hashHorizon = AbstractEngine::absHorizon;
    b.hashScore = value;
    b.hashAlpha = alpha0;
    b.hashBeta = beta;
    if (insert && AbstractEngine::pHT->insert(&b) == 1 && context_.deepSearch() != nullptr)
        context_.deepSearch()->noteStored(b);
}

int MoveListNode::reducedBudget(const LegalMove &m) const {
    return childBudget_ - std::max(m.reduction, 0);
}

int EngineNode::enter(int i) {
    move_ = move(i);
    if (move_->subBoard == nullptr) {
        move_->subBoard = new board(engine_.board);
        engine_.makeMove(move_->subBoard, move_);
    }
    if (!engine_.isCrowded() && !AbstractEngine::breakThinking)
        cloneEngine();
    if (move_->subEngine != nullptr)
        move_->subEngine->depth = reducedBudget(*move_);
    return move_->score;
}

// With the budget that the move's reduction has not been taken from yet.
void EngineNode::cloneEngine() {
    if (move_->subEngine == nullptr)
        move_->subEngine =
            engine_.selfClone(move_->subBoard, childBudget_, engine_.statistic, engine_.size);
}

bool EngineNode::probe(int beta, int alpha, Score &value) {
    board *child = move_->subBoard;
    if (!engine_.canUseHT(child, beta, alpha))
        return false;
    value.set(child->hashScore, child->hashHorizon);
    return true;
}

// Among thousands of moves only those that are searched get an engine, and none does on the way out
// of a search that is broken off.
Score EngineNode::search(int alpha, int beta) {
    if (move_->subEngine == nullptr && AbstractEngine::breakThinking) {
        childLine_.setTop(level_ + 1);
        return Score::brokenOff();
    }
    cloneEngine();
    move_->subEngine->depth = reducedBudget(*move_);
    return searchNode(*move_->subEngine, context_, level_ + 1, alpha, beta, childLine_).value;
}

// Among thousands of moves, what has not been searched is dropped and what has been is packed.
void EngineNode::leave(int i, int score) {
    LegalMove &m = *move(i);
    m.score = score;
    if (level_ > lastCachedLevel || (engine_.isCrowded() && m.subEngine == nullptr))
        dropChild(m);
    else if (m.subEngine != nullptr && (engine_.isCrowded() || m.subEngine->isCrowded()))
        m.subEngine->rest();
    if (level_ == 0)
        engine_.freeDiscarded();
}

HandoverNode::HandoverNode(AbstractEngine &engine, SearchContext &context, int level,
                           BestLine &line)
    : MoveListNode(engine, context, level, line), deepSearch_(*context.deepSearch()) {}

int HandoverNode::enter(int i) {
    const LegalMove &m = *move(i);
    deepSearch_.enter(*engine_.board, m);
    depth_ = reducedBudget(m);
    return m.score;
}

bool HandoverNode::probe(int beta, int alpha, Score &value) {
    return deepSearch_.probe(beta, alpha, value);
}

Score HandoverNode::search(int alpha, int beta) {
    return deepSearch_.search(level_ + 1, depth_, alpha, beta, childLine_);
}

void HandoverNode::leave(int i, int score) {
    move(i)->score = score;
}
