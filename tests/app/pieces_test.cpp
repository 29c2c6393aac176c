// Sprites and marks on the board, the editing of positions, and the window's layout.

#include "tests/rig/gametest.h"

#include "app/format1000.h"

#include <climits>

TEST_F(GameTest, SpritesOutOfStepAreReported) {
    const std::string hiddenBox = "warning: Draughts::testPieces: visible==captured [Ok]\n";
    const std::string misplacedBox =
        "warning: Draughts::testPieces: (bx!=dstBX) || (by!=dstBY) [Ok]\n";
    constexpr unsigned char takenMan = whiteMan | codeTaken;
    const struct {
        const char *what;
        unsigned char code = whiteMan;
        bool visible = true;
        int column = 5, row = 3;
        std::string box = {};
    } cases[] = {
        {.what = "in step"},
        {.what = "hidden", .visible = false, .box = hiddenBox},
        {.what = "taken and hidden", .code = takenMan, .visible = false},
        {.what = "taken, to be seen", .code = takenMan, .box = hiddenBox},
        {.what = "in another row", .row = 5, .box = misplacedBox},
        {.what = "in another column", .column = 6, .box = misplacedBox},
    };
    for (const auto &c : cases) {
        game.pBoard->squares[5][3] = c.code;
        game.pieces[5][3]->setBoardPos(c.column, c.row);
        game.pieces[5][3]->setVisible(c.visible);
        game.DoPlayerMove();
        EXPECT_EQ(boxes(), c.box) << c.what;
    }
    game.pBoard->whiteToMove = false;
    game.blackComputer = 0;
    game.DoPlayerMove();
    EXPECT_EQ(boxes(), "") << "looked at before White's moves only";
}

TEST_F(GameTest, NoMoveIsNotAnimated) {
    tap(5, 3);
    game.AnimateLegalMove(nullptr);
    EXPECT_EQ(boxes(), "warning: AnimateLegalMove: no move given [Ok]\n");
    EXPECT_EQ(marked(MarkNext), "");
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
}

TEST_F(GameTest, SquaresAreEditedInACycle) {
    const struct {
        int code, next;
    } cases[] = {{.code = 0, .next = whiteMan},
                 {.code = whiteMan, .next = blackMan},
                 {.code = blackMan, .next = whiteKing},
                 {.code = whiteKing, .next = blackKing},
                 {.code = blackKing, .next = 0},
                 {.code = whiteMan | codeCanMove, .next = blackMan},
                 {.code = whiteMan | codeTaken, .next = 0},
                 {.code = 3, .next = 0}};
    for (const auto &c : cases) {
        game.pBoard->squares[4][4] = static_cast<unsigned char>(c.code);
        game.setPosXY(4, 4, false);
        EXPECT_EQ(game.pBoard->squares[4][4], c.next) << c.code;
        EXPECT_EQ(shown(), picture(*game.pBoard)) << c.code;
    }
}

TEST_F(GameTest, SquaresAreEmptiedAndOthersAreNotEdited) {
    game.setPosXY(0, 0, true);
    game.setPosXY(3, 4, false);  // a light square
    game.setPosXY(10, 0, false); // beyond the board
    board expected = drawn(startOfTen);
    expected.squares[0][0] = 0;
    EXPECT_EQ(shown(), picture(expected));
}

TEST_F(GameTest, OwnersOfTheSquaresAreShown) {
    game.markTakenField();
    EXPECT_EQ(squareColour(1, 1), QColor(108, 128, 108));
    EXPECT_EQ(squareColour(1, 9), QColor(128, 108, 108));
}

TEST_F(GameTest, TheBoardKeepsItsSizeAndTheMiddleOfTheWindow) {
    EXPECT_EQ(game.pView->geometry(), QRect(4, 0, 232, 232)) << "a frame of one pixel";
    game.setMinimumSize(0, 0);
    game.setMaximumSize(1000, 1000);
    game.resize(400, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(game.size(), QSize(400, 300));
    EXPECT_EQ(game.pMetrics->getW(), 230);
    EXPECT_EQ(game.pView->geometry(), QRect(84, 0, 232, 232));
}

// A tiling desktop keeps to no size limits.
TEST_F(GameTest, TheWholeFormLiesInTheMiddleOfALargerWindow) {
    game.btnBreak->show();
    game.setMaximumSize(1000, 1000);
    const QRegion built = game.childrenRegion();
    game.resize(640, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(game.childrenRegion(), built.translated(200, 90));
    game.resize(240, 310);
    QCoreApplication::processEvents();
    EXPECT_EQ(game.childrenRegion(), built);
}

TEST(Format1000, GroupsThreeDigits) {
    const struct {
        int number;
        const char *text;
    } cases[] = {{.number = 0, .text = ""},
                 {.number = 999, .text = "999 "},
                 {.number = 1000, .text = "001 000 "},
                 {.number = -5, .text = "-005 "},
                 {.number = INT_MIN, .text = "-002 147 483 648 "}};
    for (const auto &c : cases)
        EXPECT_EQ(format1000(c.number).toStdString(), c.text);
}
