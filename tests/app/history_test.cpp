// Stepping through the history of the game.

#include "tests/app/gamerig.h"

TEST_F(GameTest, StepsBackAndForwardWithThePlayersSideFollowing) {
    std::vector<std::string> positions = {picture(*game.pBoard)};
    taps("53 44");
    for (int move = 0; move < 2; ++move) {
        land();
        positions.push_back(picture(*game.pHist->getBoard()));
    }
    for (const std::size_t at : {1U, 0U}) {
        press(game.btnPrev);
        EXPECT_EQ(picture(*game.pBoard), positions[at]);
        EXPECT_EQ(game.blackComputer, game.pBoard->whiteToMove);
        EXPECT_NE(game.whiteComputer, game.blackComputer);
        expectAgreement();
    }
    EXPECT_EQ(status(), "[Your Move] 20/20 Fwd About Force Settings NewGame");
    for (const std::size_t at : {1U, 2U}) {
        tap(5, 3);
        press(game.btnFwd);
        EXPECT_EQ(picture(*game.pBoard), positions[at]);
        EXPECT_EQ(marked(MarkNext), "");
    }
    EXPECT_FALSE(game.btnFwd->isEnabled());

    // A new move from the start replaces all that followed.
    press(game.btnPrev);
    press(game.btnPrev);
    taps("13 24");
    land(2);
    EXPECT_FALSE(game.btnFwd->isEnabled());
    press(game.btnPrev);
    press(game.btnPrev);
    EXPECT_EQ(picture(*game.pBoard), positions[0]);
    press(game.btnFwd);
    EXPECT_EQ(game.pBoard->squares[2][4] & codePiece, 5);
}

// The last black man is taken; one step back, the computers take it again at once.
TEST_F(GameTest, ComputersPlayOnFromAStepBackAfterTheEnd) {
    game.setBSize(sixSquares);
    place("w ...... ...... ...... ..b... .w.... ......", computers);
    for (int round = 0; round < 2; ++round) {
        land();
        EXPECT_EQ(boxes(), "Game Over: Game Over; ");
        EXPECT_EQ(status(), "[] 1/0 Prev About Settings NewGame") << "hidden by the search";
        press(game.btnPrev);
        ASSERT_TRUE(game.flying());
    }
}
