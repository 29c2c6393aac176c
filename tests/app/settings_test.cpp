// The settings: what each choice does to the game.

#include "tests/rig/gametest.h"

// The new size starts a game at once, by the new rules and at the new level.
TEST_F(GameTest, ComputersOnBothSidesBeginWithAllOfTheNewSettings) {
    std::string firstRequest;
    duringSearch([&] {
        firstRequest = request();
        AbstractEngine::breakThinking = true;
    });
    formsettings &dialog = *game.pSettings;
    const auto choose = [&dialog, this] {
        const std::pair<QComboBox *, int> choices[] = {{dialog.cmbRules, polish},
                                                       {dialog.cmbSize, sixSquares},
                                                       {dialog.cmbLevel, infinite},
                                                       {dialog.cmbPlayers, computers}};
        for (const auto &[chooser, item] : choices) {
            while (chooser->currentIndex() != item)
                Hand::turnWheel(chooser, item < chooser->currentIndex());
        }
        press(dialog.chGiveAway, QPoint(5, dialog.chGiveAway->height() / 2));
        Hand::type(&dialog, Qt::Key_Return);
    };
    const auto open = [this] { press(game.btnSettings); };
    whileOpen(&dialog, open, choose);
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
