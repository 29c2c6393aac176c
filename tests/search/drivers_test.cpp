// Searches as a whole: when and how they end, and what they leave.

#include "tests/search/drawntree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr char manAlone[] = "w ...... ...... ...... ..w... ...... ......";

// A win found, a single move, which loses the last man, and no move.
TEST(Drivers, NothingIsDeepenedWhenAllIsClear) {
    const struct {
        const char *name, *picture;
        bool giveAway;
        const char *move;
        int score, depth;
    } cases[] = {
        {"won", manAlone, false, "(2,2)-(3,3)", 999999, 3},
        {"lost by giving away", manAlone, true, "(2,2)-(3,3)", -999999, 3},
        {"one move", "w ...... ..b... ...... w..... ...... ......", false, "(0,2)-(1,3)", -999998,
         2},
        {"no move", "w ...... ..b... .b.... w..... ...... ......", false, "none", -1000000, 0}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::American, c.picture);
        rig.host.msPerReading = 10;
        AbstractEngine::breakThinking = true; // left over from another search
        rig.statistic.giveAway = c.giveAway;
        rig.statistic.setReqTime(5);
        EXPECT_EQ(rig.search(), c.move) << c.name;
        EXPECT_EQ(rig.score.value, c.score) << c.name;
        EXPECT_EQ(rig.score.depth, c.depth) << c.name;
        EXPECT_EQ(rig.position.hashScore, rig.score.value) << c.name;
        EXPECT_EQ(rig.host.beeps, 1) << c.name;
    }
}

TEST(Drivers, ASearchFillsTheSquareValuesAnew) {
    for (const bool gambit : {false, true}) {
        EngineRig rig(RuleSet::International, gambit ? drawn(manAlone) : board(6));
        rig.values.reFill(12, !gambit);
        AbstractEngine::isGambit = !gambit;
        rig.statistic.setReqDepth(1);
        rig.search();
        EXPECT_EQ(AbstractEngine::isGambit, gambit);
        EXPECT_EQ(rig.values.size, 6);
        EXPECT_EQ(rig.values.values[1][5], gambit ? 40 : -10);
    }
}

TEST(Drivers, BreakInTheFirstIterationPlaysTheFirstMove) {
    EngineRig rig(RuleSet::International, board(10));
    rig.host.onEvents = [] { AbstractEngine::breakThinking = true; };
    rig.statistic.setReqTime(5);
    EXPECT_EQ(rig.search(), "(1,3)-(0,4)");
    EXPECT_EQ(rig.score.value, Score::lost);
    EXPECT_EQ(rig.host.eventRounds, 1) << "the very first node processes events";
}

TEST(Drivers, BreakLaterPlaysTheLastCompletedIteration) {
    EngineRig whole(RuleSet::International, board(10));
    whole.statistic.setReqDepth(3);
    const std::string move = whole.search();
    EngineRig broken(RuleSet::International, board(10));
    broken.statistic.setReqDepth(8);
    broken.host.onEvents = [&] {
        AbstractEngine::breakThinking = broken.statistic.nodes > whole.statistic.nodes;
    };
    EXPECT_EQ(broken.search(), move);
    EXPECT_EQ(broken.score.value, whole.score.value);
    EXPECT_FALSE(AbstractEngine::breakThinking);
}

TEST(Drivers, EventsAreProcessedOnceIn201Nodes) {
    EngineRig rig(RuleSet::International, board(10));
    rig.statistic.setReqDepth(6);
    rig.host.onEvents = [&] {
        EXPECT_EQ(rig.statistic.nodes, 2 + 201 * (rig.host.eventRounds - 1)) << "up to date";
    };
    rig.search();
    const int counted = rig.statistic.nodes - 1; // the driver's own listing is no node
    EXPECT_EQ(rig.host.eventRounds, (counted - 1) / 201 + 1);
}

// Black's kings can take in so many orders that one listing lasts for a second; its man comes last.
TEST(Drivers, LongListingsProcessEventsAndGiveUp) {
    EngineRig rig(RuleSet::International,
                  "w ...........B B.........b. .w.w.w.w.w.. ............ .w.w.w.w.w.. ............ "
                  ".w.w...w.w.. ............ .w.w.w.w.w.. ............ .w.w.w.w.w.. B.........B.");
    rig.statistic.setReqTime(thinkStatistic::unlimitedSeconds);
    rig.host.onEvents = [&] { AbstractEngine::breakThinking = rig.host.eventRounds >= 20; };
    rig.search();
    EXPECT_LT(rig.statistic.nodes, 2 + 201 * 19) << "there were events in listings, too";
    EXPECT_EQ(rig.host.eventRounds, 20);
    EXPECT_EQ(rig.engine->getLegalMove(0)->score, Score::none) << "nor was this one searched";
}

// White takes three kings or one; with few pieces a favourite needs five plies.
TEST(Drivers, AClearFavouriteEndsATimedSearchAfterAPause) {
    EngineRig rig(RuleSet::American,
                  "w .......... ........B. .......... ......B... .......... ..B.B..... ...W...... "
                  ".......... .......... ..........");
    rig.statistic.setReqTime(thinkStatistic::unlimitedSeconds);
    EXPECT_EQ(rig.search(), "(3,3)x(5,5)x(7,7)x(9,9)");
    EXPECT_EQ(rig.engine->depth, 50);
    EXPECT_EQ(rig.host.beeps, 2);
    EXPECT_EQ(rig.host.pauses, std::vector{100000});
}

// Five moves to choose from, and every iteration takes 700 ms: the first is expected to grow
// by 3.5, the later ones to double, so the fourth is the last that leaves time for none within 5 s.
TEST(TimeControl, WhatOneMoveSavesTheNextMaySpend) {
    DrawnTree tree("(0 0 0 0 0)");
    tree.host.msPerReading = 700;
    tree.statistic.setReqTime(5);
    tree.search();
    EXPECT_EQ(tree.engine->depth, 60);
    EXPECT_EQ(tree.statistic.timeCredit, 5000 - 4 * 700);
    tree.search();
    EXPECT_EQ(tree.engine->depth, 70) << "7000 ms are more than the 5000 + 1100 allowed";
    EXPECT_EQ(tree.statistic.timeCredit, 2200 + 5000 - 5 * 700);
    tree.statistic.newGame();
    tree.search();
    EXPECT_EQ(tree.engine->depth, 60) << "a new game has no credit";
}

// Each side has exactly one move, for ever: the levels 0 to 100 are one node each.
TEST(Drivers, EndlessSingleMovesStopAtTheLevelLimit) {
    EngineRig rig(RuleSet::International,
                  "w .b.b.b.b.b b.b.b.b.b. .b.w.b.w.b w.w.b.w.w. ...b.b.w.B "
                  "W.b.w.w... .b.b.w.b.b w.b.w.b.w. .w.w.w.w.w w.w.w.w.w.");
    rig.statistic.setReqDepth(8);
    EXPECT_NE(rig.search(), "none");
    EXPECT_EQ(rig.statistic.nodes, 1 + 101 * 8);
    EXPECT_EQ(rig.statistic.maxLevel, 100);
    const std::string line = rig.lineText();
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 30);
}

} // namespace
