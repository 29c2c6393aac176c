// Reading positions and rule names that a user wrote.
#ifndef TOOLS_COMMON_POSITIONLINE_H
#define TOOLS_COMMON_POSITIONLINE_H

#include "rules/board.h"
#include "rules/ruleset.h"

#include <QString>

#include <optional>

// Reads a position in the board's text form, checked: a known size, the right number of
// squares, known letters, pieces on dark squares only. The key is not compared. On failure nothing
// comes back and `error` says what is wrong.
std::optional<board> readPositionLine(const QString &line, QString &error);

// The rule set of this word, one of ruleWords(); nothing for another.
std::optional<RuleSet> ruleSetOf(const QString &word);
// All that can be written there, as in "international, american or polish" and "6, 8, 10 or 12".
QString ruleWords();
QString sizeWords();

#endif
