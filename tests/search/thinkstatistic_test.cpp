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
        clear();
    }
    bool canTryAt(int ms, int moves) {
        host.now = started + ms;
        return canTry(moves);
    }
};

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

TEST(ThinkStatistic, TheEndOfAMove) {
    constexpr int cases[][5] = {{5, 0, 900, 10, 4100},
                                {5, 0, 6000, 1, 0},
                                {5, 0, 6000, 2, -1000},
                                {60, INT_MAX - 5, 0, 5, INT_MAX},
                                {99999999, INT_MIN, 1000000000, 10, INT_MIN}};
    for (const auto &[seconds, credit, usedMs, moves, after] : cases) {
        Thinking t(seconds, credit);
        EXPECT_EQ(t.canTryAt(usedMs, 2), usedMs != 6000) << "without limit there is time";
        t.host.now += 50; // an iteration that is not completed costs nothing
        t.movesGenerated = 9500;
        t.stop(moves);
        EXPECT_EQ(t.timeCredit, after) << usedMs << " of " << seconds << " s";
        EXPECT_EQ(t.movesPerMs, 9500 / (usedMs + 50));
        t.setReqDepth(0); // no depth: the request stays
        EXPECT_TRUE(t.getReqTime() == seconds && t.timeCredit == after);
    }
}

} // namespace
