// The rules as the referee applies them: legal moves and what they lead to.
#ifndef TOOLS_MONKEY_RULEBOOK_H
#define TOOLS_MONKEY_RULEBOOK_H

#include "rules/board.h"

#include <QString>

#include <vector>

class LegalMove;

struct Move {
    std::vector<XY> path; // start square first
    std::vector<XY> taken;
    bool operator==(const Move &) const = default;
    XY from() const { return path.front(); }
    XY to() const { return path.back(); }
};

Move moveOf(const LegalMove &m);

// The moves of the side to move in the engine's order, listed by a fresh engine.
// `rules` is an item of the settings dialog.
std::vector<Move> legalMoves(int rules, const board &position);

// The position while `m` is on its way: the turn passed on, what is taken marked.
board duringMove(board position, const Move &m);
// The position when it is over; the ply counter is left as it was.
board afterMove(board position, const Move &m);

// Squares and side to move are the same; marks do not count.
bool samePosition(const board &a, const board &b);

// The side to move and the rows of the board from the top: w and b men, W and B kings, x a piece
// being taken.
QString drawing(const board &position);
QString notation(const std::vector<XY> &squares);

#endif
