// The buttons that take the game out of the players' hands, and the window's close button.

#include "tests/rig/gametest.h"

#include "platform/guihost.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

// Held down, Escape counts once: in the flight that follows it would count for the other side.
TEST_F(GameTest, EscapeHeldDownIsOneBreak) {
    duringSearch([this] { Hand::holdKey(&game, Qt::Key_Escape, 5); });
    game.setLevel(infinite);
    place(startOfTen, computers);
    game.setLevel(easy1);
    Hand::repeatKey(&game, Qt::Key_Escape, 5);
    land();
    EXPECT_EQ(status(), "[Your Move] 20/20 Prev About Force Settings NewGame");
    EXPECT_EQ(game.whiteComputer, 1) << "the side that it thought for";
    EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), humanComputer);
}

// Closing, as the window's close button does it, at the worst moments: the event loop ends with
// status 0, and the game stays as it was.
class ClosingTest : public GameTest {
protected:
    void closesAtOnce(const std::function<void()> &act) {
        QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &game, &QCoreApplication::quit);
        const int ply = game.pBoard->plyCount;
        QTimer::singleShot(0, &game, act);
        QTimer::singleShot(20'000, &game, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_EQ(game.pBoard->plyCount, ply);
    }
};

TEST_F(ClosingTest, InAFlightThatTheReopenedWindowCompletes) {
    place(startOfTen);
    closesAtOnce([this] {
        taps("53 44");
        game.close();
        for (int step = 0; step < 20; ++step) // a flight takes six
            game.pCanvas->advance();
    });
    game.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return game.pBoard->plyCount == 1; }));
    expectAgreement();
}

TEST_F(ClosingTest, WithSettingsOpenAndBothSidesTheComputers) {
    game.pSettings->cmbPlayers->setCurrentIndex(computers);
    closesAtOnce([this] {
        whileOpen(
            game.pSettings.get(), [this] { press(game.btnSettings); }, [this] { game.close(); });
    });
}

// The question is a real box here; it goes with the window, as if cancelled.
TEST_F(ClosingTest, WithAQuestionOpen) {
    place(startOfTen);
    taps("53 44");
    land();
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
}
