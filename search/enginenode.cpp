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
NodeOutcome run(Node &&node, int level, Score &result, const Score &alpha, const Score &beta,
                BestLine &line) {
    using Procedure = NodeProcedure<Node>;
    const int best = Procedure(node, level).run(result, alpha, beta, line);
    return {best < 0 ? nullptr : node.move(best), best != Procedure::unsearched};
}

} // namespace

NodeOutcome searchNode(AbstractEngine &engine, SearchContext &context, int level, Score &result,
                       const Score &alpha, const Score &beta, BestLine &line) {
    if (level > EngineNode::lastCachedLevel && context.deepSearch() != nullptr)
        return run(HandoverNode(engine, context), level, result, alpha, beta, line);
    return run(EngineNode(engine, context, level), level, result, alpha, beta, line);
}

// A list that was searched before is ordered by the scores of that time.
bool MoveListNode::listMoves() {
    QValueList<LegalMove> &list = engine_.moveList;
    bool noMoves = false;
    if (list.isEmpty()) {
        noMoves = engine_.listMoves(context_.listingWatch());
        engine_.randMoveList();
    } else {
        sortByScore(list);
        AbstractEngine::depthUpdate(&list);
    }
    moves_.reserve(static_cast<std::size_t>(list.count()));
    for (LegalMove &m : list)
        moves_.push_back(&m);
    return noMoves;
}

Score MoveListNode::material() {
    return {engine_.materialScore(nullptr), engine_.board->plyCount};
}

bool MoveListNode::staticValue(int level, int, Score &value) {
    int freedom = 0;
    bool canPass = false;
    heuristic analysis;
    heuristic *passages = engine_.doHeuristic(&analysis, freedom, canPass);
    if (!engine_.canScore(level, canPass))
        return false;
    value.set(engine_.materialScore(passages) + freedom, engine_.board->plyCount);
    return true;
}

void MoveListNode::record(const Score &value, int alpha0, const Score &beta, bool insert) {
    board &b = *engine_.board;
    b.hashHorizon = AbstractEngine::absHorizon;
    b.hashScore = value.value;
    b.hashAlpha = alpha0;
    b.hashBeta = beta.value;
    if (insert && AbstractEngine::pHT->insert(&b) == 1 && context_.deepSearch() != nullptr)
        context_.deepSearch()->noteStored(b);
}

int MoveListNode::reducedBudget(const LegalMove &m, int childBudget) {
    return childBudget - std::max(m.reduction, 0);
}

// A clone is made with the budget that the move's reduction has not been taken from yet. A search
// that is broken off only asks the table for what it has not searched yet: on the way out of a long
// listing it makes boards for that, but no engines.
int EngineNode::enter(int i, int childBudget) {
    LegalMove &m = *move(i);
    if (m.subBoard == nullptr) {
        m.subBoard = new board(engine_.board);
        engine_.makeMove(m.subBoard, &m);
    }
    if (m.subEngine == nullptr && !AbstractEngine::breakThinking)
        m.subEngine = engine_.selfClone(m.subBoard, childBudget, engine_.statistic, engine_.size);
    if (m.subEngine != nullptr)
        m.subEngine->depth = reducedBudget(m, childBudget);
    child_ = m.subBoard;
    childEngine_ = m.subEngine;
    return m.score;
}

bool EngineNode::probe(int beta, int alpha, Score &value) {
    if (!engine_.canUseHT(child_, beta, alpha))
        return false;
    value.set(child_->hashScore, child_->hashHorizon);
    return true;
}

void EngineNode::search(int level, Score &value, const Score &alpha, const Score &beta,
                        BestLine &line) {
    if (childEngine_ != nullptr)
        searchNode(*childEngine_, context_, level, value, alpha, beta, line);
    else
        NodeProcedure<EngineNode>::breakOff(level, value, line);
}

void EngineNode::leave(int i, int score) {
    LegalMove &m = *move(i);
    m.score = score;
    if (level_ <= lastCachedLevel)
        return;
    delete m.subEngine;
    m.subEngine = nullptr;
    delete m.subBoard;
    m.subBoard = nullptr;
}

HandoverNode::HandoverNode(AbstractEngine &engine, SearchContext &context)
    : MoveListNode(engine, context), deepSearch_(*context.deepSearch()) {}

int HandoverNode::enter(int i, int childBudget) {
    const LegalMove &m = *move(i);
    deepSearch_.enter(*engine_.board, m);
    childBudget_ = reducedBudget(m, childBudget);
    return m.score;
}

bool HandoverNode::probe(int beta, int alpha, Score &value) {
    return deepSearch_.probe(beta, alpha, value);
}

void HandoverNode::search(int level, Score &value, const Score &alpha, const Score &beta,
                          BestLine &line) {
    deepSearch_.search(level, childBudget_, value, alpha, beta, line);
}

void HandoverNode::leave(int i, int score) {
    move(i)->score = score;
}
