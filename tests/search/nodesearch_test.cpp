#include "tests/support/enginerig.h"

#include <QTextStream>

#include <gtest/gtest.h>

namespace {

TEST(NodeSearch, WhenANodeMayBeValued) {
    EngineRig rig(RuleSet::International, board(10));
    rig.engine->depth = 35; // three levels
    constexpr struct {
        int level, moves;
        bool may;
    } cases[] = {{2, 5, false}, {3, 5, true},  {3, 3, true},   {3, 2, false}, {6, 2, false},
                 {7, 2, true},  {7, 1, false}, {99, 1, false}, {7, 0, false}};
    for (const auto &c : cases) {
        rig.engine->moveList.clear();
        for (int i = 0; i < c.moves; ++i)
            rig.engine->moveList.append(LegalMove({0, 0}, {1, 1}));
        EXPECT_EQ(rig.engine->canScore(c.level), c.may) << c.level << ", moves " << c.moves;
    }
    EXPECT_FALSE(rig.engine->canScore(3, true));
    EXPECT_TRUE(rig.engine->canScore(4, true));
}

// The side to move is a man up: 1000 and its square's 80.
TEST(NodeSearch, SenselessSacrifices) {
    constexpr int none = -1000777;
    constexpr struct {
        int alpha, beta;
        bool gambit, giveAway, senseless;
    } cases[] = {{none, 0, false, false, true},       {none, none, false, false, false},
                 {none, -499, false, false, true},    {none, -500, false, false, false},
                 {none, 0, true, false, false},       {none, 500, true, false, true},
                 {none, 999901, false, false, false}, {-999901, 0, false, false, false},
                 {none, 1499, false, true, false},    {none, 1500, false, true, true}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, "w ...... ...... ...... ..w... ...... ......");
        AbstractEngine::isGambit = c.gambit;
        rig.statistic.giveAway = c.giveAway;
        int material = 0;
        EXPECT_EQ(rig.engine->senseLessSacryfice(Score(c.alpha, 0), Score(c.beta, 0), material),
                  c.senseless)
            << c.alpha << " " << c.beta;
        EXPECT_TRUE(!c.senseless || material == (c.giveAway ? -1080 : 1080)) << material;
    }
}

// A record of value 40 made with beta -50 and alpha -200 at horizon 5.
TEST(NodeSearch, TableRecordsAnswerWithinTheirWindow) {
    constexpr struct {
        int beta, alpha, horizon;
        bool usable;
        int score;
    } cases[] = {{-200, -50, 5, true, 40},       {-200, -41, 5, true, 40},
                 {-200, -40, 5, true, -1000777}, {0, 0, 4, true, -1000777},
                 {-200, -51, 5, false, 0},       {-201, -50, 5, false, 0},
                 {-200, -50, 6, false, 0}};
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, board(8));
        board b(8);
        b.hashScore = 40;
        b.hashBeta = -50;
        b.hashAlpha = -200;
        b.hashHorizon = 5;
        rig.table.insert(&b);
        b = board(8);
        AbstractEngine::absHorizon = c.horizon;
        EXPECT_EQ(rig.engine->canUseHT(&b, c.beta, c.alpha), c.usable) << c.beta << " " << c.alpha;
        EXPECT_EQ(b.hashScore, c.score);
        EXPECT_EQ(b.hashBeta, c.usable ? -50 : 777);
    }
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
        board b(10);
        b.clear();
        b.squares[c.x][c.y] = whiteKing;
        b.squares[1][7] = blackKing;
        EngineRig rig(RuleSet::American, b);
        rig.statistic.setReqDepth(c.plies);
        EXPECT_NE(rig.search(), "none");
        const thinkStatistic &s = rig.statistic;
        EXPECT_EQ((std::vector{rig.score.value, rig.score.depth, s.nodes, s.scoresCalculated,
                               s.movesGenerated, s.maxLevel, s.cutoffs}),
                  (std::vector{c.score, c.plies, c.nodes, c.valued, c.generated, c.plies, 0}))
            << c.name;
        EXPECT_EQ(rig.lineText(), c.line) << c.name;
    }
}

TEST(NodeSearch, FullTreeDump) {
    EngineRig rig(RuleSet::International, board(6));
    rig.engine->depth = 1;
    QString text;
    QTextStream stream(&text);
    rig.engine->genFullTree(stream, 0);
    stream.flush();
    EXPECT_EQ(text.count('\n'), 1 + 5) << "the start and the positions after its five moves";
}

} // namespace
