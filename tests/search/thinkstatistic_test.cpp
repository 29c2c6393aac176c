#include "search/thinkstatistic.h"

#include "tests/support/recordinghost.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

// A search under way on the test's clock.
struct Thinking : thinkStatistic {
    RecordingHost host;
    qint64 started = host.now;

    Thinking(int seconds, int credit) {
        setReqTime(seconds);
        timeCredit = credit;
        clear();
    }
    bool canTryAt(int ms, int moves) {
        host.now = started + ms;
        return canTry(moves);
    }
};

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

} // namespace
