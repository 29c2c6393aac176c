#include "search/thinkstatistic.h"

#include "tests/support/recordinghost.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

// A search under way on the test's clock.
struct Thinking : thinkStatistic {
    RecordingHost host;
    qint64 started = host.now;

    explicit Thinking(int seconds = 5, int credit = 0) {
        setReqTime(seconds);
        timeCredit = credit;
        restart();
    }
    bool canTryAt(int ms, int moves) {
        host.now = started + ms;
        return canTry(moves);
    }
    void restart() {
        clear();
        started = host.now;
    }
};

TEST(ThinkStatistic, ATimedMoveAndTheNext) {
    Thinking t;
    EXPECT_TRUE(t.canTryAt(150, 10));
    EXPECT_EQ(t.growth, 7.0F);
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
    EXPECT_TRUE(t.canTryAt(3525, 2)) << "5000 + 2050 ms";
    EXPECT_FALSE(t.canTryAt(3526, 2));
}

TEST(ThinkStatistic, EstimatesOfTheNextIteration) {
    constexpr int cases[][4] = {{150, 0, 10, 1050},  {900, 150, 10, 5364},
                                {900, 150, 2, 1800}, {900, 899, 20, 1800},
                                {0, 0, 10, 0},       {INT_MAX, 0, 100, INT_MAX}};
    for (const auto &[last, previous, moves, estimate] : cases) {
        Thinking t;
        t.lastIterationMs = last;
        t.prevIterationMs = previous;
        EXPECT_EQ(t.Estimate(moves), estimate) << last << " after " << previous;
    }
}

// With two moves the next iteration is taken to end at twice the clock reading.
TEST(ThinkStatistic, Budgets) {
    constexpr int cases[][3] = {{2, 0, 2000},     {2, 10000, 7000}, {2, -10000, 1400},
                                {2, 20000, 8000}, {2, 11999, 7999}, {2, -1, 2000},
                                {60, 0, 60000},   {5, -3000, 3500}};
    for (const auto &[seconds, credit, budget] : cases) {
        Thinking t(seconds, credit);
        EXPECT_TRUE(t.canTryAt(budget / 2, 2)) << seconds << " s, credit " << credit;
        EXPECT_FALSE(t.canTryAt(budget / 2 + 1, 2)) << seconds << " s, credit " << credit;
    }
}

TEST(ThinkStatistic, TheCreditAfterAMove) {
    constexpr struct {
        int seconds, credit, usedMs, moves, after;
    } cases[] = {{5, 0, 6000, 1, 0},
                 {5, 0, 6000, 2, -1000},
                 {60, INT_MAX - 5, 0, 5, INT_MAX},
                 {99999999, INT_MIN, 1000000000, 10, INT_MIN},
                 {99999999, 7, 9, 10, 7}};
    for (const auto &c : cases) {
        Thinking t(c.seconds, c.credit);
        EXPECT_EQ(t.canTryAt(c.usedMs, 2), c.seconds > 5) << "without limit there is always time";
        t.stop(c.moves);
        EXPECT_EQ(t.timeCredit, c.after) << c.usedMs << " of " << c.seconds << " s";
    }
}

} // namespace
