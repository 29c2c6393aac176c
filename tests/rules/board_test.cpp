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

TEST(Board, StartPositions) {
    constexpr struct {
        int size, pieces, gambit;
    } cases[] = {{6, 12, 7}, {8, 24, 15}, {10, 40, 25}, {12, 60, 37}};
    for (const auto &c : cases) {
        board b(12);
        b.hashScore = 5;
        b.plyCount = 3;
        b.startPos(c.size);
        EXPECT_EQ(b.hashScore, 5) << "the search record is left alone";
        EXPECT_EQ(b.plyCount, 0);
        EXPECT_EQ(b.StaringNumber(), c.pieces);
        int white = -1, black = -1;
        b.countPieces(white, black);
        EXPECT_EQ(white, c.pieces / 2);
        EXPECT_EQ(black, c.pieces / 2);
        // Taking the pieces off one by one, few are left from five eighths of them on.
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
    const struct {
        const char *name;
        std::vector<std::pair<XY, int>> pieces;
        unsigned key;
    } cases[] = {{"empty", {}, 0},
                 {"on the last square", {{{11, 11}, blackMan}}, 9},
                 {"two squares before", {{{11, 9}, blackMan}}, 36},
                 {"both, exclusively or", {{{11, 9}, blackMan}, {{11, 11}, whiteKing}}, 34},
                 {"a column before", {{{10, 10}, blackMan}}, 9U << 13},
                 {"a bit at the top", {{{9, 7}, blackMan}}, (9U << 28) + 1},
                 {"and beyond", {{{9, 5}, blackMan}}, (1U << 30) + (1U << 2)},
                 {"marks do not count", {{{11, 11}, blackMan | codeTaken | codeCanMove}}, 9}};
    for (const auto &c : cases) {
        board b(12);
        b.clear();
        b.whiteToMove = false;
        for (const auto &[square, code] : c.pieces)
            b.Get(square) = static_cast<unsigned char>(code);
        EXPECT_EQ(b.HKey(), c.key) << c.name;
        b.whiteToMove = true;
        EXPECT_NE(b.HKey(), c.key) << c.name;
    }
}

TEST(Board, TextForm) {
    board b(6);
    b.clear();
    EXPECT_EQ(textOf(b), "6 0 1048576 0 -1 " + std::string(72, '-') + "\n");
    b = drawn("b .....B ...... ...... W..... .b.... w.....");
    b.squares[0][0] |= codeCanMove;
    b.squares[1][1] |= codeTaken;
    b.plyCount = 7;
    b.hashScore = -250;
    b.hashHorizon = 12;
    const std::string text = textOf(b);
    EXPECT_EQ(text.substr(text.rfind(' ') + 1), "wm--wK--------bm" + std::string(54, '-') + "bK\n");

    board copy(6);
    EXPECT_EQ(read(copy, text), "");
    EXPECT_EQ(picture(copy), picture(b)); // odd ply: black to move
    EXPECT_EQ(copy.plyCount, 7);
    EXPECT_EQ(copy.hashScore, -250);
    EXPECT_EQ(copy.hashHorizon, 12);
    EXPECT_EQ(read(b, "6 2 99 0 -1 " + std::string(70, '-') + "wK"), "zle \n") << "wrong key";
    EXPECT_EQ(picture(b), "w\n.....W\n......\n......\n......\n......\n......\n");
}

LegalMove twoJumps() {
    LegalMove m({1, 1}, {3, 3});
    m.insTaken({2, 2}, 0);
    m.insPath({5, 1}, 2);
    m.insTaken({4, 2}, 1);
    return m;
}

TEST(LegalMove, SquaresEntered) {
    const LegalMove m = twoJumps();
    const struct {
        const char *name;
        std::vector<XY> part;
        int match;
        XY next;
    } cases[] = {{"nothing yet", {}, 1, {1, 1}},
                 {"the start", {{1, 1}}, 1, {3, 3}},
                 {"on the way", {{1, 1}, {3, 3}}, 1, {5, 1}},
                 {"all", {{1, 1}, {3, 3}, {5, 1}}, 2, {-1, -1}},
                 {"too much", {{1, 1}, {3, 3}, {5, 1}, {7, 3}}, 0, {-1, -1}},
                 {"another row", {{1, 1}, {3, 1}}, 0, {-1, -1}},
                 {"another column", {{3, 1}}, 0, {-1, -1}}};
    for (const auto &c : cases) {
        QArray<XY> part;
        for (const XY &square : c.part)
            part.append(square);
        XY next(-1, -1);
        EXPECT_EQ(m.comparePart(&part, next), c.match) << c.name;
        EXPECT_EQ(next, c.next) << c.name;
    }
}

TEST(LegalMove, WritingASquareCutsTheRest) {
    LegalMove m = twoJumps();
    const LegalMove copy = m;
    m.insPath({4, 4}, 1);
    EXPECT_EQ(moveText(m), "(1,1)x(4,4)");
    EXPECT_EQ(moveText(copy), "(1,1)x(3,3)x(5,1)");
    QString notation;
    copy.ToString(notation);
    EXPECT_EQ(notation.toStdString(), "(1,1)->(5,1)");
}

} // namespace
