// The settings: what each choice does to the game, and what a rejected dialog does not.

#include "tests/app/gamerig.h"

#include "app/format1000.h"

#include <QCheckBox>

#include <algorithm>
#include <climits>

TEST_F(GameTest, SettingsAreRejectedOrAcceptedAsAWhole) {
    const auto change = [this](formsettings &dialog) {
        choose(dialog.cmbRules, 1);
        choose(dialog.cmbSize, eightSquares);
        choose(dialog.cmbLevel, 1);
        choose(dialog.cmbPlayers, humans);
        press(dialog.chGiveAway, QPoint(5, dialog.chGiveAway->height() / 2));
    };
    taps("53 44");
    land(2);
    const std::string before = picture(*game.pBoard) + status();
    tap(3, 3);
    settings(QDialogButtonBox::Cancel, change);
    EXPECT_EQ(marked(MarkNext), "") << "the move half entered is dropped";
    EXPECT_EQ(picture(*game.pBoard) + status(), before);
    settings(QDialogButtonBox::Ok); // nothing of the change has stayed
    EXPECT_EQ(picture(*game.pBoard) + status(), before);
    EXPECT_STREQ(game.pEngine->className(), "IntEngine");
    EXPECT_FALSE(game.pSettings->chGiveAway->isChecked() || game.pStat->giveAway);

    settings(QDialogButtonBox::Ok, change);
    EXPECT_EQ(status(), "[Your Move] 12/12 About Force Settings NewGame");
    EXPECT_STREQ(game.pEngine->className(), "AmEngine");
    EXPECT_EQ(game.pStat->getReqDepth(), 2);
    EXPECT_TRUE(game.pStat->giveAway);
    EXPECT_EQ(game.whiteComputer + game.blackComputer, 0);
    expectAgreement();
}

TEST_F(GameTest, SmallerBoardLeavesADeadStripUntilTheNextResize) {
    settings(QDialogButtonBox::Ok,
             [](formsettings &dialog) { choose(dialog.cmbSize, eightSquares); });
    EXPECT_EQ(game.pMetrics->getW(), 230);
    tap(2, 2);
    for (const QPoint strip : {QPoint(228, 14), QPoint(14, 228)}) // squares are of 28 pixels
        press(game.pView->viewport(), strip);
    EXPECT_EQ(marked(MarkNext), "(1,3) (3,3)");
    tap(3, 3);
    land(2);
    expectAgreement();
    game.resize(240, 311);
    QTest::qWait(20);
    EXPECT_EQ(game.pMetrics->getW(), 224);
    EXPECT_EQ(game.pView->x(), (240 - game.pView->width()) / 2);
    expectAgreement();
}

// Black's man can only take backwards, which Americans do not.
TEST_F(GameTest, OtherRulesGoOnWithTheGameAlsoWhenItIsOver) {
    settings(QDialogButtonBox::Ok, [](formsettings &dialog) {
        choose(dialog.cmbRules, 1);
        choose(dialog.cmbSize, sixSquares);
    });
    place("b ...... ...... .w.... b..... .w.... ..w...");
    EXPECT_EQ(boxes(), "Game Over: Game Over; ");
    EXPECT_EQ(status(), "[Game Over] 3/1 About Settings NewGame");
    settings(QDialogButtonBox::Ok, [](formsettings &dialog) { choose(dialog.cmbRules, 0); });
    EXPECT_EQ(status(), "[You Must Capture] 3/1 About Force Settings NewGame");
    press(game.btnForce);
    land();
    EXPECT_EQ(picture(*game.pBoard), picture(drawn("w ...... ..b... ...... ...... .w.... ..w...")));
}

TEST_F(GameTest, LevelsAskForWhatTheirNamesSay) {
    constexpr struct {
        int depth, seconds, noise;
    } levels[] = {{1, -1, 1000}, {2, -1, 400}, {-1, 2, 5},  {-1, 5, 5},
                  {-1, 10, 5},   {-1, 20, 5},  {-1, 60, 5}, {-1, 99999999, 5}};
    for (int i = 7; i >= 0; --i) {
        settings(QDialogButtonBox::Ok, [i](formsettings &dialog) { choose(dialog.cmbLevel, i); });
        EXPECT_EQ(game.pStat->getReqDepth(), levels[i].depth) << i;
        EXPECT_EQ(game.pStat->getReqTime(), levels[i].seconds) << i;
        EXPECT_EQ(game.pStat->scoreNoise, levels[i].noise) << i;
        if (i > 3)
            continue;
        const qint64 begin = host.clockMs();
        press(game.btnForce);
        EXPECT_LT(host.clockMs() - begin, 4000 * std::max(1, levels[i].seconds)) << i;
        land();
    }
}

// White can give its man at once on (3,3), or walk on safely.
TEST_F(GameTest, GiveAwayMakesTheComputerGiveItsPieces) {
    game.setBSize(sixSquares);
    game.setGiveAway(true);
    game.setLevel(1);
    game.pStat->scoreNoise = 1;
    place("w .....b ....b. ...... ..w... ...... ......");
    press(game.btnForce);
    land();
    EXPECT_EQ(picture(*game.pBoard), picture(drawn("b .....b ....b. ...w.. ...... ...... ......")));
}

TEST_F(GameTest, EveryRuleSetPlaysItselfOnEveryBoard) {
    for (const int rules : {2, 1, 0}) {
        for (const int size : {3, 2, 1, 0}) {
            SCOPED_TRACE(testing::Message() << "rules " << rules << ", size " << size);
            settings(QDialogButtonBox::Ok, [=](formsettings &dialog) {
                choose(dialog.cmbRules, rules);
                choose(dialog.cmbSize, size);
                choose(dialog.cmbPlayers, computers);
            });
            land(10);
            EXPECT_EQ(boxes(), "");
            // BREAK in flight: the computer plays once more, then the game is the player's.
            press(game.btnBreak);
            land(2);
            expectAgreement();
            press(game.btnNewGame);
            EXPECT_EQ(boxes(), "confirm: confirm NewGame; ");
        }
    }
}

TEST(Format1000, GroupsThreeDigits) {
    EXPECT_EQ(format1000(-5), "-005 ");
    EXPECT_EQ(format1000(1234567), "001 234 567 ");
    EXPECT_EQ(format1000(INT_MIN), "-002 147 483 648 ");
}
