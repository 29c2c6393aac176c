#include "search/deepsearch.h"
#include "tests/support/enginerig.h"
#include "tests/support/plaintwin.h"
#include "tools/common/positionline.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

enum class Mode { Depth, Time, Unlimited };
constexpr Mode allModes[] = {Mode::Depth, Mode::Time, Mode::Unlimited};

void request(EngineRig &rig, Mode mode, int plies = 6) {
    if (mode == Mode::Depth)
        rig.statistic.setReqDepth(plies);
    else
        rig.statistic.setReqTime(mode == Mode::Time ? 5 : 99999999);
}

// Searches that end at once: a win found, a single move, which loses the last man, and no move.
TEST(Drivers, EndingsWithoutDeepening) {
    const struct {
        const char *picture, *move;
        bool giveAway;
        int score, depth, timedDepth, nodes;
        const char *line;
    } cases[] = {
        {"w ...... ...... ...... ..w... ...... ......", "(2,2)-(3,3)", false, 999999, 1, 3, 4,
         "(2,2)->(3,3) 999999 \n"},
        {"w ...... ...... ...... ..w... ...... ......", "(2,2)-(3,3)", true, -999999, 1, 3, 4,
         "(2,2)->(3,3) -999999 \n"},
        {"w ...... ..b... ...... w..... ...... ......", "(0,2)-(1,3)", false, -999998, 1, 2, 4,
         "(0,2)->(1,3) -999998 \n(2,4)->(0,2) 999998 \n"},
        {"w ...... ..b... .b.... w..... ...... ......", "none", false, -1000000, 0, 0, 1, ""}};
    for (const auto &c : cases) {
        for (const Mode mode : allModes) {
            EngineRig rig(RuleSet::American, c.picture);
            rig.host.msPerReading = 10;
            AbstractEngine::breakThinking = true; // left over from another search
            rig.statistic.giveAway = c.giveAway;
            request(rig, mode);
            EXPECT_EQ(rig.search(), c.move);
            EXPECT_EQ(rig.score.value, c.score);
            EXPECT_EQ(rig.score.depth, mode == Mode::Depth ? c.depth : c.timedDepth);
            EXPECT_EQ(rig.statistic.nodes, c.nodes);
            EXPECT_EQ(rig.lineText(), c.line);
            EXPECT_EQ(rig.position.hashScore, rig.score.value);
            EXPECT_EQ(rig.position.hashHorizon, rig.score.depth);
            EXPECT_EQ(rig.host.beeps, 1);
        }
    }
}

TEST(Drivers, AnIterationBeyondTheBudgetIsTheLast) {
    EngineRig rig(RuleSet::International, board(8));
    rig.host.msPerReading = 6000;
    rig.statistic.setReqTime(5);
    EXPECT_NE(rig.search(), "none");
    EXPECT_EQ(rig.engine->depth, 30);
    EXPECT_EQ(rig.statistic.timeCredit, 5000 - 6000);
}

TEST(Drivers, BreakInTheFirstIterationPlaysTheFirstMove) {
    for (const Mode mode : allModes) {
        EngineRig rig(RuleSet::International, board(10));
        rig.host.onEvents = [] { AbstractEngine::breakThinking = true; };
        request(rig, mode);
        EXPECT_EQ(rig.search(), "(1,3)-(0,4)");
        EXPECT_EQ(rig.score.value, -1000000);
        EXPECT_EQ(rig.score.depth, -1);
        EXPECT_TRUE(AbstractEngine::breakThinking);
        EXPECT_EQ(rig.host.eventRounds, 1) << "the very first node processes events";
    }
}

TEST(Drivers, BreakLaterPlaysTheLastCompletedIteration) {
    for (const RuleSet rules : allRuleSets) {
        for (const Mode mode : allModes) {
            EngineRig whole(rules, board(10));
            request(whole, mode == Mode::Depth ? mode : Mode::Time, 3);
            whole.host.msPerReading = 6000; // a timed search ends after its first iteration
            const std::string move = whole.search();
            EngineRig broken(rules, board(10));
            request(broken, mode, 8);
            broken.host.onEvents = [&] {
                AbstractEngine::breakThinking = broken.statistic.nodes > whole.statistic.nodes;
            };
            EXPECT_EQ(broken.search(), move);
            EXPECT_EQ(broken.score.value, whole.score.value);
            EXPECT_GT(broken.statistic.nodes, whole.statistic.nodes);
            EXPECT_FALSE(AbstractEngine::breakThinking);
            EXPECT_NE(moveText(broken.engine->moveList).find(move), std::string::npos);
        }
    }
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
    EXPECT_EQ(AbstractEngine::eventLoop, 200 - (counted - 1) % 201);
}

