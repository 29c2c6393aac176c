// Sprites and marks on the board, the editing of positions, and the window's layout.

#include "tests/rig/gametest.h"

#include "app/format1000.h"

#include <algorithm>
#include <climits>
#include <set>

namespace {

const std::string hiddenBox = "warning: Draughts::testPieces: visible==captured [Ok]\n";
const std::string misplacedBox = "warning: Draughts::testPieces: (bx!=dstBX) || (by!=dstBY) [Ok]\n";

} // namespace

class PiecesTest : public GameTest {
protected:
    std::set<const DrCanvasPiece *> sprites() const {
        std::set<const DrCanvasPiece *> all(game.trash.begin(), game.trash.end());
        for (const auto &column : game.pieces)
            all.insert(std::begin(column), std::end(column));
        all.erase(nullptr);
        return all;
    }
};

TEST_F(PiecesTest, SpritesAreReused) {
    place(startOfTen, humans);
    const std::set<const DrCanvasPiece *> first = sprites();
    EXPECT_EQ(first.size(), 40U);
    taps("53 44");
    land();
    game.trashPiece(0, 0);
    EXPECT_EQ(letterOf(game.pBoard->squares[0][0]), '.');
    EXPECT_EQ(game.trash.size(), 1U);
    EXPECT_FALSE(game.trash.front()->visible());
    press(game.btnPrev);
    EXPECT_EQ(sprites(), first);
    EXPECT_TRUE(game.trash.empty());
    game.trashAllPieces();
    EXPECT_EQ(game.trash.size(), 40U);
    EXPECT_EQ(game.fromTrash()->boundingRect().size(), QSize(23, 23));
    EXPECT_EQ(game.trash.size(), 39U) << "the last one put there is taken first";
}

TEST_F(PiecesTest, ThePoolGoesWithItsCanvas) {
    game.trashPiece(0, 0);
    game.setBSize(eightSquares);
    EXPECT_TRUE(game.trash.empty());
    EXPECT_EQ(sprites().size(), 24U);
    EXPECT_EQ(game.pieces[0][0]->boundingRect(), QRect(0, 7 * 28, 28, 28));
    EXPECT_NE(game.fromTrash(), nullptr);
}

TEST_F(PiecesTest, SpritesOutOfStepAreReported) {
    game.testPieces();
    EXPECT_EQ(boxes(), "");
    game.pieces[5][3]->hide();
    game.testPieces();
    EXPECT_EQ(boxes(), hiddenBox);
    game.pBoard->squares[5][3] |= codeTaken;
    game.testPieces();
    EXPECT_EQ(boxes(), "");
    game.pieces[5][3]->show();
    game.testPieces();
    EXPECT_EQ(boxes(), hiddenBox);
    game.pBoard->squares[5][3] = whiteMan;
    game.pieces[5][3]->setBoardPos(5, 5);
    game.testPieces();
    EXPECT_EQ(boxes(), misplacedBox);
    game.pieces[5][3]->setBoardPos(6, 3);
    game.DoPlayerMove(); // with white to move
    EXPECT_EQ(boxes(), misplacedBox);
    game.pBoard->whiteToMove = false;
    game.blackComputer = 0;
    game.DoPlayerMove();
    EXPECT_EQ(boxes(), "");
}

TEST_F(PiecesTest, NoMoveIsNotAnimated) {
    tap(5, 3);
    game.AnimateLegalMove(nullptr);
    EXPECT_EQ(boxes(), "warning: AnimateLegalMove: no move given [Ok]\n");
    EXPECT_EQ(marked(MarkNext), "");
    EXPECT_FALSE(game.flies());
    EXPECT_EQ(status(), "[Your Move] 20/20 About Force Settings NewGame");
}

TEST_F(PiecesTest, SquaresAreEditedInACycle) {
    const char *const cycle = "wbWB.w";
    game.setPosXY(4, 4, true);
    for (const char *letter = cycle; *letter != '\0'; ++letter) {
        game.setPosXY(4, 4, false);
        const std::string row = shown().substr(2 + 5 * 11, 10);
        EXPECT_EQ(row, std::string("....") + *letter + ".....");
    }
    game.pBoard->squares[4][4] |= codeCanMove;
    game.setPosXY(4, 4, false);
    EXPECT_EQ(letterOf(game.pBoard->squares[4][4]), 'b') << "the mark does not count";
    game.setPosXY(4, 4, true);
    game.setPosXY(3, 4, false);  // a light square
    game.setPosXY(10, 0, false); // beyond the board
    game.DoPlayerMove();
    EXPECT_EQ(shown(), picture(drawn(startOfTen)));
    expectAgreement();
}

TEST_F(PiecesTest, OnlyCodesOfPiecesAreInTheCycle) {
    const struct {
        int code, next;
    } cases[] = {{.code = 0, .next = 5},  {.code = 5, .next = 9},  {.code = 9, .next = 6},
                 {.code = 6, .next = 10}, {.code = 10, .next = 0}, {.code = 3, .next = 0},
                 {.code = 21, .next = 0}};
    for (const auto &c : cases)
        EXPECT_EQ(game.nextPieceType(c.code), c.next) << c.code;
}

TEST_F(PiecesTest, ThePathOfTheMoveIsMarked) {
    place(startOfTen, humans);
    game.markLastMove();
    EXPECT_EQ(marked(MarkPath), "");
    taps("53 44");
    EXPECT_EQ(marked(MarkPath), "(5,3)") << "as far as it has flown";
    game.markLastMove();
    EXPECT_EQ(marked(MarkPath), "(4,4) (5,3)");
    land();
    game.markSquares(7);
    EXPECT_EQ(marked(MarkPath), "(4,4) (5,3)") << "no such kind";
    game.markSquares(0);
    EXPECT_EQ(marked(MarkPath), "");
}

TEST_F(PiecesTest, OwnersOfTheSquaresAreShown) {
    game.markTakenField();
    EXPECT_EQ(squareColour(1, 1), QColor(108, 128, 108));
    EXPECT_EQ(squareColour(1, 9), QColor(128, 108, 108));
}

TEST_F(PiecesTest, TheBoardKeepsItsSizeAndTheMiddleOfTheWindow) {
    EXPECT_EQ(game.pView->geometry(), QRect(4, 0, 232, 232)) << "a frame of one pixel";
    EXPECT_EQ(game.pMetrics->getW(), 230);
    EXPECT_EQ(game.pMetrics->getH(), 230);
    game.setMinimumSize(0, 0);
    game.setMaximumSize(1000, 1000);
    game.resize(400, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(game.size(), QSize(400, 300));
    EXPECT_EQ(game.pMetrics->getW(), 230);
    EXPECT_EQ(game.pView->geometry(), QRect(84, 0, 232, 232));
    expectAgreement();
    accept({.size = twelveSquares});
    EXPECT_EQ(game.pView->geometry(), QRect(84, 0, 232, 232));
}

TEST(Format1000, GroupsThreeDigits) {
    const struct {
        int number;
        const char *text;
    } cases[] = {{.number = 0, .text = ""},
                 {.number = 999, .text = "999 "},
                 {.number = 1000, .text = "001 000 "},
                 {.number = 1234567, .text = "001 234 567 "},
                 {.number = -5, .text = "-005 "},
                 {.number = -1000, .text = "-001 000 "},
                 {.number = INT_MIN, .text = "-002 147 483 648 "}};
    for (const auto &c : cases)
        EXPECT_EQ(format1000(c.number).toStdString(), c.text);
}
