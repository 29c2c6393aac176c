// The settings: what each choice does to the game.

#include "tests/rig/gametest.h"

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

TEST_F(GameTest, IndicesThatAreNoItemsAreReportedAndReplaced) {
    for (const int unknown : {-1, 8}) {
        SCOPED_TRACE(unknown);
        game.setRules(polish);
        game.setRules(unknown);
        EXPECT_EQ(boxes(),
                  "critical: Draughts::setRules: unknown rules, using international [Ok]\n");
        EXPECT_STREQ(game.pEngine->className(), "IntEngine");

        game.setBSize(eightSquares);
        game.setBSize(unknown);
        EXPECT_EQ(boxes(),
                  "critical: Draughts::setRules: unknown size, using international [Ok]\n");
        EXPECT_EQ(shown(), picture(drawn(startOfTen)));

        game.pSettings->cmbLevel->setCurrentIndex(infinite);
        game.setLevel(unknown);
        EXPECT_EQ(boxes(), "critical: Draughts::setLevel: unknown value, using default [Ok]\n");
        EXPECT_EQ(game.pSettings->cmbLevel->currentIndex(), fiveSeconds);
        EXPECT_EQ(request(), "IntEngine, 5 s, noise 1");
    }
}

TEST_F(GameTest, LevelsAskForWhatTheirNamesSay) {
    const char *const requests[] = {
        "IntEngine, depth 1, noise 1000", "IntEngine, depth 2, noise 400",
        "IntEngine, 2 s, noise 5",        "IntEngine, 5 s, noise 5",
        "IntEngine, 10 s, noise 5",       "IntEngine, 20 s, noise 5",
        "IntEngine, 60 s, noise 5",       "IntEngine, 99999999 s, noise 5"};
    for (int item = infinite; item >= easy1; --item) {
        game.setLevel(item);
        EXPECT_EQ(request(), requests[item]);
    }
}

TEST_F(GameTest, EveryRuleSetPlaysItselfOnEveryBoard) {
    for (const int rules : {polish, american, international}) {
        for (const int size : {twelveSquares, tenSquares, eightSquares, sixSquares}) {
            SCOPED_TRACE(testing::Message() << "rules " << rules << ", size " << size);
            accept({.rules = rules, .size = size, .players = computers});
            land(6);
            press(game.btnBreak); // the computer plays once more, then the game is the player's
            land(2);
            expectAgreement();
            press(game.btnNewGame);
            EXPECT_EQ(boxes(), newGameBox);
        }
    }
}
