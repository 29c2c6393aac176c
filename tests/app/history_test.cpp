// Stepping through the history of the game.

#include "tests/rig/gametest.h"

#include <QSignalSpy>

TEST_F(GameTest, NewGameAtTheFirstPositionAsksNothing) {
    place(startOfTen, humans);
    taps("53 44");
    land();
    press(game.btnPrev);
    game.pStat->timeCredit = 5000;
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "");
    EXPECT_EQ(game.pStat->timeCredit, 0) << "the time saved is forgotten";
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
}

TEST(GameHist, APositionReplacesThoseThatFollowedTheCurrentOne) {
    gameHist history;
    for (const board &position : {board(6), board(8), board(10)})
        history.insert(&position);
    history.prev();
    history.prev();
    const board other(12);
    history.insert(&other);
    EXPECT_FALSE(history.canFwd());
    EXPECT_TRUE(history.prev());
    EXPECT_EQ(history.getBoard()->size, 6);
}

TEST(GameHist, EndsAreTold) {
    gameHist history;
    QSignalSpy noNext(&history, &gameHist::noNext);
    QSignalSpy noPrevious(&history, &gameHist::noPrevious);
    EXPECT_EQ(history.getBoard(), nullptr);
    EXPECT_FALSE(history.prev());
    EXPECT_EQ(noPrevious.count(), 1);
    for (const board &position : {board(6), board(8)})
        history.insert(&position);
    EXPECT_FALSE(history.next());
    EXPECT_EQ(noNext.count(), 1);
    EXPECT_TRUE(history.prev());
    EXPECT_TRUE(history.canFwd());
    EXPECT_FALSE(history.canPrev());
    EXPECT_EQ(history.getBoard()->size, 6);
    history.clear();
    EXPECT_EQ(history.getBoard(), nullptr);
    EXPECT_FALSE(history.canFwd());
}
