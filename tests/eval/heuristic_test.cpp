#include "eval/heuristic.h"

#include "rules/board.h"
#include "tests/support/drawnboard.h"

#include <gtest/gtest.h>

namespace {

struct Analysed : heuristic {
    bool white = false;
    bool black = false;

    explicit Analysed(const std::string &picture) {
        const board b = drawn(picture);
        analyse(&b);
        const bool any = canPass(white, black);
        EXPECT_EQ(any, white || black);
        if (white)
            findPassage(codeWhite);
        if (black)
            findPassage(codeBlack);
    }
    // Each square's owner as w or b, in capitals where it lies on a passage.
    std::string map() const {
        std::string text;
        for (int y = size - 1; y >= 0; --y) {
            text += '\n';
            for (int x = 0; x < size; ++x) {
                const int owner = getOwner(x, y);
                const bool passage = getPassage(x, y) != 0;
                EXPECT_TRUE(!passage || getPassage(x, y) == owner);
                text += owner == 0 ? '.' : (owner == codeWhite ? "wW" : "bB")[passage];
            }
        }
        return text;
    }
};

constexpr char pair[] = R"(
.....b....
..........
..........
....w.....
..........
..........
..........
..........
..........
..........)";

TEST(Heuristic, ALoneManRunsFree) {
    std::string lone = std::string("w") + pair;
    lone[lone.find('b')] = '.';
    const Analysed h(lone);
    EXPECT_EQ(h.map().substr(0, 45), R"(
.W.W.W.W..
..W.W.W...
...W.W....
....W.....
)");
    EXPECT_EQ(h.cells[4][6].reach, 1);
    EXPECT_EQ(h.cells[5][7].reach, 2);
    EXPECT_EQ(h.cells[2][8].reach, 3);
    EXPECT_EQ(h.cells[7][9].reach, 4);
    EXPECT_TRUE(h.white && !h.black);
    EXPECT_EQ(h.freedom(), 4);
}

TEST(Heuristic, ControlledSquaresAreRefused) {
    const Analysed h(std::string("w") + pair);
    EXPECT_EQ(h.map(), R"(
.W.W.b....
..W.......
...W.w....
....W.....
..........
..........
..........
..........
..........
..........)");
    EXPECT_TRUE(h.white && !h.black);
    EXPECT_EQ(h.freedom(), 3);
}

// Black's passage marks end on row size - 3.
TEST(Heuristic, TheSideToMoveClaimsFirst) {
    const Analysed h(std::string("b") + pair);
    EXPECT_EQ(h.map(), R"(
.....b....
....b.b...
.......B..
....w.B.B.
.......B.B
......B.B.
.....B.B.B
....B.B.B.
...B.B.B.B
..B.B.B.B.)");
    EXPECT_TRUE(!h.white && h.black);
    EXPECT_EQ(h.freedom(), -3);
}

TEST(Heuristic, KingsControlButDoNotRun) {
    const Analysed h("w ...... ...... ...... ..W... ...... ......");
    EXPECT_EQ(h.map(), "\n......\n......\n......\n..w...\n......\n......");
    for (const XY &next : {XY(3, 3), XY(3, 1), XY(1, 1), XY(1, 3)})
        EXPECT_EQ(h.cells[next.x][next.y].flags, heuristic::markControlledByWhite);
    EXPECT_FALSE(h.white || h.black);
    EXPECT_EQ(h.freedom(), 1);

    const Analysed corner("b ...... ...... ...... ...... .B.... ......");
    EXPECT_EQ(corner.cells[0][0].flags, 0) << "a piece on the edge cannot be jumped";
}

TEST(Heuristic, PassagesStopOneRowEarlierForBlack) {
    const struct {
        const char *picture;
        XY man;
        int passage;
    } cases[] = {{"w ...... ...... ...... ...... ...w.. ......", {3, 1}, codeWhite},
                 {"w ...... ...... ...... ...... ...... ..w...", {2, 0}, 0},
                 {"b ...... ..b... ...... ...... ...... ......", {2, 4}, 0},
                 {"b ...... ...... ...b.. ...... ...... ......", {3, 3}, codeBlack}};
    for (const auto &c : cases) {
        const Analysed h(c.picture);
        EXPECT_EQ(h.getPassage(c.man.x, c.man.y), c.passage) << c.picture;
    }
}

TEST(Heuristic, ManySquaresOnBothSidesBalance) {
    for (const int size : allSizes)
        EXPECT_EQ(Analysed(picture(board(size))).freedom(), 0);
}

} // namespace
