#include "search/thinkstatistic.h"

#include "search/score.h"
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
        clear();
    }
    bool canTryAt(int ms, int moves) {
        host.now = started + ms;
        return canTry(moves);
    }
};

TEST(ThinkStatistic, EstimatesOfTheNextIteration) {
    constexpr struct {
        int last, previous, moves, estimate;
    } cases[] = {{150, 0, 10, 1050},   {900, 150, 10, 5364}, {900, 150, 2, 1800},
                 {900, 899, 20, 1800}, {0, 0, 10, 0},        {INT_MAX, 0, 100, INT_MAX}};
    for (const auto &c : cases) {
        Thinking t;
        t.lastIterationMs = c.last;
        t.prevIterationMs = c.previous;
        EXPECT_EQ(t.Estimate(c.moves), c.estimate) << c.last << " after " << c.previous;
    }
}

// With two moves the next iteration is taken to end at twice the clock reading.
TEST(ThinkStatistic, Budgets) {
    constexpr struct {
        int seconds, credit, budget;
    } cases[] = {{2, 0, 2000}, {2, 10000, 7000}, {2, -10000, 1400}, {2, 20000, 8000}};
    for (const auto &c : cases) {
        Thinking t(c.seconds, c.credit);
        EXPECT_TRUE(t.canTryAt(c.budget / 2, 2)) << c.seconds << " s, credit " << c.credit;
        EXPECT_FALSE(t.canTryAt(c.budget / 2 + 1, 2)) << c.seconds << " s, credit " << c.credit;
    }
}

TEST(ThinkStatistic, TheEndOfAMove) {
    constexpr struct {
        int seconds, credit, usedMs, moves, creditAfter;
    } cases[] = {{5, 0, 900, 10, 4100},
                 {5, 0, 6000, 1, 0},
                 {5, 0, 6000, 2, -1000},
                 {60, INT_MAX - 5, 0, 5, INT_MAX},
                 {99999999, INT_MIN, 1000000000, 10, INT_MIN}};
    for (const auto &c : cases) {
        Thinking t(c.seconds, c.credit);
        t.canTryAt(c.usedMs, 2);
        t.host.now += 50; // an iteration that is not completed costs nothing
        t.stop(c.moves);
        EXPECT_EQ(t.timeCredit, c.creditAfter) << c.usedMs << " of " << c.seconds << " s";
    }
}

TEST(ThinkStatistic, WithoutLimitThereIsAlwaysTime) {
    Thinking t(thinkStatistic::unlimitedSeconds, INT_MIN);
    EXPECT_TRUE(t.canTryAt(1000000000, 2));
}

TEST(ThinkStatistic, ADepthTakesThePlaceOfTheTimeAndItsCredit) {
    Thinking t(5, 3000);
    t.setReqDepth(0);
    EXPECT_EQ(t.getReqTime(), 5) << "no depth: the request stays";
    EXPECT_EQ(t.timeCredit, 3000);
    t.setReqDepth(1);
    EXPECT_EQ(t.getReqTime(), -1);
    EXPECT_EQ(t.timeCredit, 0);
}

TEST(Score, DecidedScores) {
    for (const int value : {1000777, -1000777, 999900, -999900, 0})
        EXPECT_FALSE(Score(value, 0).aroundGameOver()) << value;
    for (const int value : {999901, -999901, -1000000, 1000778, -1000776})
        EXPECT_TRUE(Score(value, 0).aroundGameOver()) << value;
}

} // namespace
