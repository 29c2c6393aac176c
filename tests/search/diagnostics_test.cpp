// What a game does not reach: the dumps, engines and boards that the bit sets cannot stand in for,
// and a node's tests one by one.

#include "bits/bitposition.h"
#include "eval/heuristic.h"
#include "search/deepsearch.h"
#include "search/searchcontext.h"
#include "tests/search/drawntree.h"

#include <QTextStream>

#include <gtest/gtest.h>

namespace {

// The tree of the 10 x 10 start position has 1, 9, 81, 658 and 4265 positions by depth.
TEST(TreeDump, WritesEveryPositionDownToTheDepth) {
    EngineRig rig(RuleSet::International, board(10));
    QString text;
    QTextStream stream(&text);
    rig.engine->depth = 3;
    AbstractEngine::breakThinking = true;
    rig.engine->genFullTree(stream, 0);
    stream.flush();
    EXPECT_EQ(text, "");
    AbstractEngine::breakThinking = false;
    rig.engine->genFullTree(stream, 0);
    stream.flush();
    EXPECT_TRUE(text.startsWith("10 0 3499457097 0 -1 wm--wm--"));
    EXPECT_EQ(text.count('\n'), 1 + 9 + 81 + 658);
    EXPECT_EQ(rig.statistic.nodes, 1 + 9 + 81 + 658);
    EXPECT_EQ(rig.statistic.movesGenerated, 9 + 81 + 658 + 4265);
    EXPECT_EQ(rig.statistic.maxLevel, 3);
    EXPECT_EQ(rig.host.eventRounds, 5) << "at 91 inner positions, once in 21";
}

TEST(Trace, PrintsANodeWithItsMoves) {
    DrawnTree tree("(30 -50)");
    tree.engine->depth = 10;
    const Score none(Score::none, -1);
    testing::internal::CaptureStdout();
    tree.engine->getBestMove(0, tree.score, none, none, tree.line, true);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "\n thisKey=\t 1048576 \tlevel=0\t Depth=10 < -1000777, 1000777 >\n"
              "m=1/2\t tScore=0\t score=50\t \nm=0/2\t tScore=0\t score=-30\t \n");
}

bool bitsStandInFor(EngineRig &rig) {
    SearchContext context(rig.statistic);
    return DeepSearch::make(*rig.engine, context) != nullptr;
}

TEST(DeepSearch, StandsInWhereBitSetsCan) {
    EngineRig rig(RuleSet::Polish, board(6));
    EXPECT_TRUE(bitsStandInFor(rig));
    EXPECT_FALSE(BitPosition<8>::representable(rig.position)) << "another size";
    rig.position.squares[0][1] = blackKing;
    EXPECT_FALSE(bitsStandInFor(rig)) << "a piece on a light square";
    rig.position.squares[0][1] = 0;
    rig.position.squares[0][0] |= codeTaken;
    EXPECT_FALSE(bitsStandInFor(rig)) << "a piece being taken";
    DrawnTree tree("(0)");
    EXPECT_FALSE(bitsStandInFor(tree)) << "rules of one's own";
    EngineRig small(RuleSet::American, board(4));
    EXPECT_FALSE(bitsStandInFor(small)) << "no such size";
    EXPECT_NE(small.search(), "none") << "the engines play it all the same";
}

// With a budget of three plies.
TEST(NodeTests, WhenANodeMayBeValued) {
    constexpr struct {
        int moves, level;
        bool mayBeValued;
    } cases[] = {{5, 2, false}, {5, 3, true}, {3, 3, true},  {2, 3, false},
                 {2, 6, false}, {2, 7, true}, {1, 7, false}, {0, 9, false}};
    EngineRig rig(RuleSet::International, board(10));
    rig.engine->depth = 30;
    for (const auto &c : cases) {
        rig.engine->moveList.clear();
        for (int i = 0; i < c.moves; ++i)
            rig.engine->moveList.append(LegalMove({i, 0}, {i, 1}));
        EXPECT_EQ(rig.engine->canScore(c.level), c.mayBeValued)
            << c.moves << " moves at level " << c.level;
        EXPECT_TRUE(rig.engine->canScore(c.level, false));
        EXPECT_EQ(rig.engine->canScore(c.level, true), c.level >= 4) << "a man can run";
    }
}

TEST(NodeTests, TheAnalysisIsForTheSideToMove) {
    EngineRig rig(RuleSet::International, "w ...... ...... ...... ..w... ...... ......");
    for (const bool white : {true, false}) {
        rig.position.whiteToMove = white;
        heuristic h;
        int freedom = 0;
        bool canPass = false;
        EXPECT_EQ(rig.engine->doHeuristic(&h, freedom, canPass), &h);
        EXPECT_TRUE(canPass);
        EXPECT_EQ(freedom, white ? 80 : -80) << "four squares are white's";
        EXPECT_EQ(h.getPassage(2, 2), codeWhite);
    }
    rig.position.squares[2][2] = whiteKing;
    heuristic h;
    int freedom = 0;
    bool canPass = true;
    EXPECT_EQ(rig.engine->doHeuristic(&h, freedom, canPass), nullptr) << "kings do not run";
    EXPECT_FALSE(canPass);
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
        EXPECT_EQ(rig.statistic.senselessSacrifices, c.senseless) << c.beta;
        if (c.senseless) {
            EXPECT_EQ(material, c.giveAway ? -1080 : 1080);
        }
    }
}

} // namespace
