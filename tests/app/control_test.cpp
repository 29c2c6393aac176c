// The buttons that take the game out of the players' hands, and the window's close button.

#include "tests/app/gamerig.h"

#include <QApplication>
#include <QElapsedTimer>
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
    duringSearch(host, [this] {
        EXPECT_EQ(status(), "[*** THINKING ***] 20/20 Break");
        EXPECT_EQ(game.pView->cursor().shape(), Qt::ForbiddenCursor);
        tap(5, 3);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(AbstractEngine::breakThinking);
        press(game.btnBreak);
    });
    for (const int players : {humans, computers}) {
        place(startOfTen, players);
        if (players == humans)
            press(game.btnForce);
        EXPECT_EQ(game.pView->cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(marked(MarkNext), "");
        land();
        EXPECT_EQ(status(), "[Your Move] 20/20 Prev About Force Settings NewGame");
        EXPECT_EQ(game.whiteComputer, 1);
        EXPECT_EQ(game.blackComputer, 0);
        EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), 0);
        host.eventRounds = 0;
    }
}

TEST_F(GameTest, BreakDuringTheFlightGivesTheComputerTheNextMoveToo) {
    press(game.btnForce);
    ASSERT_TRUE(game.flying);
    EXPECT_EQ(status(), "[] 20/20 Break");
    press(game.btnBreak);
    land(2);
    EXPECT_TRUE(game.pBoard->whiteToMove);
    EXPECT_EQ(status(), "[Your Move] 20/20 Prev About Force Settings NewGame");
    EXPECT_EQ(game.blackComputer, 1);
}

TEST_F(GameTest, ForceMoveBetweenTwoPeopleBringsTheComputerIn) {
    place(startOfTen, humans);
    tap(5, 3);
    press(game.btnForce);
    EXPECT_EQ(marked(MarkNext), "");
    land();
    EXPECT_EQ(game.pSettings->cmbPlayers->currentIndex(), 0);
    EXPECT_FALSE(game.pBoard->whiteToMove);
    EXPECT_EQ(game.pHist->getBoard()->plyCount, 0) << "recorded before it is counted";
    EXPECT_EQ(status(), "[Your Move] 20/20 Prev About Force Settings NewGame");
}

TEST_F(GameTest, NewGameAsksOnlyWhenThereIsAGameToLose) {
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "");
    taps({{5, 3}, {4, 4}});
    land(2);
    const std::string played = picture(*game.pBoard);
    host.answer = false;
    press(game.btnNewGame);
    EXPECT_EQ(picture(*game.pBoard), played);
    host.answer = true;
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "confirm: confirm NewGame; confirm: confirm NewGame; ") << "one a click";
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
    EXPECT_EQ(picture(*game.pBoard), picture(drawn(startOfTen)));
    expectAgreement();
}

// Closing, as the window's close button does it, at the worst moments. The event loop ends with
// status 0 well within a second, and the game stays as it was.
struct Closing {
    const char *moment;
    std::function<void(OpenGame &, RecordingHost &)> act;
};

class ClosingTest : public GameTest, public testing::WithParamInterface<Closing> {};

TEST_P(ClosingTest, EndsTheProgramAtOnce) {
    QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &game, &QCoreApplication::quit);
    game.setLevel(infinite);
    QElapsedTimer clock;
    QTimer::singleShot(0, &game, [&] { GetParam().act(game, host); });
    QTimer::singleShot(5000, &game, [] { QCoreApplication::exit(1); });
    clock.start();
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_EQ(game.pBoard->plyCount, 0);
    EXPECT_FALSE(game.pHist->canPrev());
}

INSTANTIATE_TEST_SUITE_P(AtTheWorstMoment, ClosingTest,
                         testing::Values(Closing{"thinking",
                                                 [](OpenGame &game, RecordingHost &host) {
                                                     duringSearch(host, [&game] { game.close(); });
                                                     game.forceMove();
                                                 }},
                                         Closing{"flying",
                                                 [](OpenGame &game, RecordingHost &) {
                                                     game.userInput(5, 3, false);
                                                     game.userInput(4, 4, false);
                                                     game.close();
                                                     for (int step = 0; step < 20; ++step)
                                                         game.pCanvas->advance();
                                                 }},
                                         Closing{"settings open, both sides the computer's",
                                                 [](OpenGame &game, RecordingHost &) {
                                                     game.pSettings->cmbPlayers->setCurrentIndex(
                                                         computers);
                                                     QTimer::singleShot(50, &game, &QWidget::close);
                                                     game.showSettings();
                                                 }}),
                         [](const auto &moment) {
                             return std::string("Moment") + std::to_string(moment.index);
                         });
