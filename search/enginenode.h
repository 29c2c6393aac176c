// The nodes of the search tree that are engines with a board.
#ifndef SEARCH_ENGINENODE_H
#define SEARCH_ENGINENODE_H

#include "search/abstractengine.h"
#include "search/bestline.h"

#include <vector>

class DeepSearch;
class SearchContext;

// What a node's search came to.
struct NodeOutcome {
    LegalMove *best = nullptr; // an entry of the engine's list; null without one or after a cut-off
    bool searched = false;     // the moves were searched, not the node valued without them
};

// Searches the engine's position as a node at `level`, see AbstractEngine::getBestMove.
NodeOutcome searchNode(AbstractEngine &engine, SearchContext &context, int level, Score &result,
                       const Score &alpha, const Score &beta, BestLine &line);

// What both kinds of engine node have in common: all that a SearchNode supplies but its children.
class MoveListNode {
public:
    using Line = BestLine;

    MoveListNode(AbstractEngine &engine, SearchContext &context)
        : engine_(engine), context_(context) {}

    SearchContext &context() const { return context_; }
    int budget() const { return engine_.depth; }
    bool listMoves();
    int moves() const { return static_cast<int>(moves_.size()); }
    bool mustCapture() const { return engine_.isCapture(); }
    Score material();
    bool staticValue(int level, int horizon, Score &value);
    void prepareMoves() {}
    void updateLine(BestLine &line, int i, int level) const { line.updateAt(move(i), level); }
    void addChoiceBonus(Score &result) const { engine_.updatePoints(result); }
    void record(const Score &value, int alpha0, const Score &beta, bool insert);

    LegalMove *move(int i) const { return moves_[static_cast<std::size_t>(i)]; }

protected:
    // The depth budget that the move's reduction leaves of its child's.
    static int reducedBudget(const LegalMove &m, int childBudget);

    AbstractEngine &engine_;
    SearchContext &context_;

private:
    std::vector<LegalMove *> moves_; // the entries of the engine's list, which have no index
};

// A node whose children are engines. They hang on the engine's moves and, up to level 2, stay there
// from one iteration to the next; from level 3 on they are dropped after the visit.
class EngineNode : public MoveListNode {
public:
    // Children of nodes up to this level are kept.
    static constexpr int lastCachedLevel = 2;

    EngineNode(AbstractEngine &engine, SearchContext &context, int level)
        : MoveListNode(engine, context), level_(level) {}

    int enter(int i, int childBudget);
    bool probe(int beta, int alpha, Score &value);
    void search(int level, Score &value, const Score &alpha, const Score &beta, BestLine &line);
    void leave(int i, int score);

private:
    const int level_;
    board *child_ = nullptr; // of the move entered
    AbstractEngine *childEngine_ = nullptr;
};

// A node at level 3 whose children are left to the deep search.
class HandoverNode : public MoveListNode {
public:
    HandoverNode(AbstractEngine &engine, SearchContext &context);

    int enter(int i, int childBudget);
    bool probe(int beta, int alpha, Score &value);
    void search(int level, Score &value, const Score &alpha, const Score &beta, BestLine &line);
    void leave(int i, int score);

private:
    DeepSearch &deepSearch_;
    int childBudget_ = 0;
};

#endif
