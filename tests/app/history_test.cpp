// The history of positions, and stepping through the game with it.

#include "tests/app/gamerig.h"

#include <QSignalSpy>

TEST(GameHist, KeepsPositionsAroundACursor) {
    gameHist history;
    QSignalSpy atEnd(&history, &gameHist::noNext);
    QSignalSpy atStart(&history, &gameHist::noPrevious);
    EXPECT_EQ(history.getBoard(), nullptr);
    EXPECT_FALSE(history.prev() || history.next() || history.canPrev() || history.canFwd());
    EXPECT_EQ(atEnd.count() + atStart.count(), 2);

    board b(10);
    for (b.plyCount = 0; b.plyCount < 4; ++b.plyCount)
        history.insert(&b);
    const board *last = history.getBoard();
    EXPECT_EQ(last->plyCount, 3);
    EXPECT_TRUE(history.prev() && history.prev());
    EXPECT_TRUE(history.next() && history.next());
    EXPECT_EQ(history.getBoard(), last) << "copies stay where they are";
    EXPECT_TRUE(history.prev() && history.prev() && history.prev());
    EXPECT_FALSE(history.prev() || history.canPrev());
    EXPECT_EQ(atStart.count(), 2);
    EXPECT_TRUE(history.canFwd() && history.next());

    history.insert(&b);
    EXPECT_EQ(history.getBoard()->plyCount, 4);
    EXPECT_FALSE(history.canFwd() || history.next());
    EXPECT_TRUE(history.prev() && history.prev());
    EXPECT_FALSE(history.canPrev());
    history.clear();
    EXPECT_EQ(history.getBoard(), nullptr);
}

TEST_F(GameTest, StepsBackAndForwardWithThePlayersSideFollowing) {
    std::vector<std::string> positions = {picture(*game.pBoard)};
    game.setLevel(1);
    for (const std::vector<XY> &move : {std::vector<XY>{{5, 3}, {4, 4}}, {{4, 2}, {5, 3}}}) {
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
    game.histPrev();
    EXPECT_EQ(picture(*game.pBoard), positions[0]);
    for (std::size_t at = 1; at <= end; ++at) {
        tap(5, 3);
        press(game.btnFwd);
        EXPECT_EQ(picture(*game.pBoard), positions[at]);
        EXPECT_EQ(marked(MarkNext), "");
    }
    EXPECT_FALSE(game.btnFwd->isEnabled());
    game.histFwd();
    EXPECT_EQ(picture(*game.pBoard), positions[end]);

    // A new move from the start replaces all that followed.
    for (std::size_t at = end; at-- > 0;)
        press(game.btnPrev);
    taps({{1, 3}, {2, 4}});
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
