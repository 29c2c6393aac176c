// Searches as a whole: what they find, and when and how they end.

#include "search/deepsearch.h"
#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// Seconds to think, or a request in plies.
constexpr int byDepth = 0, timed = 5, unlimited = thinkStatistic::unlimitedSeconds;
constexpr int allModes[] = {byDepth, timed, unlimited};

void request(EngineRig &rig, int mode, int plies = 6) {
    mode == byDepth ? rig.statistic.setReqDepth(plies) : rig.statistic.setReqTime(mode);
}

// Searches that end at once: a win found, a single move, which loses the last man, and no move.
TEST(Drivers, EndingsWithoutDeepening) {
    const char *const alone = "w ...... ...... ...... ..w... ...... ......";
    const struct {
        const char *picture, *move;
        bool giveAway;
        int score, depth, timedDepth, nodes;
    } cases[] = {
        {alone, "(2,2)-(3,3)", false, 999999, 1, 3, 4},
        {alone, "(2,2)-(3,3)", true, -999999, 1, 3, 4},
        {"w ...... ..b... ...... w..... ...... ......", "(0,2)-(1,3)", false, -999998, 1, 2, 4},
        {"w ...... ..b... .b.... w..... ...... ......", "none", false, -1000000, 0, 0, 1}};
    for (const auto &c : cases) {
        for (const int mode : allModes) {
            EngineRig rig(RuleSet::American, c.picture);
            rig.host.msPerReading = 10;
            AbstractEngine::breakThinking = true; // left over from another search
            rig.statistic.giveAway = c.giveAway;
            request(rig, mode);
            EXPECT_EQ(rig.search(), c.move);
            const int depth = mode == byDepth ? c.depth : c.timedDepth;
            EXPECT_EQ((std::vector{rig.score.value, rig.score.depth, rig.position.hashScore,
                                   rig.position.hashHorizon, rig.statistic.nodes, rig.host.beeps}),
                      (std::vector{c.score, depth, c.score, depth, c.nodes, 1}));
        }
    }
}

TEST(Drivers, BreakInTheFirstIterationPlaysTheFirstMove) {
    for (const int mode : allModes) {
        EngineRig rig(RuleSet::International, board(10));
        rig.host.onEvents = [] { AbstractEngine::breakThinking = true; };
        request(rig, mode);
        EXPECT_EQ(rig.search(), "(1,3)-(0,4)");
        EXPECT_TRUE(rig.score.value == -1000000 && rig.score.depth == -1);
        EXPECT_TRUE(AbstractEngine::breakThinking);
        EXPECT_EQ(rig.host.eventRounds, 1) << "the very first node processes events";
    }
}

TEST(Drivers, BreakLaterPlaysTheLastCompletedIteration) {
    for (const int mode : allModes) {
        EngineRig whole(RuleSet::International, board(10));
        request(whole, mode == byDepth ? mode : timed, 3);
        whole.host.msPerReading = 6000; // beyond the budget: the first iteration is the last
        const std::string move = whole.search();
        EXPECT_EQ(whole.engine->depth, 30);
        EXPECT_TRUE(mode == byDepth || whole.statistic.timeCredit == 5000 - 6000);
        EngineRig broken(RuleSet::International, board(10));
        request(broken, mode, 8);
        broken.host.onEvents = [&] {
            AbstractEngine::breakThinking = broken.statistic.nodes > whole.statistic.nodes;
        };
        EXPECT_EQ(broken.search(), move);
        EXPECT_EQ(broken.score.value, whole.score.value);
        EXPECT_GT(broken.statistic.nodes, whole.statistic.nodes);
        EXPECT_FALSE(AbstractEngine::breakThinking);
    }
}

TEST(Drivers, EventsAreProcessedOnceIn201Nodes) {
    EngineRig rig(RuleSet::International, board(10));
    request(rig, byDepth);
    rig.host.onEvents = [&] {
        EXPECT_EQ(rig.statistic.nodes, 2 + 201 * (rig.host.eventRounds - 1)) << "up to date";
    };
    rig.search();
    const int counted = rig.statistic.nodes - 1; // the driver's own listing is no node
    EXPECT_EQ(rig.host.eventRounds, (counted - 1) / 201 + 1);
    EXPECT_EQ(AbstractEngine::eventLoop, 200 - (counted - 1) % 201);
}

