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
    Score value = {Score::none, -1};
    LegalMove *best = nullptr; // an entry of the engine's list; null without one or after a cut-off
    bool searched = false;     // the moves were searched, not the node valued without them
};

// Searches the engine's position as a node at `level`, see AbstractEngine::getBestMove; the bounds
// are points, never a negated none.
NodeOutcome searchNode(AbstractEngine &engine, SearchContext &context, int level, int alpha,
                       int beta, BestLine &line);

// What both kinds of engine node have in common: all that a SearchNode supplies but its children.
class MoveListNode {
public:
    // `line` is the best line that the node fills from its level on.
    MoveListNode(AbstractEngine &engine, SearchContext &context, int level, BestLine &line)
        : engine_(engine), context_(context), level_(level), line_(line) {}

    SearchContext &context() const { return context_; }
    int level() const { return level_; }
    int budget() const { return engine_.depth; }
    int horizon() const { return engine_.depth / 10; }
    void endLine() { line_.setTop(level_); }
    bool listMoves();
    int moves() const { return static_cast<int>(moves_.size()); }
    bool mustCapture() const { return engine_.isCapture(); }
    Score material();
    Score staticValue();
    void prepareMoves(int childBudget);
    void setBest(int i);
    void cutOff() { outcome_.best = nullptr; }
    void addChoiceBonus(Score &result) const { engine_.updatePoints(result); }
    void record(int value, int alpha0, int beta, bool insert);

    const NodeOutcome &outcome() const { return outcome_; }

protected:
    LegalMove *move(int i) const { return moves_[static_cast<std::size_t>(i)]; }
    // The depth budget that the move's reduction leaves of its child's.
    int reducedBudget(const LegalMove &m) const;

    AbstractEngine &engine_;
    SearchContext &context_;
    const int level_;
    BestLine childLine_; // filled by the children in turn
    int childBudget_ = 0;

private:
    BestLine &line_;
    NodeOutcome outcome_;
    std::vector<LegalMove *> moves_; // the entries of the engine's list, which have no index
};

// A node whose children are engines. They hang on the engine's moves and, up to level 2, stay there
// from one iteration to the next, at rest where there are thousands; from level 3 on they are
// dropped after the visit.
class EngineNode : public MoveListNode {
public:
    // Children of nodes up to this level are kept.
    static constexpr int lastCachedLevel = 2;

    using MoveListNode::MoveListNode;

    int enter(int i);
    bool probe(int beta, int alpha, Score &value);
    Score search(int alpha, int beta);
    void leave(int i, int score);

private:
    void cloneEngine();

    LegalMove *move_ = nullptr; // the one entered
};

// A node at level 3 whose children are left to the deep search.
class HandoverNode : public MoveListNode {
public:
    HandoverNode(AbstractEngine &engine, SearchContext &context, int level, BestLine &line);

    int enter(int i);
    bool probe(int beta, int alpha, Score &value);
    Score search(int alpha, int beta);
    void leave(int i, int score);

private:
    DeepSearch &deepSearch_;
    int depth_ = 0; // the budget of the child entered
};

#endif
