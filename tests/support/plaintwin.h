// The rules, the analysis and the evaluation once more, in the plainest form, to compare with.
#ifndef TESTS_SUPPORT_PLAINTWIN_H
#define TESTS_SUPPORT_PLAINTWIN_H

#include "rules/board.h"
#include "rules/ruleset.h"

#include <vector>

// Written for reading, square by square, and sharing no code with the program: only `board` as a
// record of squares, side and size, and XY as a pair of numbers.
namespace plain {

struct Move {
    std::vector<XY> path;
    std::vector<XY> taken;
    bool operator==(const Move &) const = default;
};

// All legal moves in the order of listing; the quiet ones alone. Quiet listings set the can-move
// marks in `b`. Men's (and American kings') sequences of 25 jumps or more are dropped.
std::vector<Move> legalMoves(RuleSet rules, board &b);
std::vector<Move> quietMoves(RuleSet rules, board &b);
void play(board &b, const Move &m);
bool aboutToPass(const board &b);
unsigned int key(const board &b);

// The flood. Owner and passage are 4, 8 or 0 by [x][y].
struct Analysis {
    int reach[12][12] = {};
    int owner[12][12] = {};
    int passage[12][12] = {};
    bool whitePasses = false;
    bool blackPasses = false;
    int freedom = 0;
    bool operator==(const Analysis &) const = default;
};
Analysis analyse(const board &b);

// The value for the side to move without the random term; `passages` may be null.
int value(RuleSet rules, const board &b, bool gambit, const Analysis *passages);

} // namespace plain

#endif
