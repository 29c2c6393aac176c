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
    EXPECT_EQ(picture(board(0)), "w\n");
    constexpr int pieces[] = {12, 24, 40, 60};
    for (int i = 0; i < 4; ++i) {
        const int size = allSizes[i];
        board b(12);
        b.hashScore = 5;
        b.plyCount = 3;
        b.startPos(size);
        EXPECT_EQ(b.hashScore, 5) << "the search record is left alone";
        EXPECT_EQ(b.plyCount, 0);
        EXPECT_EQ(b.StaringNumber(), pieces[i]);
        int white = -1;
        int black = -1;
        b.countPieces(white, black);
        EXPECT_EQ(white, pieces[i] / 2);
        EXPECT_EQ(black, pieces[i] / 2);
        for (int x = 0; x < maxBoardSize; ++x) {
            for (int y = 0; y < maxBoardSize; ++y) {
                const bool dark = x < size && y < size && (x + y) % 2 == 0;
                const int code = y < size / 2 - 1 ? whiteMan : y > size / 2 ? blackMan : 0;
                EXPECT_EQ(b.Get({x, y}), dark ? code : 0) << size << ": " << x << "," << y;
            }
        }
    }
}

TEST(Board, FewPiecesMakeAGambit) {
    constexpr int thresholds[][2] = {{6, 7}, {8, 15}, {10, 25}, {12, 37}};
    for (const auto &[size, most] : thresholds) {
        board b(size);
        b.clear();
        int pieces = 0;
        for (int i = 0; i < size * size && pieces < most; ++i) {
            if ((i / size + i % size) % 2 == 0 && ++pieces <= most)
                b.squares[i / size][i % size] = pieces % 2 == 0 ? whiteKing : blackMan;
        }
        EXPECT_TRUE(b.isGambit()) << size;
        b.squares[size - 1][size - 1] = blackMan;
        EXPECT_FALSE(b.isGambit()) << size;
    }
}

TEST(Board, KeyCoversPiecesAndSideToMove) {
    EXPECT_EQ(board(10).HKey(), 3499457097U);
    board empty(0);
    EXPECT_EQ(empty.HKey(), 1048576U);
    empty.whiteToMove = false;
    EXPECT_EQ(empty.HKey(), 0U);

    board marked(10);
    marked.squares[3][3] |= codeTaken | codeCanMove;
    marked.plyCount = 17;
    marked.hashScore = 1;
    EXPECT_EQ(marked.HKey(), board(10).HKey());
    marked.whiteToMove = false;
    EXPECT_NE(marked.HKey(), board(10).HKey());
}

TEST(Board, TextForm) {
    board b(6);
    b.clear();
    EXPECT_EQ(textOf(b), "6 0 1048576 0 -1 " + std::string(72, '-') + "\n");
    b.squares[0][0] = whiteMan | codeCanMove;
    b.squares[0][2] = whiteKing;
    b.squares[1][1] = blackMan | codeTaken;
    b.squares[5][5] = blackKing;
    const std::string text = textOf(b);
    EXPECT_EQ(text.substr(text.rfind(' ') + 1), "wm--wK--------bm" + std::string(54, '-') + "bK\n");
}

TEST(Board, TextFormIsReadBack) {
    board b = drawn("b ...B.. ..b... .W.... ..w... .....b w.....");
    b.plyCount = 7;
    b.hashScore = -250;
    b.hashHorizon = 12;
    board copy(6);
    copy.hashAlpha = 3;
    EXPECT_EQ(read(copy, textOf(b)), "");
    EXPECT_EQ(picture(copy), picture(b)); // odd ply: black to move
    EXPECT_EQ(copy.plyCount, 7);
    EXPECT_EQ(copy.hashScore, -250);
    EXPECT_EQ(copy.hashHorizon, 12);
    EXPECT_EQ(copy.hashAlpha, 3);
    EXPECT_EQ(copy.hashBeta, 777);
}

TEST(Board, WrongKeyIsReportedAndThePositionKept) {
    board b(6);
    EXPECT_EQ(read(b, "6 2 99 0 -1 " + std::string(70, '-') + "wK"), "zle \n");
    EXPECT_EQ(picture(b), "w\n.....W\n......\n......\n......\n......\n......\n");
    EXPECT_EQ(b.plyCount, 2);
}

TEST(Board, CopiesAreIndependent) {
    board b(8);
    b.hashBeta = 4;
    board copy(&b);
    copy.clear();
    EXPECT_EQ(b.Get({0, 0}), whiteMan);
    EXPECT_EQ(copy.size, 8);
    EXPECT_EQ(copy.hashBeta, 4);
}

} // namespace
