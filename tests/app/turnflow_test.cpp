// The turns of a game: flights and answers.

#include "tests/rig/gametest.h"

#include <QTimer>

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
