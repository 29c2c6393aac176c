// DeepSearch: the levels of the search tree that no engine hangs on, over bit sets.
#ifndef SEARCH_DEEPSEARCH_H
#define SEARCH_DEEPSEARCH_H

#include "search/score.h"

#include <memory>

class AbstractEngine;
class BestLine;
class LegalMove;
class SearchContext;
class board;

// The search keeps engines and boards for the nodes at levels 0 to 3 only; below, every node is
// made afresh at each visit and dropped. There the rule operations of the engine classes are not
// needed: this class runs the same node procedure over bit sets, with the same moves, scores,
// counts and lines, many times faster. It stands in for engines of exactly the three rule classes;
// an engine of a class derived from them, or a board that bit sets cannot represent, is searched
// over engines all the way down.
//
// One exists while an iteration runs at level 0 and serves the level-3 nodes of it. This is the one
// door to the bit sets: the class that stands behind it, and make(), are theirs.
class DeepSearch {
public:
    virtual ~DeepSearch() = default;

    // The one for the engine's position, counting in the context and reading the square values in
    // force; null where the engines must do, or shall by AbstractEngine::deepSearchAllowed.
    static std::unique_ptr<DeepSearch> make(const AbstractEngine &root, SearchContext &context);

    // Sets up the position after `m`, a move in `parent`, for probe() and search().
    virtual void enter(const board &parent, const LegalMove &m) = 0;
    // As AbstractEngine::canUseHT for that position, the answer going to `value`.
    virtual bool probe(int beta, int alpha, Score &value) = 0;
    // Searches that position at `level` with a depth budget of `depth` tenths of a ply, as
    // AbstractEngine::getBestMove does. All calls name the same level.
    virtual Score search(int level, int depth, int alpha, int beta, BestLine &line) = 0;
    // Takes note that a position was stored in the transposition table.
    virtual void noteStored(const board &b) = 0;
};

#endif
