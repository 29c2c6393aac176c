// LegalMove: one complete move of one piece, with what the search hangs on it.
#ifndef RULES_LEGALMOVE_H
#define RULES_LEGALMOVE_H

#include "base/qarray.h"
#include "rules/xy.h"

#include <QString>

class AbstractEngine;
class board;

// One move. In a move list `path` has at least two entries; `taken` is empty (simple move) or has
// exactly one entry fewer than `path`, `taken[i]` lying between `path[i]` and `path[i + 1]`.
//
// A copy has arrays of its own; `subEngine` and `subBoard` are copied as pointers. Those two belong
// to the entry of an engine's move list and are released by the engine, never by this class.
class LegalMove {
public:
    // Value last found by the search, from the side that makes the move; the sort key.
    int score = 0;
    // Tenths of a ply that the search cuts from the depth budget below this move.
    int reduction = 0;
    QArray<XY> path;                     // start square first, then every landing square
    QArray<XY> taken;                    // captured squares in the order they are jumped
    AbstractEngine *subEngine = nullptr; // engine of the position after the move
    board *subBoard = nullptr;           // that position

    LegalMove() = default;
    // A simple move.
    LegalMove(const XY &from, const XY &to);

    bool isCapture() const { return !taken.isEmpty(); }
    const XY &from() const { return path[0]; }
    const XY &to() const { return path.last(); }

    // Cuts or extends `path` (`taken`) to i + 1 entries and sets the last one: a capture generator
    // overwrites a sibling branch with it when it comes back up.
    void insPath(const XY &square, int i);
    void insTaken(const XY &square, int i);

    // Compares the squares entered so far with the path: 0 when they are not its beginning, 2 when
    // they are all of it, 1 when they are a shorter beginning; then `next` is set to the path's
    // square that follows them.
    int comparePart(const QArray<XY> *part, XY &next) const;

    // By score only.
    bool operator<(const LegalMove &other) const { return score < other.score; }
    bool operator<=(const LegalMove &other) const { return score <= other.score; }
    bool operator>(const LegalMove &other) const { return score > other.score; }

    // Sets `s` to the notation: start square, "->", final square, as in (2,3)->(3,4).
    void ToString(QString &s) const;
    // The notation of one square: its 0-based column and row, as in (2,3).
    static QString XYtoString(const XY &square);
};

#endif
