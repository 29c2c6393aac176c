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

TEST(Board, StartPositions) {
    EXPECT_EQ(picture(board(6)), "w\n.b.b.b\nb.b.b.\n......\n......\n.w.w.w\nw.w.w.\n");
    constexpr int sizes[][3] = {{6, 12, 7}, {8, 24, 15}, {10, 40, 25}, {12, 60, 37}};
    for (const auto &[size, pieces, gambit] : sizes) {
        board b(12);
        b.hashScore = 5;
        b.plyCount = 3;
        b.startPos(size);
        EXPECT_EQ(b.hashScore, 5) << "the search record is left alone";
        EXPECT_EQ(b.plyCount, 0);
        EXPECT_EQ(b.StaringNumber(), pieces);
        int white = -1, black = -1;
        b.countPieces(white, black);
        EXPECT_TRUE(white == pieces / 2 && black == white);
        // Taking the pieces off one by one, few are left from five eighths of them on.
        for (int i = 0, left = pieces; i < size * size; ++i) {
            EXPECT_EQ(b.isGambit(), left <= gambit) << size << ", pieces left " << left;
            left -= b.squares[i / size][i % size] != 0;
            b.squares[i / size][i % size] = 0;
        }
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
    EXPECT_TRUE(copy.plyCount == 7 && copy.hashScore == -250 && copy.hashHorizon == 12);
    EXPECT_EQ(read(b, "6 2 99 0 -1 " + std::string(70, '-') + "wK"), "zle \n") << "wrong key";
    EXPECT_EQ(picture(b), "w\n.....W\n......\n......\n......\n......\n......\n");
}

TEST(LegalMove, SquaresEnteredAndNotation) {
    LegalMove m({1, 1}, {3, 3});
    m.insTaken({2, 2}, 0);
    m.insPath({5, 1}, 2);
    m.insTaken({4, 2}, 1);
    // Square by square; then one too many, and a wrong one.
    QArray<XY> part;
    for (const XY &square : {XY(1, 1), XY(3, 3), XY(5, 1)}) {
        XY next(-1, -1);
        EXPECT_EQ(m.comparePart(&part, next), 1);
        EXPECT_EQ(next, square);
        part.append(square);
    }
    XY next(-1, -1);
    EXPECT_EQ(m.comparePart(&part, next), 2);
    part.append({7, 3});
    EXPECT_EQ(m.comparePart(&part, next), 0);
    part.resize(2);
    part[1] = {2, 2};
    EXPECT_EQ(m.comparePart(&part, next), 0);
    EXPECT_EQ(next, XY(-1, -1));
    m.insPath({4, 4}, 1); // cuts the rest
    EXPECT_EQ(moveText(m), "(1,1)x(4,4)");
}

} // namespace
