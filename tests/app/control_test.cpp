// The buttons that take the game out of the players' hands, and the window's close button.

#include "tests/rig/gametest.h"

#include "platform/guihost.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace {

const char *const handedOver = "[Your Move] 20/20 Prev About Force Settings NewGame";

} // namespace

class BreakTest : public GameTest {
protected:
    BreakTest() { game.setLevel(infinite); }

    void expectHandedOver() {
        EXPECT_EQ(game.pView->cursor().shape(), Qt::ArrowCursor);
        land();
        EXPECT_EQ(status(), handedOver);
        EXPECT_EQ(game.whiteComputer, 1) << "the side that it thought for";
        EXPECT_EQ(game.blackComputer, 0);
        EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), humanComputer);
    }
};

TEST_F(BreakTest, TheButtonEndsALongSearchAndNothingElseDoes) {
    duringSearch([this] {
        EXPECT_EQ(status(), "[*** THINKING ***] 20/20 Break");
        EXPECT_EQ(game.pView->cursor().shape(), Qt::ForbiddenCursor);
        tap(5, 3);
        keys(game, {Qt::Key_Space});
        for (QPushButton *button : {game.btnPrev, game.btnFwd, game.btnAbout, game.btnForce,
                                    game.btnSettings, game.btnNewGame})
            press(button);
        EXPECT_FALSE(AbstractEngine::breakThinking);
        press(game.btnBreak);
    });
    place(startOfTen, humans);
    press(game.btnForce);
    expectHandedOver();
}

// Held down, Escape counts once: in the flight that follows it would count for the other side.
TEST_F(BreakTest, EscapeHeldDownIsOneBreak) {
    duringSearch([this] { Hand::holdKey(&game, Qt::Key_Escape, 5); });
    place(startOfTen, computers);
    game.setLevel(easy1);
    Hand::repeatKey(&game, Qt::Key_Escape, 5);
    expectHandedOver();
}

// As slow as a person's: the press comes in one flight and the release in the next.
TEST_F(GameTest, BreakHeldWhileAPieceLandsCounts) {
    place(startOfTen, computers);
    const QPoint at = game.btnBreak->geometry().center();
    hand.press(&game, at);
    land();
    hand.release(at);
    EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), humanComputer);
}

TEST_F(GameTest, ForceMoveBringsTheComputerInForOneMove) {
    place(startOfTen, humans);
    tap(5, 3);
    press(game.btnForce);
    EXPECT_EQ(marked(MarkNext), "") << "the move half entered is dropped";
    EXPECT_EQ(status(), "[] 20/20 Break");
    land();
    EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), humanComputer);
    EXPECT_FALSE(game.pBoard->whiteToMove);
    EXPECT_EQ(status(), handedOver);
}

TEST_F(GameTest, BreakInTheFlightBringsTheComputerInForTwo) {
    place(startOfTen, humans);
    press(game.btnForce);
    press(game.btnBreak);
    land(2);
    EXPECT_TRUE(game.pBoard->whiteToMove);
    EXPECT_EQ(game.blackComputer, 1);
    EXPECT_EQ(status(), handedOver);
}

TEST_F(GameTest, NewGameAsksOnlyWhenThereIsAGameToLose) {
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "");
    taps("53 44");
    land(2);
    game.pStat->timeCredit = 5000;
    const std::string played = position();
    host.answer = false;
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), newGameBox) << "one a click";
    EXPECT_EQ(position(), played);
    EXPECT_EQ(game.pStat->timeCredit, 5000);
    host.answer = true;
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), newGameBox);
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    EXPECT_EQ(shown(), picture(drawn(startOfTen)));
    EXPECT_EQ(game.pStat->timeCredit, 0) << "a new game has saved no time yet";
}

// Closing, as the window's close button does it, at the worst moments: the event loop ends with
// status 0, and the game stays as it was.
class ClosingTest : public GameTest {
protected:
    void closesAtOnce(const std::function<void()> &act) {
        QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &game, &QCoreApplication::quit);
        game.setLevel(infinite);
        const int ply = game.pBoard->plyCount;
        QTimer::singleShot(0, &game, act);
        QTimer::singleShot(20'000, &game, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_EQ(game.pBoard->plyCount, ply);
        for (const QWidget *window : QApplication::topLevelWidgets())
            EXPECT_FALSE(window->isVisible()) << window->windowTitle().toStdString();
    }
};

TEST_F(ClosingTest, WhileThinking) {
    duringSearch([this] { game.close(); });
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
        QTimer::singleShot(0, &game, [this] {
            EXPECT_TRUE(game.pSettings->isVisible());
            game.close();
        });
        press(game.btnSettings);
    });
}

// The question is a real box here; it goes with the window, as if cancelled.
TEST_F(ClosingTest, WithAQuestionOpen) {
    taps("53 44");
    land(2);
    const std::string played = position();
    closesAtOnce([this] {
        GuiHost realBoxes;
        setHost(&realBoxes);
        QTimer::singleShot(0, &game, [this] {
            const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            game.close();
        });
        press(game.btnNewGame);
        setHost(&host);
    });
    EXPECT_EQ(position(), played);
}

// Where the program outlives its window.
TEST_F(GameTest, ChoicesThatNobodyAcceptedAreForgottenInAReopenedWindow) {
    const std::string before = settingsText(game);
    const auto reopen = [this] {
        Hand::turnWheel(game.pSettings->cmbRules, false);
        EXPECT_EQ(game.pSettings->rulesIndex, american);
        game.close();
        game.show();
    };
    whileOpen(
        game.pSettings.get(), [this] { press(game.btnSettings); }, reopen);
    EXPECT_EQ(settingsText(game), before);
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
}
