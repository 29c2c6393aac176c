// Sorting a move list by score, and the bonus for several good moves.
#ifndef SEARCH_MOVESORT_H
#define SEARCH_MOVESORT_H

#include "base/qvaluelist.h"
#include "search/score.h"

#include <algorithm>

class LegalMove;

// Heap sort, ascending by score. It is not stable; which of several equal moves the search examines
// first is the order this sort leaves them in.
void sortByScore(QValueList<LegalMove> &list);

// A move within this many points of a node's best value is a good one.
inline constexpr int goodMoveRange = 30;

constexpr bool isGoodMove(int score, const Score &best) {
    return score >= best.value - goodMoveRange;
}

// What a node of value `best` with `moves` moves, `good` of them good, is worth more for the choice
// it leaves. A choice of two is none, and nothing is added to decided games, nor to no value at
// all.
constexpr int severalMovesBonus(const Score &best, int moves, int good) {
    constexpr int perMove = 7;
    constexpr int mostCounted = 3;
    if (best.isNone() || best.aroundGameOver() || moves <= 2)
        return 0;
    return perMove * std::min(good - 1, mostCounted);
}

#endif
