#include "rules/legalmove.h"

#include <gtest/gtest.h>

namespace {

LegalMove twoPieceCapture() {
    LegalMove m;
    m.insPath({1, 1}, 0);
    m.insPath({3, 3}, 1);
    m.insTaken({2, 2}, 0);
    m.insPath({5, 1}, 2);
    m.insTaken({4, 2}, 1);
    return m;
}

QArray<XY> squares(std::initializer_list<XY> list) {
    QArray<XY> array;
    for (const XY &square : list)
        array.append(square);
    return array;
}

TEST(LegalMove, Notation) {
    QString text = "left over";
    LegalMove({2, 3}, {3, 4}).ToString(text);
    EXPECT_EQ(text, "(2,3)->(3,4)");
    twoPieceCapture().ToString(text);
    EXPECT_EQ(text, "(1,1)->(5,1)");
    EXPECT_EQ(LegalMove::XYtoString({11, 0}), "(11,0)");
}

TEST(LegalMove, ComparesTheSquaresEnteredSoFar) {
    const struct {
        QArray<XY> part;
        int result;
        XY next;
    } cases[] = {{squares({}), 1, {1, 1}},
                 {squares({{1, 1}}), 1, {3, 3}},
                 {squares({{1, 1}, {3, 3}}), 1, {5, 1}},
                 {squares({{1, 1}, {3, 3}, {5, 1}}), 2, {-1, -1}},
                 {squares({{1, 1}, {3, 3}, {5, 1}, {7, 3}}), 0, {-1, -1}},
                 {squares({{3, 1}}), 0, {-1, -1}},
                 {squares({{1, 1}, {3, 3}, {5, 5}}), 0, {-1, -1}}};
    for (const auto &c : cases) {
        XY next(-1, -1);
        EXPECT_EQ(twoPieceCapture().comparePart(&c.part, next), c.result) << c.part.size();
        EXPECT_EQ(next, c.next) << c.part.size();
    }
}

TEST(LegalMove, InsertingCutsTheRest) {
    LegalMove m = twoPieceCapture();
    m.insPath({7, 7}, 3);
    m.insPath({9, 9}, 4);
    const LegalMove copy = m;
    m.insPath({4, 4}, 1);
    m.insTaken({8, 8}, 0);
    EXPECT_EQ(m.path, squares({{1, 1}, {4, 4}}));
    EXPECT_EQ(m.taken, squares({{8, 8}}));
    EXPECT_EQ(copy.path, squares({{1, 1}, {3, 3}, {5, 1}, {7, 7}, {9, 9}}));
    EXPECT_EQ(copy.taken, squares({{2, 2}, {4, 2}}));
}

TEST(LegalMove, OrderIsByScoreAlone) {
    LegalMove low = twoPieceCapture();
    LegalMove high({0, 0}, {1, 1});
    low.score = -5;
    high.score = 3;
    EXPECT_TRUE(low < high);
    EXPECT_TRUE(low <= high);
    EXPECT_FALSE(low > high);
    high.score = -5;
    EXPECT_FALSE(low < high);
    EXPECT_TRUE(low <= high);
}

} // namespace
