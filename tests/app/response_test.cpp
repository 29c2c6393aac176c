// That the window answers soon while the computer thinks, by counting: how far a search goes
// between two rounds of events, and after the one that is to end it. The time that this takes is
// measured on a quiet machine (responsetime_test.cpp).

#include "tests/app/thinking.h"

#include <algorithm>

class ResponseTest : public ThinkingTest {
protected:
    void expectTheEndAfter(const std::function<void()> &act) {
        int rounds = 0;
        int nodes = 0;
        duringSearch([&] {
            rounds = host.eventRounds;
            nodes = game.pStat->nodes;
            act();
        });
        press(game.btnForce);
        EXPECT_GT(nodes, 0) << "it has not been asked to end";
        EXPECT_LE(host.eventRounds - rounds, 1);
        EXPECT_LE(game.pStat->nodes - nodes, 1);
    }
};

TEST_P(ResponseTest, BreakEndsTheSearchAtOnce) {
    expectTheEndAfter([this] { press(game.btnBreak); });
    EXPECT_TRUE(game.flies());
}

TEST_P(ResponseTest, ClosingEndsTheSearchAtOnce) {
    expectTheEndAfter([this] { game.close(); });
    EXPECT_FALSE(game.flies());
}

// Long listings of captures ask for events by themselves: else a hundred rounds would take minutes
// on boards where captures branch.
TEST_P(ResponseTest, EventsAreProcessedEveryFewNodesAndJumps) {
    int nodes = 0;
    int longestGap = 0;
    host.onEvents = [&] {
        longestGap = std::max(longestGap, game.pStat->nodes - nodes);
        nodes = game.pStat->nodes;
        if (host.eventRounds == 100)
            press(game.btnBreak);
    };
    press(game.btnForce);
    EXPECT_GE(host.eventRounds, 100);
    EXPECT_LE(longestGap, 202) << "every 201 nodes; the first is counted before it is searched";
    if (GetParam().position == branchingCaptures) {
        EXPECT_LT(nodes, 1000) << "for a hundred rounds, most of them inside listings";
    }
}

// What an uncovered window asks for.
TEST_P(ResponseTest, ARepaintIsPaintedInTheNextRoundOfEvents) {
    struct PaintSpy : QObject {
        bool eventFilter(QObject *, QEvent *event) override {
            paints += event->type() == QEvent::Paint;
            return false;
        }
        int paints = 0;
    } spy;
    int before = 0;
    int after = 0;
    host.onEvents = [&, first = host.eventRounds + 5] {
        if (host.eventRounds == first) {
            before = spy.paints;
            game.pView->viewport()->update();
        } else if (host.eventRounds == first + 1) {
            after = spy.paints;
            press(game.btnBreak);
        }
    };
    game.pView->viewport()->installEventFilter(&spy);
    press(game.btnForce);
    EXPECT_EQ(after, before + 1);
}

INSTANTIATE_TEST_SUITE_P(, ResponseTest, testing::ValuesIn(thinkings), thinkingName);
