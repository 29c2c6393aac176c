// BestLine: the principal variation that a search found.
#ifndef SEARCH_BESTLINE_H
#define SEARCH_BESTLINE_H

#include "rules/xy.h"

#include <QString>

class LegalMove;

// The moves of the principal variation by search level, entry 0 being the move at the root: start
// and end square, and the move's score at the moment it became the best of its node. The search
// builds it bottom-up. There is room for 30 levels; deeper ones are not recorded.
class BestLine {
public:
    static constexpr int levels = 30;

    XY from[levels];
    XY to[levels];
    int scores[levels];
    int top; // entries 0 to top - 1 form the line; may pass `levels`

    BestLine() { reset(); }

    // Every entry becomes (-1,-1), (-1,-1), 7777; `top` 0.
    void reset();
    void setTop(int level) { top = level; }
    // Records the move's start and end square and its score; nothing beyond the last entry.
    void updateAt(const LegalMove *m, int level);
    void updateAt(const XY &start, const XY &end, int score, int level);
    // Takes over `top` and the entries from `level` up to and including `top`.
    void copyFrom(const BestLine *other, int level);
    // Sets `s` to one line per level, "(2,3)->(3,4) 120 \n"; empty for an empty line. At most 30.
    void asString(QString &s) const;
};

#endif
