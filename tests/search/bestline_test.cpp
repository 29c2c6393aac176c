#include "search/bestline.h"

#include "rules/legalmove.h"

#include <gtest/gtest.h>

namespace {

LegalMove move(XY from, XY to, int score) {
    LegalMove m(from, to);
    m.score = score;
    return m;
}

std::string text(const BestLine &line) {
    QString s = "left over";
    line.asString(s);
    return s.toStdString();
}

void expectUnused(const BestLine &line, int i) {
    EXPECT_EQ(line.from[i], XY(-1, -1));
    EXPECT_EQ(line.to[i], XY(-1, -1));
    EXPECT_EQ(line.scores[i], 7777);
}

TEST(BestLine, FreshAndReset) {
    BestLine line;
    const LegalMove m = move({2, 3}, {3, 4}, 1);
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(line.top, 0);
        EXPECT_EQ(text(line), "");
        for (int i = 0; i < 30; ++i)
            expectUnused(line, i);
        line.updateAt(&m, 29);
        line.setTop(30);
        line.reset();
    }
}

TEST(BestLine, Text) {
    BestLine line;
    const LegalMove first = move({2, 3}, {3, 4}, 120);
    LegalMove second = move({5, 6}, {6, 7}, -95); // a capture, with its last square below
    second.insPath({4, 5}, 2);
    line.updateAt(&first, 0);
    line.updateAt(&second, 1);
    EXPECT_EQ(text(line), "");
    line.setTop(2);
    EXPECT_EQ(text(line), "(2,3)->(3,4) 120 \n(5,6)->(4,5) -95 \n");
}

TEST(BestLine, CopyTakesTheTopAndTheEntriesUpToIt) {
    BestLine other;
    for (int i = 0; i < 6; ++i) {
        const LegalMove m = move({i, i}, {i + 1, i + 1}, 10 * i);
        other.updateAt(&m, i);
    }
    BestLine line;
    other.setTop(2);
    line.copyFrom(&other, 3);
    EXPECT_EQ(line.top, 2);
    expectUnused(line, 2);
    expectUnused(line, 3);
    other.setTop(4);
    line.copyFrom(&other, 1);
    EXPECT_EQ(line.top, 4);
    expectUnused(line, 0);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(line.from[i], XY(i, i));
        EXPECT_EQ(line.to[i], XY(i + 1, i + 1));
        EXPECT_EQ(line.scores[i], 10 * i);
    }
    expectUnused(line, 5);
}

TEST(BestLine, ThirtyLevelsAndNoMore) {
    BestLine line;
    const LegalMove m = move({0, 0}, {1, 1}, 5);
    for (const int level : {29, 30, 100})
        line.updateAt(&m, level);
    EXPECT_EQ(line.scores[29], 5);
    line.setTop(100);
    BestLine copy;
    copy.copyFrom(&line, 28);
    copy.copyFrom(&line, 31);
    EXPECT_EQ(copy.top, 100);
    EXPECT_EQ(copy.scores[29], 5);
    EXPECT_EQ(QString::fromStdString(text(copy)).count('\n'), 30);
}

} // namespace
