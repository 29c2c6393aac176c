// Engines and bit sets against the plain twin: moves, keys, analysis and evaluation, position by
// position. TWIN_POSITIONS in the environment says how many; a few thousand otherwise.

#include "tests/support/drawnboard.h"
#include "tests/support/plaintwin.h"
#include "tests/support/twinagreement.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

class Twin : public testing::Test {
protected:
    std::mt19937 random{2024};
    RuleSet rules = RuleSet::International;

    int below(std::size_t n) { return static_cast<int>(random() % n); }

    static int positions() {
        const char *wanted = std::getenv("TWIN_POSITIONS");
        return wanted == nullptr ? 10000 : std::atoi(wanted);
    }

    // Another rule set; the size of a board to play it on.
    int draw() {
        rules = allRuleSets[below(3)];
        return XY::B_SIZE = allBoardSizes[below(4)];
    }

    void compare(const board &b) {
        const bool gambit = below(2) == 0;
        EXPECT_EQ(twinDifferences(rules, b, gambit), "")
            << "rules " << static_cast<int>(rules) << " gambit " << gambit << '\n'
            << picture(b);
    }
};

TEST_F(Twin, AgreesOnPositionsOfGames) {
    constexpr int longestGame = 120;
    for (int done = 0; done < positions() && !HasFailure();) {
        board b(draw());
        for (int ply = 0; ply < longestGame && !HasFailure(); ++ply, ++done) {
            compare(b);
            // The marks of this listing stay for the next position.
            const std::vector<plain::Move> moves = plain::legalMoves(rules, b);
            if (moves.empty())
                break;
            plain::play(b, moves[random() % moves.size()]);
        }
    }
}

// Pieces anywhere on the dark squares, a varying share of them kings.
TEST_F(Twin, AgreesOnScatteredPositions) {
    for (int done = 0; done < positions() && !HasFailure(); ++done) {
        board b(draw());
        const int filled = 5 + below(40);
        const int kings = below(11);
        b.whiteToMove = below(2) == 0;
        for (int i = 0; i < b.size * b.size; ++i) {
            const int code = 4 + 4 * below(2) + (below(10) < kings ? 2 : 1);
            const bool set = (i / b.size + i % b.size) % 2 == 0 && below(100) < filled;
            b.squares[i / b.size][i % b.size] = static_cast<unsigned char>(set ? code : 0);
        }
        compare(b);
    }
}

} // namespace
