// Positions and moves as records, and their text forms.

#include "tests/support/drawnboard.h"

#include <QTextStream>

#include <gtest/gtest.h>

namespace {

std::string textOf(const board &b) {
    QString text;
    QTextStream stream(&text);
    EXPECT_TRUE(b.toStream(stream));
    stream.flush();
    return text.toStdString();
}

// Reads a line into `b`; what that printed on standard output.
std::string read(board &b, const std::string &line) {
    QString text = QString::fromStdString(line);
    QTextStream stream(&text);
    testing::internal::CaptureStdout();
    EXPECT_TRUE(b.fromStream(stream));
    return testing::internal::GetCapturedStdout();
}

TEST(Board, TheSmallestStartPosition) {
    EXPECT_EQ(picture(board(6)), "w\n.b.b.b\nb.b.b.\n......\n......\n.w.w.w\nw.w.w.\n");
}

// Few pieces are left from five eighths of them on.
TEST(Board, StartPositions) {
    constexpr struct {
        int size, pieces, gambit;
    } cases[] = {{6, 12, 7}, {8, 24, 15}, {10, 40, 25}, {12, 60, 37}};
    for (const auto &c : cases) {
        board b(c.size);
        EXPECT_EQ(b.StaringNumber(), c.pieces);
        int white = -1, black = -1;
        b.countPieces(white, black);
        EXPECT_EQ(white, c.pieces / 2);
        EXPECT_EQ(black, c.pieces / 2);
        for (int i = 0, left = c.pieces; i < c.size * c.size; ++i) {
            EXPECT_EQ(b.isGambit(), left <= c.gambit) << c.size << ", pieces left " << left;
            left -= b.squares[i / c.size][i % c.size] != 0;
            b.squares[i / c.size][i % c.size] = 0;
        }
    }
}

// With black to move the key of an empty board is 0, and a piece's code is shifted once for every
// square after its own: (11,11) is the last of 144. A bit that comes to the top adds 1.
TEST(Board, Keys) {
    EXPECT_EQ(board(10).HKey(), 3499457097U);
    constexpr struct {
        const char *name;
        XY square;
        int code;
        unsigned key;
    } cases[] = {{"on the last square", {11, 11}, blackMan, 9},
                 {"two squares before", {11, 9}, blackMan, 36},
                 {"a column before", {10, 10}, blackMan, 9U << 13},
                 {"a bit at the top", {9, 7}, blackMan, (9U << 28) + 1},
                 {"marks do not count", {11, 11}, blackMan | codeTaken | codeCanMove, 9}};
    for (const auto &c : cases) {
        board b(12);
        b.clear();
        b.whiteToMove = false;
        b.Get(c.square) = static_cast<unsigned char>(c.code);
        EXPECT_EQ(b.HKey(), c.key) << c.name;
    }
}

TEST(Board, TextForm) {
    board b = drawn("b .....B ...... ...... W..... .b.... w.....");
    b.squares[0][0] |= codeCanMove;
    b.squares[1][1] |= codeTaken;
    b.plyCount = 7;
    b.hashScore = -250;
    b.hashHorizon = 12;
    const std::string text = textOf(b);
    EXPECT_EQ(text.substr(text.rfind(' ') + 1), "wm--wK--------bm" + std::string(54, '-') + "bK\n");

    board copy(6);
    EXPECT_EQ(read(copy, text), "");
    EXPECT_EQ(picture(copy), picture(b)) << "odd ply: black to move";
    EXPECT_EQ(textOf(copy), text);
    EXPECT_EQ(read(b, "6 2 99 0 -1 " + std::string(70, '-') + "wK"), "zle \n") << "wrong key";
    EXPECT_EQ(picture(b), "w\n.....W\n......\n......\n......\n......\n......\n");
}

TEST(LegalMove, SquaresEnteredSoFar) {
    LegalMove m({1, 1}, {3, 3});
    m.insPath({5, 1}, 2);
    QArray<XY> part;
    XY next;
    for (const XY square : {XY(1, 1), XY(3, 3), XY(5, 1)}) {
        EXPECT_EQ(m.comparePart(&part, next), 1) << "a part";
        EXPECT_EQ(next, square);
        part.append(square);
    }
    EXPECT_EQ(m.comparePart(&part, next), 2) << "all";
    m.insPath({4, 4}, 1);
    EXPECT_EQ(moveText(m), "(1,1)-(4,4)") << "writing a square cuts the rest";
    EXPECT_EQ(m.comparePart(&part, next), 0) << "too much";
    part.resize(2);
    EXPECT_EQ(m.comparePart(&part, next), 0) << "another square";
}

} // namespace
