// Whole fixed-depth searches against the plain twin: move, score, all counters, best line.
// TWIN_SEARCHES in the environment says how many a rule set; some dozens otherwise.

#include "tests/support/enginerig.h"
#include "tests/support/plainsearch.h"
#include "tests/support/plaintwin.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

constexpr int quickSearches = 60;

class SearchTwin : public testing::TestWithParam<Rules> {
protected:
    std::mt19937 random{77U + static_cast<unsigned>(GetParam())};
    int below(std::size_t n) { return static_cast<int>(random() % n); }

    // A position some plies into a game of random moves.
    board fromPlay() {
        board b(allSizes[below(4)]);
        for (int plies = below(90); plies > 0; --plies) {
            const std::vector<plain::Move> moves = plain::legalMoves(GetParam(), b);
            if (moves.empty())
                break;
            plain::play(b, moves[static_cast<std::size_t>(below(moves.size()))]);
        }
        return b;
    }
    // An ending with many kings.
    board ending() {
        board b(allSizes[below(4)]);
        b.clear();
        b.whiteToMove = below(2) == 0;
        for (int pieces = 2 + below(8); pieces > 0; --pieces) {
            const int x = below(static_cast<std::size_t>(b.size));
            const int y = 2 * below(static_cast<std::size_t>(b.size) / 2) + x % 2;
            b.squares[x][y] = static_cast<unsigned char>(4 + 4 * below(2) + 1 + below(2));
        }
        return b;
    }
};

INSTANTIATE_TEST_SUITE_P(Rules, SearchTwin, testing::ValuesIn(allRules),
                         [](const auto &suite) { return testing::PrintToString(suite.param); });

TEST_P(SearchTwin, Agrees) {
    const char *wanted = std::getenv("TWIN_SEARCHES");
    const int searches = wanted == nullptr ? quickSearches : std::atoi(wanted);
    for (int i = 0; i < searches && !HasFailure(); ++i) {
        EngineRig rig(GetParam(), i % 3 == 0 ? ending() : fromPlay());
        rig.statistic.giveAway = below(4) == 0;
        const int plies = 1 + below(5);
        rig.statistic.setReqDepth(plies);
        const board before = rig.position;
        const std::string move = rig.search();
        EXPECT_EQ(plain::searchReport(move, rig.score, rig.statistic, rig.line),
                  plain::searchReport(GetParam(), before, plies, rig.statistic.giveAway))
            << plies << " plies" << (rig.statistic.giveAway ? ", give-away\n" : "\n")
            << picture(before);
    }
}

} // namespace
