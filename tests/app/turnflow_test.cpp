// The turns of a game: taps, flights, answers, the end.

#include "tests/rig/gametest.h"

#include <QTimer>

// The longest capture, entered square by square, ends with a crown, and Black has one answer.
TEST_F(GameTest, ACaptureIsEnteredFlownAndAnswered) {
    game.setBSize(sixSquares);
    place("w ...... ....b. .b.... w.b... .w.... ......", humanComputer);
    EXPECT_EQ(status(), "[You Must Capture] 2/3 About Force Settings NewGame");
    taps("02 24");
    EXPECT_EQ(marked(MarkNext), "") << "a capture of one";
    tap(1, 1);
    EXPECT_EQ(marked(MarkNext), "(3,3)");
    tap(3, 3);
    EXPECT_EQ(marked(MarkNext), "(5,5)");
    tap(5, 5);
    EXPECT_EQ(shown(), "b\n......\n....x.\n.b....\nw.x...\n.w....\n......\n");
    land(2);
    EXPECT_EQ(shown(), "w\n.....W\n......\n......\nw.b...\n......\n......\n");
    EXPECT_EQ(status(), "[You Must Capture] 2/1 Prev About Force Settings NewGame");
    EXPECT_EQ(marked(MarkPath), "(1,3) (2,2)");
    expectAgreement();
}

// The canvas's own timer brings the man home and the computer answers.
TEST_F(GameTest, MovesFlyByTheCanvassTimer) {
    struct TimerSpy : QObject {
        bool eventFilter(QObject *watched, QEvent *event) override {
            if (event->type() == QEvent::Timer && watched->inherits("QTimer"))
                periods << static_cast<QTimer *>(watched)->interval();
            return false;
        }
        QList<int> periods;
    } timers;
    qApp->installEventFilter(&timers);
    taps("53 44");
    ASSERT_TRUE(QTest::qWaitFor([this] { return game.pBoard->plyCount == 2; }));
    EXPECT_TRUE(timers.periods.contains(25));
    EXPECT_EQ(host.beeps, 1);
    EXPECT_EQ(game.pHist->getBoard()->plyCount, 1) << "recorded before it is counted";
}

// Half way to (3,3) the white man is over the piece that it takes.
TEST_F(GameTest, ThePieceThatFliesIsAboveTheOthers) {
    game.setBSize(sixSquares);
    place("w .....b ...... ...... ..b... .w.... ......");
    taps("11 33");
    for (int step = 0; step < 5; ++step)
        game.pCanvas->advance();
    EXPECT_EQ(shown(), picture(drawn("b .....b ...... ...... ..w... ...... ......")));
    land();
}

// Black's man can only take backwards, which Americans do not.
TEST_F(GameTest, AGameThatIsOverGoesOnByOtherRules) {
    accept({.rules = american, .size = sixSquares});
    place("b ...... ...... .w.... b..... .w.... ..w...");
    EXPECT_EQ(boxes(), gameOverBox);
    tap(0, 2);
    press(game.btnForce);
    EXPECT_EQ(status(), "[Game Over] 3/1 About Settings NewGame");
    accept({.rules = international});
    EXPECT_EQ(status(), "[You Must Capture] 3/1 About Force Settings NewGame");
}

// What the search takes for the horizon counts from the ply that the game has reached.
TEST_F(GameTest, TheComputerThinksAlikeAtAnyPly) {
    const auto answerAt = [this](int ply) {
        place(startOfTen, humans);
        game.pBoard->plyCount = ply;
        game.pStat->setReqDepth(5);
        game.pStat->scoreNoise = 1;
        press(game.btnForce);
        land();
        return std::to_string(game.pStat->nodes) + " nodes, " + position();
    };
    EXPECT_EQ(answerAt(31), answerAt(0));
}
