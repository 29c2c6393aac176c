// In which order the search examines moves, and how deep: sorting, reductions, clear favourites.

#include "search/abstractengine.h"

#include "search/movesort.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

// Deep enough, in tenths of a ply, to call a move the favourite, and by how many points.
constexpr int favouriteDepth = 30;
constexpr int favouriteDepthGambit = 50;
constexpr int favouriteMargin = 800;
constexpr int favouriteMarginGambit = 2000;

constexpr int unsearchedReduction = 5;

// The reduction of a move `behind` points worse than the best.
int reductionFor(int behind) {
    constexpr int most = 8;
    return std::min(behind <= 500 ? behind / 60 : behind / 125, most);
}

} // namespace

void AbstractEngine::randMoveList() {
    for (LegalMove &m : moveList)
        m.score = Score::none;
}

void AbstractEngine::randTestSort() {}

void AbstractEngine::depthUpdate(QValueList<LegalMove> *list) {
    for (LegalMove &m : *list)
        m.reduction = 0;
    if (list->isEmpty())
        return;
    const int best = list->last().score;
    if (Score(best, 0).aroundGameOver())
        return;
    for (LegalMove &m : *list)
        m.reduction = m.score <= Score::lost ? unsearchedReduction : reductionFor(best - m.score);
}

void AbstractEngine::updatePoints(Score &s) const {
    int good = 0;
    for (const LegalMove &m : moveList)
        good += isGoodMove(m.score, s);
    s += severalMovesBonus(s, moveList.count(), good);
}

bool AbstractEngine::FavouriteMove(const QValueList<LegalMove> *list) const {
    if (depth < (isGambit ? favouriteDepthGambit : favouriteDepth) || list->count() < 2)
        return false;
    int best = list->first().score;
    int second = std::numeric_limits<int>::min();
    for (auto m = std::next(list->begin()); m != list->end(); ++m) {
        second = std::max(second, std::min(best, m->score));
        best = std::max(best, m->score);
    }
    const int lead = best - second;
    return lead > (isGambit ? favouriteMarginGambit : favouriteMargin);
}

bool AbstractEngine::outsideRange(int v, const Score &alpha, const Score &beta) {
    return (!alpha.isNone() && v <= alpha.value) || (!beta.isNone() && v >= -beta.value);
}
