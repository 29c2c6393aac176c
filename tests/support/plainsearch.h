// The fixed-depth search once more, in the plainest form, to compare with.
#ifndef TESTS_SUPPORT_PLAINSEARCH_H
#define TESTS_SUPPORT_PLAINSEARCH_H

#include "tests/support/drawnboard.h"

#include <string>

class thinkStatistic;
class BestLine;
struct Score;

namespace plain {

// All that a search reports, as text: move, score, counters and line.
std::string searchReport(Rules rules, const board &position, int plies, bool giveAway);

// The same text from the program's results.
std::string searchReport(const std::string &move, const Score &score, const thinkStatistic &counts,
                         const BestLine &line);

} // namespace plain

#endif
