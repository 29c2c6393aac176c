#include "search/bestline.h"

#include "rules/legalmove.h"

#include <algorithm>

namespace {

constexpr XY nowhere{-1, -1};
constexpr int noScore = 7777;

} // namespace

void BestLine::reset() {
    std::fill(std::begin(from), std::end(from), nowhere);
    std::fill(std::begin(to), std::end(to), nowhere);
    std::fill(std::begin(scores), std::end(scores), noScore);
    top = 0;
}

void BestLine::updateAt(const LegalMove *m, int level) {
    updateAt(m->from(), m->to(), m->score, level);
}

void BestLine::updateAt(const XY &start, const XY &end, int score, int level) {
    if (level >= levels)
        return;
    from[level] = start;
    to[level] = end;
    scores[level] = score;
}

void BestLine::copyFrom(const BestLine *other, int level) {
    top = other->top;
    const int last = std::min(other->top, levels - 1);
    for (int i = level; i <= last; ++i) {
        from[i] = other->from[i];
        to[i] = other->to[i];
        scores[i] = other->scores[i];
    }
}

void BestLine::asString(QString &s) const {
    s.clear();
    for (int i = 0; i < std::min(top, levels); ++i) {
        s += LegalMove::XYtoString(from[i]) + "->" + LegalMove::XYtoString(to[i]) + ' ' +
             QString::number(scores[i]) + " \n";
    }
}
