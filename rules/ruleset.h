// The rule sets by name, and the engines that play them.
#ifndef RULES_RULESET_H
#define RULES_RULESET_H

#include "rules/board.h"

class AbstractEngine;
class thinkStatistic;

enum class RuleSet { International, American, Polish };

inline constexpr RuleSet allRuleSets[] = {RuleSet::International, RuleSet::American,
                                          RuleSet::Polish};
inline constexpr int allBoardSizes[] = {6, 8, 10, 12};

// A new engine of the rule set, null when there is no memory; the caller owns it. Arguments as
// AbstractEngine's constructor.
AbstractEngine *newEngine(RuleSet rules, board *b, int depth, thinkStatistic *stat, int size);

#endif
