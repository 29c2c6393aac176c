// The settings: what each choice does to the game, and what a rejected dialog does not.

#include "tests/rig/gametest.h"

#include <algorithm>

// The new size starts a game at once, by the new rules and at the new level.
TEST_F(GameTest, ComputersOnBothSidesBeginWithAllOfTheNewSettings) {
    std::string firstRequest;
    duringSearch([&] {
        firstRequest = request();
        AbstractEngine::breakThinking = true;
    });
    accept({.rules = polish,
            .size = sixSquares,
            .level = infinite,
            .players = computers,
            .toggleGiveAway = true});
    EXPECT_EQ(firstRequest, "PolEngine, 99999999 s, noise 5, give-away");
    EXPECT_EQ(request(), firstRequest);
    EXPECT_EQ(status(), "[] 6/6 Break");
    expectAgreement();
}

TEST_F(GameTest, ARejectedDialogPutsEverythingBack) {
    taps("53 44");
    land(2);
    const std::string before = position() + status() + settingsText(game) + request();
    reject({.rules = american,
            .size = eightSquares,
            .level = easy2,
            .players = humans,
            .toggleGiveAway = true});
    EXPECT_EQ(position() + status() + settingsText(game) + request(), before);
    accept({}); // nothing of the change has stayed
    EXPECT_EQ(position() + status() + settingsText(game) + request(), before);
}

TEST_F(GameTest, TheTurnIsHandedOverAgainUnlessASizeWasGivenUp) {
    tap(5, 3);
    reject({.size = eightSquares});
    EXPECT_EQ(marked(MarkNext), "(4,4) (6,4)");
    reject({.level = easy2});
    EXPECT_EQ(marked(MarkNext), "") << "the move half entered is dropped";
}

TEST_F(GameTest, IndicesThatAreNoItemsAreReportedAndReplaced) {
    game.setRules(9);
    EXPECT_EQ(boxes(), "critical: Draughts::setRules: unknown rules, using international [Ok]\n");
    game.setRules(polish);
    game.setRules(-1);
    EXPECT_EQ(boxes(), "critical: Draughts::setRules: unknown rules, using international [Ok]\n");
    EXPECT_STREQ(game.pEngine->className(), "IntEngine");

    game.setBSize(eightSquares);
    game.setBSize(-1);
    EXPECT_EQ(boxes(), "critical: Draughts::setRules: unknown size, using international [Ok]\n");
    game.setBSize(4);
    EXPECT_EQ(boxes(), "critical: Draughts::setRules: unknown size, using international [Ok]\n");
    EXPECT_EQ(shown(), picture(drawn(startOfTen)));

    game.pSettings->cmbLevel->setCurrentIndex(infinite);
    game.setLevel(8);
    EXPECT_EQ(boxes(), "critical: Draughts::setLevel: unknown value, using default [Ok]\n");
    EXPECT_EQ(game.pSettings->cmbLevel->currentIndex(), fiveSeconds);
    EXPECT_EQ(request(), "IntEngine, 5 s, noise 1");
}

TEST_F(GameTest, LevelsAskForWhatTheirNamesSay) {
    const char *const requests[] = {
        "IntEngine, depth 1, noise 1000", "IntEngine, depth 2, noise 400",
        "IntEngine, 2 s, noise 5",        "IntEngine, 5 s, noise 5",
        "IntEngine, 10 s, noise 5",       "IntEngine, 20 s, noise 5",
        "IntEngine, 60 s, noise 5",       "IntEngine, 99999999 s, noise 5"};
    for (int item = infinite; item >= easy1; --item) {
        accept({.level = item});
        EXPECT_EQ(request(), requests[item]);
    }
}

TEST_F(GameTest, SmallerBoardLeavesADeadStripUntilTheNextResize) {
    accept({.size = eightSquares});
    EXPECT_EQ(game.pMetrics->getW(), 230);
    tap(2, 2);
    // Squares are of 28 pixels. By their parity alone (8,6) and (1,-1) would be playing squares.
    for (const QPoint strip : {QPoint(227, 40), QPoint(42, 227)})
        press(game.pView->viewport(), strip);
    EXPECT_EQ(marked(MarkNext), "(1,3) (3,3)");
    game.resize(240, 311);
    QCoreApplication::processEvents();
    EXPECT_EQ(game.pMetrics->getW(), 224);
    expectAgreement();
}

// Black's man can only take backwards, which Americans do not.
TEST_F(GameTest, OtherRulesGoOnWithTheGameAlsoWhenItIsOver) {
    accept({.rules = american, .size = sixSquares});
    place("b ...... ...... .w.... b..... .w.... ..w...");
    EXPECT_EQ(boxes(), gameOverBox);
    EXPECT_EQ(status(), "[Game Over] 3/1 About Settings NewGame");
    accept({.rules = international});
    EXPECT_EQ(status(), "[You Must Capture] 3/1 About Force Settings NewGame");
    press(game.btnForce);
    land();
    EXPECT_EQ(position(), picture(drawn("w ...... ..b... ...... ...... .w.... ..w...")));
}

// White can give its man at once on (3,3), or walk on safely.
TEST_F(GameTest, GiveAwayMakesTheComputerGiveItsPieces) {
    game.setBSize(sixSquares);
    game.setGiveAway(true);
    game.setLevel(easy2);
    game.pStat->scoreNoise = 1;
    place("w .....b ....b. ...... ..w... ...... ......");
    press(game.btnForce);
    land();
    EXPECT_EQ(position(), picture(drawn("b .....b ....b. ...w.. ...... ...... ......")));
}

TEST_F(GameTest, EveryRuleSetPlaysItselfOnEveryBoard) {
    for (const int rules : {polish, american, international}) {
        for (const int size : {twelveSquares, tenSquares, eightSquares, sixSquares}) {
            SCOPED_TRACE(testing::Message() << "rules " << rules << ", size " << size);
            accept({.rules = rules, .size = size, .players = computers});
            land(6);
            EXPECT_EQ(boxes(), "");
            // BREAK in flight: the computer plays once more, then the game is the player's.
            press(game.btnBreak);
            land(2);
            expectAgreement();
            press(game.btnNewGame);
            EXPECT_EQ(boxes(), newGameBox);
        }
    }
}
