// What a game does not reach: the dumps, engines of a class of one's own, boards of other sizes,
// and a node's tests one by one.

#include "bits/bitposition.h"
#include "search/deepsearch.h"
#include "tests/support/enginerig.h"

#include <QTextStream>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// The tree of the 10 x 10 start position has 1, 9, 81, 658 and 4265 positions by depth.
TEST(TreeDump, WritesEveryPositionDownToTheDepth) {
    for (const bool broken : {false, true}) {
        EngineRig rig(RuleSet::International, board(10));
        rig.engine->depth = 3;
        AbstractEngine::breakThinking = broken;
        QString text;
        QTextStream stream(&text);
        rig.engine->genFullTree(stream, 0);
        stream.flush();
        const thinkStatistic &s = rig.statistic;
        const int rounds = rig.host.eventRounds; // at 91 inner positions, once in 21
        EXPECT_EQ((std::vector{text.count('\n'), qsizetype{s.nodes}, qsizetype{s.movesGenerated},
                               qsizetype{s.maxLevel}, qsizetype{rounds}}),
                  broken ? std::vector<qsizetype>(5)
                         : (std::vector<qsizetype>{749, 749, 9 + 81 + 658 + 4265, 3, 5}));
        EXPECT_TRUE(broken || text.startsWith("10 0 3499457097 0 -1 wm--wm--"));
    }
}

// A king that goes to the centre or away from it, one ply deep.
TEST(Trace, PrintsANodeWithItsMoves) {
    EngineRig rig(RuleSet::American, "w ...... ...... ...... ...... ...... ..W...");
    rig.position.squares[5][5] = blackMan; // its own row: it has four plies to go
    rig.engine->depth = 10;
    const Score none(Score::none, -1);
    testing::internal::CaptureStdout();
    rig.engine->getBestMove(0, rig.score, none, none, rig.line, true);
    const int value[] = {rig.engine->moveList[0].score, rig.engine->moveList[1].score};
    const auto line = [&](int i) {
        return "m=" + std::to_string(i) + "/2\t tScore=0\t score=" + std::to_string(value[i]) +
               "\t \n";
    };
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "\n thisKey=\t " + std::to_string(rig.position.HKey()) +
                  " \tlevel=0\t Depth=10 < -1000777, 1000777 >\n" + line(1) + line(0));
    EXPECT_EQ(rig.score.value, std::max(value[0], value[1]));
}

// Rules of one's own that value nothing: every move's value is none.
struct NothingEngine : IntEngine {
    using IntEngine::IntEngine;
    int materialScore(heuristic *) override { return Score::none; }
    AbstractEngine *selfClone(::board *b, int budget, thinkStatistic *stat, int n) override {
        return new NothingEngine(b, budget, stat, n);
    }
};

TEST(Drivers, ASearchThatFindsNothingPlaysTheFirstMove) {
    for (const bool timed : {false, true}) {
        EngineRig rig(RuleSet::International, board(10));
        rig.engine = std::make_unique<NothingEngine>(&rig.position, 1, &rig.statistic, 10);
        timed ? rig.statistic.setReqTime(5) : rig.statistic.setReqDepth(1);
        EXPECT_EQ(rig.search(), "(1,3)-(0,4)");
        EXPECT_EQ(rig.score.value, Score::lost);
    }
}

TEST(DeepSearch, StandsInWhereBitSetsCan) {
    const auto possible = [](EngineRig &rig) { return DeepSearch::make(*rig.engine) != nullptr; };
    EngineRig rig(RuleSet::Polish, board(6));
    EXPECT_TRUE(possible(rig));
    EXPECT_FALSE(BitPosition<8>::representable(rig.position)) << "another size";
    rig.position.squares[0][1] = blackKing;
    EXPECT_FALSE(possible(rig)) << "a piece on a light square";
    rig.position.squares[0][1] = 0;
    rig.position.squares[0][0] |= codeTaken;
    EXPECT_FALSE(possible(rig)) << "a piece being taken";
    rig.position = board(6);
    rig.engine = std::make_unique<NothingEngine>(&rig.position, 1, &rig.statistic, 6);
    EXPECT_FALSE(possible(rig)) << "rules of one's own";
    EngineRig small(RuleSet::American, board(4));
    EXPECT_FALSE(possible(small)) << "no such size";
    EXPECT_NE(small.search(), "none") << "the engines play it all the same";
}

TEST(NodeTests, WhenANodeMayBeValued) {
    EngineRig rig(RuleSet::International, board(10));
    rig.engine->depth = 30;
    constexpr int cases[][3] = {{5, 2, 0}, {5, 3, 1}, {3, 3, 1}, {2, 3, 0},
                                {2, 6, 0}, {2, 7, 1}, {1, 7, 0}, {0, 9, 0}};
    for (const auto &[moves, level, may] : cases) {
        rig.engine->moveList.clear();
        for (int i = 0; i < moves; ++i)
            rig.engine->moveList.append(LegalMove({i, 0}, {i, 1}));
        EXPECT_EQ(rig.engine->canScore(level), may == 1) << moves << " moves at level " << level;
        EXPECT_TRUE(rig.engine->canScore(level, false));
        EXPECT_EQ(rig.engine->canScore(level, true), level >= 4) << "a man can run";
    }
}

// White is a man of 1080 points ahead; the parent, black, has at least `beta` elsewhere.
TEST(NodeTests, SenselessSacrifices) {
    constexpr int none = Score::none;
    constexpr struct {
        int alpha, beta;
        bool giveAway, gambit, senseless;
    } cases[] = {{none, none, false, false, false},   {none, 0, false, false, true},
                 {none, -500, false, false, false},   {none, -499, false, false, true},
                 {none, 0, false, true, false},       {none, 500, false, true, true},
                 {none, 1499, true, false, false},    {none, 1500, true, false, true},
                 {none, 999950, false, false, false}, {-999950, 0, false, false, false}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, "w ...... ...... ...... ..w... ...... ......");
        rig.statistic.giveAway = c.giveAway;
        AbstractEngine::isGambit = c.gambit;
        int material = 0;
        EXPECT_EQ(rig.engine->senseLessSacryfice(Score(c.alpha, 0), Score(c.beta, 0), material),
                  c.senseless)
            << c.beta;
        EXPECT_EQ(rig.statistic.senselessSacrifices, c.senseless);
        EXPECT_TRUE(!c.senseless || material == (c.giveAway ? -1080 : 1080));
    }
}

TEST(Engines, ClonesAreOfTheSameRules) {
    constexpr const char *names[] = {"IntEngine", "AmEngine", "PolEngine"};
    for (int i = 0; i < 3; ++i) {
        EngineRig rig(allRuleSets[i], board(8));
        const std::unique_ptr<AbstractEngine> clone(
            rig.engine->selfClone(&rig.position, 30, &rig.statistic, 8));
        EXPECT_STREQ(clone->className(), names[i]);
        EXPECT_TRUE(clone->depth == 30 && clone->size == 8 && clone->board == &rig.position);
    }
}

} // namespace
