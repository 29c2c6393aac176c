// The buttons that take the game out of the players' hands, and the window's close button.

#include "tests/app/gamerig.h"

#include <QApplication>
#include <QTimer>

namespace {

// Calls `act` once, in the middle of the search that comes next.
void duringSearch(RecordingHost &host, std::function<void()> act) {
    const int round = host.eventRounds + 3;
    host.onEvents = [&host, round, act = std::move(act)] {
        if (host.eventRounds == round)
            act();
    };
}

} // namespace

TEST_F(GameTest, BreakEndsALongSearchAndKeepsItsSide) {
    game.setLevel(infinite);
    int players = humans;
    duringSearch(host, [this, &players] {
        EXPECT_EQ(status(), "[*** THINKING ***] 20/20 Break");
        EXPECT_EQ(game.pView->cursor().shape(), Qt::ForbiddenCursor);
        tap(5, 3);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(AbstractEngine::breakThinking);
        if (players == humans)
            press(game.btnBreak);
        else
            QTest::keyClick(game.windowHandle(), Qt::Key_Escape);
    });
    game.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&game));
    for (players = humans; players <= computers; ++players) {
        place(startOfTen, players);
        if (players == humans)
            press(game.btnForce);
        EXPECT_EQ(game.pView->cursor().shape(), Qt::ArrowCursor);
        land();
        EXPECT_EQ(status(), "[Your Move] 20/20 Prev About Force Settings NewGame");
        EXPECT_EQ(game.whiteComputer, 1);
        EXPECT_EQ(game.blackComputer, 0);
        EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), 0);
        host.eventRounds = 0;
    }
}

TEST_F(GameTest, ForceMoveBringsTheComputerInForOneMoveOrWithBreakForTwo) {
    const std::string after = "[Your Move] 20/20 Prev About Force Settings NewGame";
    place(startOfTen, humans);
    tap(5, 3);
    press(game.btnForce);
    EXPECT_EQ(marked(MarkNext), "");
    land();
    EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), 0);
    EXPECT_FALSE(game.pBoard->whiteToMove);
    EXPECT_EQ(game.pHist->getBoard()->plyCount, 0) << "recorded before it is counted";
    EXPECT_EQ(status(), after);
    place(startOfTen, 0);
    press(game.btnForce);
    ASSERT_TRUE(game.flying());
    EXPECT_EQ(status(), "[] 20/20 Break");
    press(game.btnBreak);
    land(2);
    EXPECT_TRUE(game.pBoard->whiteToMove);
    EXPECT_EQ(game.blackComputer, 1);
    EXPECT_EQ(status(), after);
}

// As slow as a person's: the press comes in one flight and the release in the next.
TEST_F(GameTest, BreakHeldWhileAPieceLandsCounts) {
    place(startOfTen, computers);
    const QPoint at = game.btnBreak->geometry().center();
    QTest::mousePress(game.windowHandle(), Qt::LeftButton, {}, at);
    land();
    QTest::mouseRelease(game.windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), 0);
}

TEST_F(GameTest, NewGameAsksOnlyWhenThereIsAGameToLose) {
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "");
    taps("53 44");
    land(2);
    const std::string played = picture(*game.pBoard);
    host.answer = false;
    press(game.btnNewGame);
    EXPECT_EQ(picture(*game.pBoard), played);
    host.answer = true;
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "confirm: confirm NewGame; confirm: confirm NewGame; ") << "one a click";
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    EXPECT_EQ(shown(), picture(drawn(startOfTen)));
}

// Closing, as the window's close button does it, at the worst moments: the event loop ends with
// status 0 well within a second, and the game stays as it was.
class ClosingTest : public GameTest {
protected:
    void closesAtOnce(const std::function<void()> &act) {
        QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &game, &QCoreApplication::quit);
        game.setLevel(infinite);
        QTimer::singleShot(0, &game, act);
        QTimer::singleShot(1000, &game, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_EQ(game.pBoard->plyCount, 0);
    }
};

TEST_F(ClosingTest, WhileThinking) {
    duringSearch(host, [this] { game.close(); });
    closesAtOnce([this] { press(game.btnForce); });
}

TEST_F(ClosingTest, InFlight) {
    closesAtOnce([this] {
        taps("53 44");
        game.close();
        for (int step = 0; step < 20; ++step)
            game.pCanvas->advance();
    });
}

TEST_F(ClosingTest, WithSettingsOpenAndBothSidesTheComputers) {
    closesAtOnce([this] {
        game.pSettings->cmbPlayers->setCurrentIndex(computers);
        QTimer::singleShot(50, &game, &QWidget::close);
        game.showSettings();
    });
}