// Black's kings can take in so many orders that one listing lasts for a second; its man comes last.
TEST(Drivers, LongListingsLookUpAndGiveUp) {
    for (const RuleSet rules : allRuleSets) {
        EngineRig rig(rules, "w ...........B B.........b. .w.w.w.w.w.. ............ .w.w.w.w.w.. "
                             "............ .w.w...w.w.. ............ .w.w.w.w.w.. ............ "
                             ".w.w.w.w.w.. B.........B.");
        request(rig, unlimited);
        rig.host.onEvents = [&] { AbstractEngine::breakThinking = rig.host.eventRounds >= 20; };
        rig.search();
        EXPECT_LT(rig.statistic.nodes, 2 + 201 * 19) << "listings have looked up, too";
        EXPECT_EQ(rig.host.eventRounds, 20);
        EXPECT_EQ(rig.engine->getMoveList()->count(), 46);
        EXPECT_EQ(rig.engine->getLegalMove(0)->score, Score::none) << "nor was this one searched";
    }
}

// White takes three kings or one; with few pieces a favourite needs five plies.
TEST(Drivers, AClearFavouriteEndsATimedSearchAfterAPause) {
    EngineRig rig(RuleSet::American,
                  "w .......... ........B. .......... ......B... .......... ..B.B..... ...W...... "
                  ".......... .......... ..........");
    request(rig, unlimited);
    EXPECT_EQ(rig.search(), "(3,3)x(5,5)x(7,7)x(9,9)");
    EXPECT_EQ(rig.engine->depth, 50);
    EXPECT_TRUE(rig.host.beeps == 2 && rig.host.pauses == std::vector{100000});
}

// Each side has exactly one move, for ever, under all rules: the levels 0 to 100 are one node each.
TEST(Drivers, EndlessSingleMovesStopAtTheLevelLimit) {
    for (const RuleSet rules : allRuleSets) {
        for (const int mode : allModes) {
            DeepSearch::enable(mode != timed); // over engines it is the same
            EngineRig rig(rules, "w .b.b.b.b.b b.b.b.b.b. .b.w.b.w.b w.w.b.w.w. ...b.b.w.B "
                                 "W.b.w.w... .b.b.w.b.b w.b.w.b.w. .w.w.w.w.w w.w.w.w.w.");
            request(rig, mode, 8);
            EXPECT_NE(rig.search(), "none");
            EXPECT_EQ(rig.statistic.nodes, 1 + 101 * (mode == byDepth ? 8 : 1));
            EXPECT_EQ(rig.statistic.maxLevel, 100);
            const std::string line = rig.lineText();
            EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 30);
        }
    }
    DeepSearch::enable(true);
}

// Trees small enough for paper. American kings: 1910 off the centre, 1920 in it, 1815 on a side.
TEST(NodeSearch, TreesByHand) {
    const struct {
        const char *name;
        int x, y, plies, score, nodes, valued, generated;
        const char *line;
    } cases[] = {
        {"the centre, and four moves within 30 points", 4, 2, 1, 31, 6, 4, 24,
         "(4,2)->(3,3) 10 \n"},
        {"two equal moves: the one examined first", 2, 0, 1, 0, 4, 2, 12, "(2,0)->(1,1) 0 \n"},
        {"black has two moves as good: 7 points", 0, 0, 2, -7, 9, 5, 27,
         "(0,0)->(1,1) -7 \n(1,7)->(2,6) 0 \n"},
        {"the second move is asked for its material first", 2, 0, 2, -7, 15, 11,
         2 + 10 + 2 + 8 + 32, "(2,0)->(1,1) -7 \n(1,7)->(2,6) 0 \n"}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::American, board(10));
        rig.position.clear();
        rig.position.squares[c.x][c.y] = whiteKing;
        rig.position.squares[1][7] = blackKing;
        request(rig, byDepth, c.plies);
        EXPECT_NE(rig.search(), "none");
        const thinkStatistic &s = rig.statistic;
        EXPECT_EQ((std::vector{rig.score.value, rig.score.depth, s.nodes, s.scoresCalculated,
                               s.movesGenerated, s.maxLevel, s.cutoffs}),
                  (std::vector{c.score, c.plies, c.nodes, c.valued, c.generated, c.plies, 0}))
            << c.name;
        EXPECT_EQ(rig.lineText(), c.line) << c.name;
    }
}

} // namespace
