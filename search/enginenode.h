// EngineNode: a node of the search tree that is an engine with a board.
#ifndef SEARCH_ENGINENODE_H
#define SEARCH_ENGINENODE_H

#include "rules/board.h"
#include "search/abstractengine.h"
#include "search/bestline.h"

#include <optional>

class DeepSearch;

// The kind of node that the upper levels of the tree consist of: its children's engines and boards
// hang on the engine's moves and, at levels 0 to 2, stay there from one iteration to the next. From
// level 3 on children are dropped after the visit; they are left to the running DeepSearch, if any.
class EngineNode {
public:
    EngineNode(AbstractEngine &engine, bool trace) : engine_(engine), trace_(trace) {}

    // What NodeProcedure asks of a node.
    using Line = BestLine;
    int budget() const { return engine_.depth; }
    void begin(int level);
    bool listMoves();
    void count(int level);
    int moves() const { return engine_.moveList.count(); }
    bool mustCapture() const { return engine_.isCapture(); }
    int ply() const { return engine_.board->plyCount; }
    bool giveAway() const;
    int material() { return engine_.materialScore(nullptr); }
    bool staticValue(int level, int horizon, int &value);
    void prepareMoves() {}
    void enter(int i, int childBudget);
    int score(int i) const { return engine_.moveList[i].score; }
    void setScore(int i, int score) { engine_.moveList[i].score = score; }
    bool probe(int i, int beta, int alpha, Score &value);
    void search(int i, int level, Score &value, const Score &alpha, const Score &beta,
                BestLine &line);
    void leave(int i, int level);
    void updateLine(BestLine &line, int i, int level) const;
    void countCutoff();
    void countSacrifice();
    void record(const Score &value, int alpha0, const Score &beta, bool insert);
    void addChoiceBonus(Score &result) const { engine_.updatePoints(result); }
    void trace(int alpha0, const Score &beta) const;

private:
    void enterEngine(LegalMove &m, int childBudget);
    void enterInPassing(LegalMove &m);

    AbstractEngine &engine_;
    const bool trace_;
    int level_ = 0;
    DeepSearch *deep_ = nullptr;  // searches the children, where that is not left to engines
    std::optional<board> passed_; // the child in a broken search, when it has no board of its own
    int childBudget_ = 0;
    unsigned int key_ = 0;
    unsigned int childKey_ = 0;
};

#endif
