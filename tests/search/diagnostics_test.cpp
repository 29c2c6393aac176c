// What a game does not reach: the dump of a tree.

#include "tests/support/enginerig.h"

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

} // namespace
