#include "search/score.h"

#include <gtest/gtest.h>

namespace {

TEST(Score, KindsOfValue) {
    const struct {
        int value;
        bool none;
        bool decided;
    } cases[] = {{-1000777, true, false}, {1000777, true, false}, {-1000776, false, true},
                 {1000778, false, true},  {999900, false, false}, {-999900, false, false},
                 {999901, false, true},   {-999901, false, true}, {999990, false, true},
                 {-1000000, false, true}, {0, false, false}};
    for (const auto &c : cases) {
        EXPECT_EQ(Score(c.value, 3).isNone(), c.none) << c.value;
        EXPECT_EQ(Score(c.value, 3).aroundGameOver(), c.decided) << c.value;
    }
}

TEST(Score, ComparesValuesOnly) {
    const Score none(-1000777, 0);
    const Score negated(1000777, 0);
    for (const int value : {-999999, -1, 0, 1, 999999}) {
        EXPECT_TRUE(none <= Score(value, 5));
        EXPECT_TRUE(negated > Score(value, 5));
    }
    EXPECT_FALSE(Score(3, 9) > Score(3, 1));
    EXPECT_TRUE(Score(3, 9) <= Score(3, 1));
}

TEST(Score, NegationAndSumsLeaveTheDepth) {
    Score s(120, 4);
    s.neg();
    s += 7;
    EXPECT_EQ(s.value, -113);
    EXPECT_EQ(s.depth, 4);
    s.setNone(9);
    EXPECT_EQ(s.value, -1000777);
    EXPECT_EQ(s.depth, 9);
}

TEST(Score, Thousands) {
    constexpr int cases[][2] = {{499, 0},    {500, 1},  {1499, 1},  {1500, 2},
                                {-1500, -2}, {-499, 0}, {-500, -1}, {0, 0}};
    for (const auto &[points, thousands] : cases)
        EXPECT_EQ(Score::hiPart(points), thousands) << points;
}

} // namespace
