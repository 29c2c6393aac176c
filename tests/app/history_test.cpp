// Stepping through the history of the game.

#include "tests/rig/gametest.h"

#include <QSignalSpy>

TEST_F(GameTest, StepsBackAndForwardWithThePlayersSideFollowing) {
    std::vector<std::string> positions = {position()};
    taps("53 44");
    for (int move = 0; move < 2; ++move) {
        land();
        positions.push_back(picture(*game.pHist->getBoard()));
    }
    for (const std::size_t at : {1U, 0U}) {
        press(game.btnPrev);
        EXPECT_EQ(position(), positions[at]);
        EXPECT_EQ(game.whiteComputer, game.pBoard->whiteToMove ? 0 : 1);
        EXPECT_EQ(game.blackComputer, game.pBoard->whiteToMove ? 1 : 0);
        expectAgreement();
    }
    EXPECT_EQ(status(), "[Your Move] 20/20 Fwd About Force Settings NewGame");
    for (const std::size_t at : {1U, 2U}) {
        tap(5, 3);
        press(game.btnFwd);
        EXPECT_EQ(position(), positions[at]);
        EXPECT_EQ(marked(MarkNext), "") << "the move half entered is dropped";
    }
    EXPECT_FALSE(game.btnFwd->isEnabled());
}

TEST_F(GameTest, NewGameAtTheFirstPositionAsksNothing) {
    place(startOfTen, humans);
    taps("53 44");
    land();
    press(game.btnPrev);
    press(game.btnNewGame);
    EXPECT_EQ(boxes(), "");
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
}

// The last black man is taken; one step back, the computers take it again at once.
TEST_F(GameTest, ComputersPlayOnFromAStepBackAfterTheEnd) {
    game.setBSize(sixSquares);
    place("w ...... ...... ...... ..b... .w.... ......", computers);
    for (int round = 0; round < 2; ++round) {
        land();
        EXPECT_EQ(boxes(), gameOverBox);
        EXPECT_EQ(status(), "[] 1/0 Prev About Settings NewGame") << "hidden by the search";
        press(game.btnPrev);
        ASSERT_TRUE(game.flies());
    }
}

TEST(GameHist, EndsAreTold) {
    gameHist history;
    QSignalSpy noNext(&history, &gameHist::noNext);
    QSignalSpy noPrevious(&history, &gameHist::noPrevious);
    EXPECT_EQ(history.getBoard(), nullptr);
    EXPECT_FALSE(history.prev());
    const board positions[] = {board(6), board(8), board(10)};
    for (const board &position : positions)
        history.insert(&position);
    EXPECT_FALSE(history.next());
    EXPECT_EQ(noNext.count(), 1);
    EXPECT_EQ(noPrevious.count(), 1);
    EXPECT_TRUE(history.prev());
    EXPECT_TRUE(history.canFwd());
    EXPECT_EQ(history.getBoard()->size, 8);
    EXPECT_TRUE(history.prev());
    EXPECT_FALSE(history.canPrev());
    EXPECT_EQ(history.getBoard()->size, 6);
    history.clear();
    EXPECT_EQ(history.getBoard(), nullptr);
    EXPECT_FALSE(history.canFwd());
    EXPECT_EQ(noPrevious.count(), 1);
}
