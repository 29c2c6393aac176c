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

// More good moves than this, the best among them, count no further; a choice of so few moves is
// none.
inline constexpr int mostGoodMoves = 4;
inline constexpr int movesWithoutBonus = 2;

// What a node of value `best` with `moves` moves, `good` of them good, is worth more for the choice
// it leaves. Nothing is added to decided games, nor to no value at all.
constexpr int severalMovesBonus(const Score &best, int moves, int good) {
    constexpr int perMove = 7;
    if (!Score::isOrdinary(best.value) || moves <= movesWithoutBonus)
        return 0;
    return perMove * (std::min(good, mostGoodMoves) - 1);
}

#endif