// White takes three kings or one; with few pieces a favourite needs five plies.
TEST(Drivers, AClearFavouriteEndsATimedSearchAfterAPause) {
    EngineRig rig(RuleSet::American,
                  "w .......... ........B. .......... ......B... .......... ..B.B..... ...W...... "
                  ".......... .......... ..........");
    request(rig, Mode::Unlimited);
    EXPECT_EQ(rig.search(), "(3,3)x(5,5)x(7,7)x(9,9)");
    EXPECT_EQ(rig.engine->depth, 50);
    EXPECT_EQ(rig.host.beeps, 2);
    EXPECT_EQ(rig.host.pauses, std::vector<int>{100000});
}

// Each side has exactly one move, for ever, under all rules: the levels 0 to 100 are one node each.
TEST(Drivers, EndlessSingleMovesStopAtTheLevelLimit) {
    QString error;
    const std::optional<board> b = readPositionLine(
        "10 0 0 0 -1 wm--wm--wK--wm--bm----wm--bm------bm--bmwm--bm--bm--wm--bm----wm--bm--bm--wm--"
        "bmwm--wm--wm--bm--bm----wm--wm--bm--bm--bmwm--bm--wm--wm--bm----wm--bm--wm--wm--bmwm--wm--"
        "--"
        "--wm--bm----wm--bm--bK--bm--bm",
        error);
    for (const RuleSet rules : allRuleSets) {
        for (const Mode mode : allModes) {
            EngineRig rig(rules, b.value());
            request(rig, mode, 8);
            EXPECT_NE(rig.search(), "none");
            EXPECT_EQ(rig.statistic.nodes, 1 + 101 * (mode == Mode::Depth ? 8 : 1));
            EXPECT_EQ(rig.statistic.maxLevel, 100);
            EXPECT_EQ(QString::fromStdString(rig.lineText()).count('\n'), 30);
            EXPECT_FALSE(rig.score.isNone());
        }
    }
}

// All that a search to `plies` tells, on bit sets below level 3 or straightforward.
std::string searchReport(RuleSet rules, const board &b, int plies, bool giveAway, bool bits) {
    EngineRig rig(rules, b);
    DeepSearch::enable(bits);
    rig.host.fixedSeed = bits; // without noise it is no matter
    rig.statistic.giveAway = giveAway;
    rig.statistic.setReqDepth(plies);
    std::string text = rig.search() + '\n' + rig.lineText();
    const thinkStatistic &s = rig.statistic;
    for (const int number :
         {rig.score.value, rig.score.depth, s.nodes, s.movesGenerated, s.scoresCalculated,
          s.cutoffs, s.senselessSacrifices, s.hashHits, s.maxLevel})
        text.append(std::to_string(number)).append(" ");
    DeepSearch::enable(true);
    return text;
}

TEST(Drivers, DeepLevelsAreTheSameWithAndWithoutEngines) {
    const char *wanted = std::getenv("TWIN_SEARCHES");
    std::mt19937 random(77);
    const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
    for (int i = wanted == nullptr ? 60 : std::atoi(wanted); i > 0 && !HasFailure(); --i) {
        const RuleSet rules = allRuleSets[below(3)];
        board b(allBoardSizes[below(4)]);
        for (int plies = below(120); plies > 0; --plies) {
            const std::vector<plain::Move> moves = plain::legalMoves(rules, b);
            if (!moves.empty())
                plain::play(b, moves[random() % moves.size()]);
        }
        const int plies = 1 + below(6);
        const bool giveAway = below(4) == 0;
        EXPECT_EQ(searchReport(rules, b, plies, giveAway, true),
                  searchReport(rules, b, plies, giveAway, false))
            << plies << " plies\n"
            << picture(b);
    }
}

} // namespace
