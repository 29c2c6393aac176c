// Situation: a rule set and a valid position of it, made from any bytes.
#ifndef TOOLS_FUZZ_SITUATION_H
#define TOOLS_FUZZ_SITUATION_H

#include "rules/board.h"
#include "rules/ruleset.h"
#include "tools/fuzz/bytes.h"

#include <string>

struct Situation {
    RuleSet rules;
    board position;
};

// Uses up all bytes and sets XY::B_SIZE. The first byte says rules, size, side to move, and which
// of two ways the others go: each plays one move of a game from its start, or each puts one piece
// on the board. Men and kings of both sides stand on dark squares, in any number, marked as able to
// move or not; a position may be without moves.
Situation readSituation(Bytes &bytes);

// For the message about a failure.
std::string describe(const Situation &situation);

// Prints `what` and the situation and ends the program, which a fuzzer takes for a fault found.
[[noreturn]] void reportFault(const Situation &situation, const std::string &what);

#endif
