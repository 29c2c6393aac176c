#include "tests/support/enginerig.h"
#include "tests/support/plainsearch.h"

#include <QIODevice>
#include <QTextStream>

#include <gtest/gtest.h>

namespace {

constexpr char twoMovesWin[] = "w ...... ...... ...... ..w... ...... ......";
// White's only move loses its last man.
constexpr char onlyMoveLoses[] = "w ...... ..b... ...... w..... ...... ......";

enum class Mode { Depth, Time, Unlimited };
constexpr Mode allModes[] = {Mode::Depth, Mode::Time, Mode::Unlimited};

void request(EngineRig &rig, Mode mode, int plies = 6) {
    if (mode == Mode::Depth)
        rig.statistic.setReqDepth(plies);
    else
        rig.statistic.setReqTime(mode == Mode::Time ? 5 : 99999999);
}

TEST(Drivers, DecidedGamesEndTheIterations) {
    for (const Mode mode : allModes) {
        for (const bool giveAway : {false, true}) {
            EngineRig rig(Rules::International, twoMovesWin);
            request(rig, mode);
            rig.statistic.giveAway = giveAway;
            EXPECT_EQ(rig.search(), "(2,2)-(3,3)");
            EXPECT_EQ(rig.score.value, giveAway ? -999999 : 999999);
            EXPECT_EQ(rig.score.depth, mode == Mode::Depth ? 1 : 3) << "the first iteration's";
            EXPECT_EQ(rig.statistic.nodes, 1 + 3);
            EXPECT_EQ(rig.position.hashScore, rig.score.value);
            EXPECT_EQ(rig.position.hashHorizon, rig.score.depth);
            EXPECT_EQ(rig.host.beeps, 1);
        }
    }
}

TEST(Drivers, ASingleMoveTakesOneShortSearch) {
    for (const Mode mode : allModes) {
        EngineRig rig(Rules::International, onlyMoveLoses);
        rig.host.msPerReading = 10;
        AbstractEngine::breakThinking = true; // left over from another search
        request(rig, mode);
        EXPECT_EQ(rig.search(), "(0,2)-(1,3)");
        EXPECT_EQ(rig.score.value, -999998);
        EXPECT_EQ(rig.lineText(), "(0,2)->(1,3) -999998 \n(2,4)->(0,2) 999998 \n");
        EXPECT_EQ(rig.statistic.nodes, 4);
        EXPECT_EQ(rig.statistic.movesGenerated, 3);
        EXPECT_EQ(rig.statistic.maxLevel, 2);
        EXPECT_EQ(rig.engine->depth, mode == Mode::Depth ? 10 : 20);
        EXPECT_EQ(rig.statistic.lastIterationMs, 0) << "the budget is not consulted";
        EXPECT_EQ(rig.statistic.timeCredit, 0);
        EXPECT_FALSE(AbstractEngine::breakThinking);
    }
}

TEST(Drivers, NoMoveAtAll) {
    for (const Mode mode : allModes) {
        EngineRig rig(Rules::American, "w ...... ..b... .b.... w..... ...... ......");
        request(rig, mode);
        EXPECT_EQ(rig.search(), "none");
        EXPECT_EQ(rig.score.value, -1000000);
        EXPECT_EQ(rig.score.depth, 0);
        EXPECT_EQ(rig.lineText(), "");
        EXPECT_EQ(rig.statistic.nodes, 1);
    }
}

TEST(Drivers, HowFarTheyDeepen) {
    for (const int plies : {1, 2, 4}) {
        EngineRig rig(Rules::International, board(8));
        rig.statistic.setReqDepth(plies);
        rig.search();
        EXPECT_EQ(rig.engine->depth, 10 * plies);
        EXPECT_EQ(rig.statistic.timeCredit, -1000);
    }
    EngineRig rig(Rules::International, board(8));
    rig.host.msPerReading = 6000; // the first iteration is over the budget
    rig.statistic.setReqTime(5);
    EXPECT_NE(rig.search(), "none");
    EXPECT_EQ(rig.engine->depth, 30);
    EXPECT_EQ(rig.statistic.timeCredit, 5000 - 6000);
}

TEST(Drivers, ReturnAnEntryOfTheMoveList) {
    for (const Mode mode : {Mode::Depth, Mode::Time}) {
        EngineRig rig(Rules::International, board(8));
        rig.host.msPerReading = 6000;
        request(rig, mode, 4);
        const LegalMove *best = rig.engine->getBestMove(rig.score, rig.line);
        int found = -1;
        for (int i = 0; i < rig.engine->moveList.count(); ++i)
            found = rig.engine->getLegalMove(i) == best ? i : found;
        ASSERT_GE(found, 0);
        EXPECT_EQ(best->from(), rig.line.from[0]);
        EXPECT_EQ(best->to(), rig.line.to[0]);
    }
}

TEST(Drivers, BreakInTheFirstIterationPlaysTheFirstMove) {
    for (const Mode mode : allModes) {
        EngineRig rig(Rules::International, board(10));
        rig.host.onEvents = [] { AbstractEngine::breakThinking = true; };
        request(rig, mode);
        EXPECT_EQ(rig.search(), "(1,3)-(0,4)");
        EXPECT_EQ(rig.score.value, -1000000);
        EXPECT_EQ(rig.score.depth, -1);
        EXPECT_TRUE(AbstractEngine::breakThinking);
        EXPECT_EQ(rig.host.beeps, 1);
        EXPECT_EQ(rig.host.eventRounds, 1) << "the very first node processes events";
    }
}

TEST(Drivers, BreakLaterPlaysTheLastCompletedIteration) {
    for (const Rules rules : allRules) {
        for (const Mode mode : allModes) {
            EngineRig whole(rules, board(10));
            request(whole, mode == Mode::Depth ? mode : Mode::Time, 3);
            whole.host.msPerReading = 6000; // a timed search ends after its first iteration
            const std::string move = whole.search();
            const int nodes = whole.statistic.nodes;

            EngineRig broken(rules, board(10));
            request(broken, mode, 8);
            broken.host.onEvents = [&] {
                AbstractEngine::breakThinking = broken.statistic.nodes > nodes;
            };
            EXPECT_EQ(broken.search(), move);
            EXPECT_EQ(broken.score.value, whole.score.value);
            EXPECT_GT(broken.statistic.nodes, nodes);
            EXPECT_FALSE(AbstractEngine::breakThinking);
        }
    }
}

TEST(Drivers, EventsAreProcessedOnceIn201Nodes) {
    EngineRig rig(Rules::International, board(10));
    rig.statistic.setReqDepth(4);
    rig.search();
    const int counted = rig.statistic.nodes - 1; // the driver's own listing is no node
    EXPECT_EQ(rig.host.eventRounds, (counted - 1) / 201 + 1);
    EXPECT_EQ(AbstractEngine::eventLoop, 200 - (counted - 1) % 201);
}

// White takes three kings or one; with few pieces a favourite needs five plies.
TEST(Drivers, AClearFavouriteEndsATimedSearchAfterAPause) {
    EngineRig rig(Rules::American, R"(w
        ..........
        ........B.
        ..........
        ......B...
        ..........
        ..B.B.....
        ...W......
        ..........
        ..........
        ..........)");
    request(rig, Mode::Unlimited);
    EXPECT_EQ(rig.search(), "(3,3)x(5,5)x(7,7)x(9,9)");
    EXPECT_EQ(rig.engine->depth, 50);
    EXPECT_EQ(rig.host.beeps, 2);
    EXPECT_EQ(rig.host.pauses, std::vector<int>{100000});
    EXPECT_TRUE(AbstractEngine::getGambit());
}

// Each side has exactly one move, for ever, under all rules: the levels 0 to 100 are one node each.
TEST(Drivers, EndlessSingleMovesStopAtTheLevelLimit) {
    QString line =
        "10 0 0 0 -1 wm--wm--wK--wm--bm----wm--bm------bm--bmwm--bm--bm--wm--bm----wm--bm"
        "--bm--wm--bmwm--wm--wm--bm--bm----wm--wm--bm--bm--bmwm--bm--wm--wm--bm----wm--bm"
        "--wm--wm--bmwm--wm------wm--bm----wm--bm--bK--bm--bm";
    for (const Rules rules : allRules) {
        for (const Mode mode : allModes) {
            board b(10);
            QTextStream stream(&line, QIODevice::ReadOnly);
            testing::internal::CaptureStdout(); // the line has no key
            b.fromStream(stream);
            testing::internal::GetCapturedStdout();
            EngineRig rig(rules, b);
            request(rig, mode, 8);
            EXPECT_NE(rig.search(), "none");
            EXPECT_EQ(rig.statistic.nodes, 1 + 101 * (mode == Mode::Depth ? 8 : 1));
            EXPECT_EQ(rig.statistic.maxLevel, 100);
            EXPECT_EQ(QString::fromStdString(rig.lineText()).count('\n'), 30);
            EXPECT_FALSE(rig.score.isNone());
        }
    }
}

TEST(Drivers, FixedDepthIsReproducible) {
    for (const Rules rules : allRules) {
        std::string first;
        for (const unsigned seed : {1U, 99U}) {
            EngineRig rig(rules, board(10));
            rig.host.fixedSeed = seed;
            rig.statistic.setReqDepth(5);
            const std::string move = rig.search();
            const std::string report =
                plain::searchReport(move, rig.score, rig.statistic, rig.line);
            EXPECT_TRUE(first.empty() || first == report) << report;
            first = report;
        }
    }
}

} // namespace
