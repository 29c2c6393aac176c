// Scores and the lines that carry them.

#include "rules/legalmove.h"
#include "search/bestline.h"
#include "search/score.h"

#include <gtest/gtest.h>

namespace {

TEST(Score, KindsOfValue) {
    const struct {
        int value;
        bool none, decided;
    } cases[] = {{-1000777, true, false}, {1000777, true, false},  {-1000776, false, true},
                 {999900, false, false},  {-999900, false, false}, {999901, false, true},
                 {-999901, false, true},  {0, false, false}};
    for (const auto &c : cases) {
        EXPECT_EQ(Score(c.value, 3).isNone(), c.none) << c.value;
        EXPECT_EQ(Score(c.value, 3).aroundGameOver(), c.decided) << c.value;
    }
    constexpr int thousands[][2] = {{499, 0},    {500, 1},  {1499, 1},  {1500, 2},
                                    {-1500, -2}, {-499, 0}, {-500, -1}, {0, 0}};
    for (const auto &[points, part] : thousands)
        EXPECT_EQ(Score::hiPart(points), part) << points;
}

TEST(BestLine, ThirtyLevelsAndTheirText) {
    BestLine line;
    LegalMove m({5, 6}, {6, 7});
    m.insPath({4, 5}, 2);
    m.score = -95;
    for (const int level : {0, 1, 29, 30, 100})
        line.updateAt(&m, level);
    const auto text = [](const BestLine &l) {
        QString s = "left over";
        l.asString(s);
        return s;
    };
    EXPECT_EQ(text(line), "");
    line.setTop(2);
    EXPECT_EQ(text(line), "(5,6)->(4,5) -95 \n(5,6)->(4,5) -95 \n");
    BestLine copy;
    copy.copyFrom(&line, 1); // takes the top, and the entries up to it
    EXPECT_EQ(copy.top, 2);
    EXPECT_EQ(copy.from[0], XY(-1, -1));
    EXPECT_EQ(copy.scores[0], 7777);
    EXPECT_EQ(copy.to[1], XY(4, 5));
    EXPECT_EQ(copy.scores[29], 7777);
    line.setTop(100);
    copy.copyFrom(&line, 28);
    EXPECT_EQ(copy.scores[29], -95);
    EXPECT_EQ(text(copy).count('\n'), 30);
    line.reset();
    EXPECT_EQ(line.scores[29], 7777);
    EXPECT_EQ(line.top, 0);
}

} // namespace
