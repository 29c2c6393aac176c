// That the window answers soon while the computer thinks: by counting how far a search goes between
// two rounds of events and after the one that is to end it, and, on a quiet machine, in
// milliseconds.

#include "tests/rig/gametest.h"

#include "platform/guihost.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace {

// Black's four kings can go round among white's men in hundreds of thousands of ways, which the
// search has to list as soon as it has made a move for white.
constexpr const char *branchingCaptures =
    "w ...........B B........... .w.w.w.w.w.. ............ .w.w.w.w.w.. ............ "
    ".w.w...w.w.. ............ .w.w.w.w.w.. ............ .w.w.w.w.w.. B.........B.";

constexpr const char *allKings =
    "w .B.B.B.B.B.B B.B.B.B.B.B. .B.B.B.B.B.B B.B.B.B.B.B. .B.B.B.B.B.B ............ "
    "............ W.W.W.W.W.W. .W.W.W.W.W.W W.W.W.W.W.W. .W.W.W.W.W.W W.W.W.W.W.W.";

// People on both sides, a search without limit for the asking.
class ResponseTest : public GameTest, public testing::WithParamInterface<const char *> {
protected:
    ResponseTest() {
        game.setBSize(twelveSquares);
        game.setLevel(infinite);
        place(GetParam(), humans);
    }
};

} // namespace

TEST_P(ResponseTest, BreakEndsTheSearchAtOnce) {
    int rounds = 0;
    int nodes = 0;
    duringSearch([&] {
        rounds = host.eventRounds;
        nodes = game.pStat->nodes;
        press(game.btnBreak);
    });
    press(game.btnForce);
    EXPECT_GT(nodes, 0) << "it has not been asked to end";
    EXPECT_LE(host.eventRounds - rounds, 1);
    EXPECT_LE(game.pStat->nodes - nodes, 1);
    EXPECT_TRUE(game.flies());
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
    if (GetParam() == branchingCaptures) {
        EXPECT_LT(nodes, 1000) << "for a hundred rounds, most of them inside listings";
    }
}

// Boxes and events are those of the program. The search goes on until its tree is large.
TEST_P(ResponseTest, DISABLED_RepaintsIn50MsAndEndsIn100) {
    GuiHost realHost;
    setHost(&realHost);
    qint64 longestMs = 0;
    QElapsedTimer sincePaint, sinceBreak;
    QTimer paint;
    QObject::connect(&paint, &QTimer::timeout, &game, [&] {
        game.pView->viewport()->repaint();
        longestMs = std::max(longestMs, sincePaint.restart() - 10);
    });
    QTimer::singleShot(3000, Qt::PreciseTimer, &game, [&] {
        sinceBreak.start();
        press(game.btnBreak);
    });
    sincePaint.start();
    paint.setTimerType(Qt::PreciseTimer);
    paint.start(10);
    press(game.btnForce);
    EXPECT_LE(sinceBreak.elapsed(), 100);
    EXPECT_LE(longestMs, 50);
    setHost(&host);
}

INSTANTIATE_TEST_SUITE_P(, ResponseTest, testing::Values(allKings, branchingCaptures),
                         [](const auto &position) {
                             return position.param == allKings ? "kings" : "captures";
                         });
