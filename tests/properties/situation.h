// Situation: a rule set and a valid position of it, made from any bytes.
#ifndef TESTS_PROPERTIES_SITUATION_H
#define TESTS_PROPERTIES_SITUATION_H

#include "rules/board.h"
#include "rules/ruleset.h"
#include "tests/properties/bytes.h"

#include <string>

struct Situation {
    RuleSet rules = RuleSet::International;
    board position;
};

// Uses up all bytes and sets XY::B_SIZE. The first byte says rules, size, side to move, and which
// of two ways the others go: each plays one move of a game from its start, or each puts one piece
// on the board. Men and kings of both sides stand on dark squares, in any number, marked as able to
// move or not; a position may be without moves.
Situation readSituation(Bytes &bytes);

// The board's text form, without the end of the line.
std::string lineOf(const board &b);
// For the message about a failure: a task that the bench can read.
std::string describe(const Situation &situation);

#endif
