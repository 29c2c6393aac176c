// Engines and bit sets against the plain twin, position by position.
#ifndef TESTS_SUPPORT_TWINAGREEMENT_H
#define TESTS_SUPPORT_TWINAGREEMENT_H

#include "rules/board.h"
#include "rules/ruleset.h"

#include <string>

// What the rule engine, the bit sets and the plain twin say differently about moves, keys, analysis
// and evaluation of a position: one line a difference, empty when they agree. The position has men
// and kings on dark squares, marked or not; its size is XY::B_SIZE.
std::string twinDifferences(RuleSet rules, const board &b, bool gambit);

#endif
