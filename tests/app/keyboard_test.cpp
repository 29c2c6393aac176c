// The game played by keys.

#include "tests/rig/gametest.h"

// Each time the next piece that can move, and the first square that is offered.
TEST_F(GameTest, AWholeGameIsPlayedByKeysAlone) {
    game.setBSize(eightSquares);
    for (int turn = 0; turn < 200 && game.phase() == Draughts::Phase::Waiting; ++turn) {
        EXPECT_EQ(game.focusWidget(), game.pView) << "where it was before the last move";
        keys(game, {Qt::Key_N, Qt::Key_Return});
        for (int landing = 0; landing < 20 && !game.flies(); ++landing) {
            const std::string offered = marked(MarkNext); // "(2,4) (4,4)"
            QTest::keyClicks(game.pView, squareName({offered.at(1) - '0', offered.at(3) - '0'}));
            keys(game, {Qt::Key_Space});
        }
        while (game.flies())
            game.pCanvas->advance();
    }
    EXPECT_EQ(boxes(), "warning of the window: Game Over: Game Over [Ok]\n") << position();
}

TEST_F(GameTest, TheKeyNGoesRoundThePiecesThatCanMove) {
    keys(game, {Qt::Key_N});
    EXPECT_EQ(squareName(game.pView->cursorSquare()).toStdString(), "b4");
    QTest::keyClick(game.pView, Qt::Key_N, Qt::ShiftModifier);
    EXPECT_EQ(squareName(game.pView->cursorSquare()).toStdString(), "j4");
}

TEST_F(GameTest, ButtonsHaveKeys) {
    place(startOfTen);
    taps("13 04");
    land();
    QTest::keyClick(&game, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(status(), "[Your Move] 20/20 Fwd About Force Settings NewGame");
    QTest::keyClick(&game, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(status(), "[Your Move] 20/20 Prev About Force Settings NewGame");
    QTest::keyClick(&game, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(boxes(), "warning of the window: confirm: confirm NewGame [Ok Cancel]\n");
    QTest::keyClick(&game, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(game.isVisible());
}

TEST_F(GameTest, WhileTheComputerThinksKeysAreRefusedAsButtonsAre) {
    duringSearch([this] {
        const std::string before = status();
        keys(game, {Qt::Key_Return, Qt::Key_Space, Qt::Key_F1});
        QTest::keyClick(&game, Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(status(), before);
        keys(game, {Qt::Key_Escape});
    });
    game.setLevel(infinite);
    place(startOfTen, computers);
}

TEST_F(GameTest, EscapeGivesUpTheMoveThatIsBegun) {
    tap(1, 3);
    EXPECT_EQ(marked(MarkNext), "(0,4) (2,4)");
    keys(game, {Qt::Key_Escape});
    EXPECT_EQ(marked(MarkNext), "");
    tap(0, 4);
    EXPECT_EQ(game.phase(), Draughts::Phase::Waiting);
}

// The window brings the focus to the board, but not by key.
TEST_F(GameTest, TheCursorIsSeenByThoseWhoUseKeysOnly) {
    const QImage untouched = game.grab().toImage();
    QTest::keyClicks(game.pView, "b6");
    EXPECT_EQ(squareColour(1, 5), Qt::yellow);
    tap(2, 4); // takes the cursor along
    EXPECT_EQ(game.grab().toImage(), untouched);
    keys(game, {Qt::Key_Tab, Qt::Key_Backtab});
    EXPECT_EQ(squareColour(2, 4), Qt::yellow);
}
