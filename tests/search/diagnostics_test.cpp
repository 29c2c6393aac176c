// What a game does not reach: the dumps, engines and boards that the bit sets cannot stand in for.

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
    rig.engine->genFullTree(stream, 0);
    stream.flush();
    EXPECT_TRUE(text.startsWith("10 0 3499457097 0 -1 wm--wm--"));
    EXPECT_EQ(text.count('\n'), 1 + 9 + 81 + 658);
    EXPECT_EQ(rig.statistic.nodes, 1 + 9 + 81 + 658);
    EXPECT_EQ(rig.statistic.movesGenerated, 9 + 81 + 658 + 4265);
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

TEST(DeepSearch, StandsInWhereBitSetsCan) {
    const auto standsIn = [](EngineRig &rig) {
        SearchContext context(rig.statistic);
        return DeepSearch::make(*rig.engine, context) != nullptr;
    };
    EngineRig rig(RuleSet::Polish, board(6));
    EXPECT_TRUE(standsIn(rig));
    rig.position.squares[0][0] |= codeTaken;
    EXPECT_FALSE(standsIn(rig)) << "a piece being taken";
    EngineRig small(RuleSet::American, board(4));
    EXPECT_FALSE(standsIn(small)) << "no such size";
    EXPECT_NE(small.search(), "none") << "the engines play it all the same";
}

} // namespace
