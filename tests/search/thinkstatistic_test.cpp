#include "search/thinkstatistic.h"

#include "tests/support/recordinghost.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

// A search under way on the test's clock.
struct Thinking : thinkStatistic {
    RecordingHost host;
    qint64 started = host.now;

    bool canTryAt(int ms, int moves) {
        host.now = started + ms;
        return canTry(moves);
    }
    void restart() {
        clear();
        started = host.now;
    }
};

TEST(ThinkStatistic, Fresh) {
    Thinking t;
    EXPECT_TRUE(t.timer.isNull());
    EXPECT_EQ(t.getReqTime(), 5);
    EXPECT_EQ(t.getReqDepth(), -1);
    EXPECT_EQ(t.timeCredit, 0);
    EXPECT_FALSE(t.giveAway);
    EXPECT_EQ(t.scoreNoise, 0);
    EXPECT_EQ(t.nodes, 0);
    EXPECT_EQ(t.growth, 0.0F);
}

TEST(ThinkStatistic, Requests) {
    Thinking t;
    t.timeCredit = 77;
    t.setReqDepth(0);
    EXPECT_EQ(t.getReqTime(), 5);
    EXPECT_EQ(t.timeCredit, 77);
    t.setReqDepth(3);
    EXPECT_EQ(t.getReqTime(), -1);
    EXPECT_EQ(t.getReqDepth(), 3);
    EXPECT_EQ(t.timeCredit, 0);
    t.timeCredit = 77;
    t.setReqTime(10);
    EXPECT_EQ(t.getReqTime(), 10);
    EXPECT_EQ(t.getReqDepth(), -1);
    EXPECT_EQ(t.timeCredit, 0);
}

TEST(ThinkStatistic, ATimedMoveAndTheNext) {
    Thinking t;
    t.restart();
    EXPECT_TRUE(t.canTryAt(150, 10));
    EXPECT_EQ(t.growth, 7.0F);
    EXPECT_EQ(t.lastIterationMs, 150);
    EXPECT_EQ(t.prevIterationMs, 150);
    EXPECT_EQ(t.Estimate(10), 300) << "the floor of the growth is 2";
    EXPECT_FALSE(t.canTryAt(900, 10));
    EXPECT_NEAR(t.growth, 900.0 / 151, 1e-5);
    t.movesGenerated = 9500;
    t.host.now = t.started + 950;
    t.stop(10);
    EXPECT_EQ(t.elapsedMs, 950);
    EXPECT_EQ(t.movesPerMs, 10);
    EXPECT_EQ(t.timeCredit, 4100);

    t.restart();
    EXPECT_EQ(t.lastIterationMs, 0);
    EXPECT_EQ(t.movesGenerated, 0);
    EXPECT_EQ(t.timeCredit, 4100);
    EXPECT_TRUE(t.canTryAt(3525, 2)) << "5000 + 2050 ms";
    EXPECT_FALSE(t.canTryAt(3526, 2));
    t.newGame();
    EXPECT_EQ(t.timeCredit, 0);
}

TEST(ThinkStatistic, EstimatesOfTheNextIteration) {
    const struct {
        int last;
        int prev;
        int moves;
        int estimate;
    } cases[] = {{150, 0, 10, 1050},   {900, 150, 10, 5364}, {900, 150, 2, 1800},
                 {900, 899, 20, 1800}, {0, 0, 10, 0},        {INT_MAX, 0, 100, INT_MAX}};
    for (const auto &c : cases) {
        Thinking t;
        t.lastIterationMs = c.last;
        t.prevIterationMs = c.prev;
        EXPECT_EQ(t.Estimate(c.moves), c.estimate) << c.last << " after " << c.prev;
    }
}

// With two moves the next iteration is taken to end at twice the clock reading.
TEST(ThinkStatistic, Budgets) {
    constexpr struct {
        int seconds;
        int credit;
        int budget;
    } cases[] = {{2, 0, 2000},     {2, 10000, 7000}, {2, -10000, 1400}, {2, 20000, 8000},
                 {2, 11999, 7999}, {2, -1, 2000},    {60, 0, 60000},    {5, -3000, 3500}};
    for (const auto &c : cases) {
        Thinking t;
        t.setReqTime(c.seconds);
        t.timeCredit = c.credit;
        t.restart();
        EXPECT_TRUE(t.canTryAt(c.budget / 2, 2)) << c.seconds << " s, credit " << c.credit;
        EXPECT_FALSE(t.canTryAt(c.budget / 2 + 1, 2)) << c.seconds << " s, credit " << c.credit;
    }
}

TEST(ThinkStatistic, WithoutLimitTheCreditNeitherCountsNorChanges) {
    constexpr int elevenDays = 1000000000;
    for (const int credit : {0, INT_MIN, INT_MAX}) {
        Thinking t;
        t.setReqTime(99999999);
        t.timeCredit = credit;
        t.restart();
        EXPECT_TRUE(t.canTryAt(elevenDays, 2));
        t.stop(10);
        EXPECT_EQ(t.timeCredit, credit);
    }
}

TEST(ThinkStatistic, CreditChangesOnlyWhenThereWasAChoice) {
    Thinking t;
    t.restart();
    t.canTryAt(6000, 4);
    for (const int moves : {0, 1}) {
        t.stop(moves);
        EXPECT_EQ(t.timeCredit, 0) << moves;
    }
    t.stop(2);
    EXPECT_EQ(t.timeCredit, -1000) << "an overrun";
    t.setReqDepth(2);
    t.restart();
    t.stop(5);
    EXPECT_EQ(t.timeCredit, -1000);
    EXPECT_EQ(t.movesPerMs, 0) << "no millisecond, no rate";
    t.setReqTime(60);
    t.timeCredit = INT_MAX - 5;
    t.restart();
    t.stop(5);
    EXPECT_EQ(t.timeCredit, INT_MAX);
}

} // namespace
