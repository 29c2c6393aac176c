#include "search/deepsearch.h"
#include "tests/support/enginerig.h"
#include "tests/support/plaintwin.h"

#include <QIODevice>
#include <QTextStream>

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

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
            const LegalMove *best = whole.engine->getBestMove(whole.score, whole.line);
            const std::string move = moveText(*best);
            EXPECT_EQ(best->to(), whole.line.to[0]);
            EXPECT_NE(moveText(whole.engine->moveList).find(move), std::string::npos);
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

// The bit sets that stand in for engines below level 3 must not show in any result.
TEST(Drivers, DeepLevelsAreTheSameWithAndWithoutEngines) {
    const char *wanted = std::getenv("TWIN_SEARCHES");
    std::mt19937 random(77);
    const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
    for (int i = wanted == nullptr ? 60 : std::atoi(wanted); i > 0 && !testing::Test::HasFailure();
         --i) {
        const Rules rules = allRules[below(3)];
        board b(allSizes[below(4)]);
        XY::B_SIZE = b.size;
        for (int plies = below(120); plies > 0; --plies) {
            const std::vector<plain::Move> moves = plain::legalMoves(rules, b);
            if (!moves.empty())
                plain::play(b, moves[random() % moves.size()]);
        }
        std::string reports[2];
        const int plies = 1 + below(6);
        const bool giveAway = below(4) == 0;
        for (const bool engines : {false, true}) {
            EngineRig rig(rules, b);
            DeepSearch::enable(!engines);
            rig.host.fixedSeed =
                static_cast<unsigned>(i) + engines; // without noise it is no matter
            rig.statistic.giveAway = giveAway;
            rig.statistic.setReqDepth(plies);
            reports[engines] = rig.report(rig.search());
        }
        DeepSearch::enable(true);
        EXPECT_EQ(reports[0], reports[1]) << plies << " plies\n" << picture(b);
    }
}

} // namespace
