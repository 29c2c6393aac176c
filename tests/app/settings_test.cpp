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
