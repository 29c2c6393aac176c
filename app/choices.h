// What the items of the settings dialog stand for.
#ifndef APP_CHOICES_H
#define APP_CHOICES_H

#include "rules/ruleset.h"

#include <optional>

// The items of the players' combo box.
enum PlayersItem { humanComputer = 0, humanHuman = 1, computerComputer = 2 };

// How the computer thinks at a level: to a depth in plies, or for a time where that is 0.
struct Level {
    int plies;
    int seconds;
    int scoreNoise;
};

inline constexpr int fiveSecondsItem = 3;

// The item's meaning; nothing for an index that is no item.
std::optional<RuleSet> rulesChoice(int index);
std::optional<int> squaresChoice(int index);
std::optional<Level> levelChoice(int index);

// What is taken instead of an index that is no item: international rules, 10 squares, 5 seconds.
inline constexpr RuleSet fallbackRules = RuleSet::International;
inline constexpr int fallbackSquares = 10;
inline constexpr Level fallbackLevel = {0, 5, 1};

#endif
