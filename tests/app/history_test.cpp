// Stepping through the history of the game.

#include "tests/app/gamerig.h"

#include <QSignalSpy>

TEST_F(GameTest, StepsBackAndForwardWithThePlayersSideFollowing) {
    std::vector<std::string> positions = {picture(*game.pBoard)};
    game.setLevel(1);
    for (const char *move : {"53 44", "42 53"}) {
        if (game.lblThinking->text() != QLatin1String("Your Move"))
            break;
        taps(move);
        land();
        positions.push_back(picture(*game.pHist->getBoard()));
        land();
        positions.push_back(picture(*game.pBoard));
    }
    const std::size_t end = positions.size() - 1;
    ASSERT_GE(end, 2U);
    for (std::size_t at = end; at-- > 0;) {
        press(game.btnPrev);
        EXPECT_EQ(picture(*game.pBoard), positions[at]);
        EXPECT_EQ(game.blackComputer, game.pBoard->whiteToMove);
        EXPECT_NE(game.whiteComputer, game.blackComputer);
        expectAgreement();
    }
    EXPECT_EQ(status(), "[Your Move] 20/20 Fwd About Force Settings NewGame");
    QSignalSpy atStart(game.pHist.get(), &gameHist::noPrevious);
    game.histPrev();
    EXPECT_EQ(atStart.count(), 1);
    EXPECT_EQ(picture(*game.pBoard), positions[0]);
    for (std::size_t at = 1; at <= end; ++at) {
        tap(5, 3);
        press(game.btnFwd);
        EXPECT_EQ(picture(*game.pBoard), positions[at]);
        EXPECT_EQ(marked(MarkNext), "");
    }
    EXPECT_FALSE(game.btnFwd->isEnabled());
    QSignalSpy atEnd(game.pHist.get(), &gameHist::noNext);
    game.histFwd();
    EXPECT_EQ(atEnd.count(), 1);
    EXPECT_EQ(picture(*game.pBoard), positions[end]);

    // A new move from the start replaces all that followed.
    for (std::size_t at = end; at-- > 0;)
        press(game.btnPrev);
    taps("13 24");
    land(2);
    EXPECT_FALSE(game.btnFwd->isEnabled());
    press(game.btnPrev);
    press(game.btnPrev);
    EXPECT_EQ(picture(*game.pBoard), positions[0]);
    press(game.btnPrev);
    EXPECT_FALSE(game.btnPrev->isEnabled());
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
        ASSERT_TRUE(game.flying);
    }
    land();
    boxes();
}
