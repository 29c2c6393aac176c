#include "eval/heuristic.h"

#include "rules/board.h"
#include "tests/support/drawnboard.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

struct Analysed : heuristic {
    bool white = false;
    bool black = false;
    bool any = false;

    explicit Analysed(const std::string &picture) {
        const board b = drawn(picture);
        analyse(&b);
        white = black = true;
        any = canPass(white, black);
        if (white)
            findPassage(codeWhite);
        if (black)
            findPassage(codeBlack);
    }
    // The squares of either colour as rows from the top down.
    std::string map(const std::function<int(int, int)> &colourOf) const {
        std::string text;
        for (int y = size - 1; y >= 0; --y) {
            for (int x = 0; x < size; ++x)
                text += colourOf(x, y) == 0 ? '.' : colourOf(x, y) == codeWhite ? 'w' : 'b';
            text += '\n';
        }
        return text;
    }
    std::string owners() const {
        return map([this](int x, int y) { return getOwner(x, y); });
    }
    std::string passages() const {
        return map([this](int x, int y) { return getPassage(x, y); });
    }
};

std::string rows(const char *picture) {
    std::string text;
    for (const char *c = picture; *c != '\0'; ++c) {
        if (*c == '.' || *c == 'w' || *c == 'b')
            text += *c;
        if (*c == '\n')
            text += '\n';
    }
    return text + '\n';
}

TEST(Heuristic, ALoneManRunsFree) {
    const Analysed h(R"(w
        ..........
        ..........
        ..........
        ....w.....
        ..........
        ..........
        ..........
        ..........
        ..........
        ..........)");
    const std::string reached = rows(R"(.w.w.w.w..
        ..w.w.w...
        ...w.w....
        ....w.....
        ..........
        ..........
        ..........
        ..........
        ..........
        ..........)");
    EXPECT_EQ(h.owners(), reached);
    EXPECT_EQ(h.passages(), reached);
    EXPECT_EQ(h.cells[4][6].reach, 1);
    EXPECT_EQ(h.cells[5][7].reach, 2);
    EXPECT_EQ(h.cells[2][8].reach, 3);
    EXPECT_EQ(h.cells[7][9].reach, 4);
    EXPECT_TRUE(h.any && h.white && !h.black);
    EXPECT_EQ(h.freedom(), 4);
}

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

TEST(Heuristic, ControlledSquaresAreRefused) {
    const Analysed h(std::string("w") + pair);
    EXPECT_EQ(h.owners(), rows(R"(.w.w.b....
        ..w.......
        ...w.w....
        ....w.....
        ..........
        ..........
        ..........
        ..........
        ..........
        ..........)"));
    EXPECT_EQ(h.passages(), rows(R"(.w.w......
        ..w.......
        ...w......
        ....w.....
        ..........
        ..........
        ..........
        ..........
        ..........
        ..........)"));
    EXPECT_TRUE(h.any && h.white && !h.black);
    EXPECT_EQ(h.freedom(), 3);
}

// Black's passage marks end on row size - 3.
TEST(Heuristic, TheSideToMoveClaimsFirst) {
    const Analysed h(std::string("b") + pair);
    EXPECT_EQ(h.owners(), rows(R"(.....b....
        ....b.b...
        .......b..
        ....w.b.b.
        .......b.b
        ......b.b.
        .....b.b.b
        ....b.b.b.
        ...b.b.b.b
        ..b.b.b.b.)"));
    EXPECT_EQ(h.passages(), rows(R"(..........
        ..........
        .......b..
        ......b.b.
        .......b.b
        ......b.b.
        .....b.b.b
        ....b.b.b.
        ...b.b.b.b
        ..b.b.b.b.)"));
    EXPECT_TRUE(h.any && !h.white && h.black);
    EXPECT_EQ(h.freedom(), -3);
}

TEST(Heuristic, KingsControlButDoNotRun) {
    const Analysed h("w ...... ...... ...... ..W... ...... ......");
    EXPECT_EQ(h.owners(), rows("......\n......\n......\n..w...\n......\n......"));
    for (const XY &next : {XY(3, 3), XY(3, 1), XY(1, 1), XY(1, 3)})
        EXPECT_EQ(h.cells[next.x][next.y].flags, heuristic::markControlledByWhite);
    EXPECT_FALSE(h.any || h.white || h.black);
    EXPECT_EQ(h.freedom(), 1);

    const Analysed edge("b ...... ...... ...... B..... ...... ......");
    EXPECT_EQ(edge.cells[1][3].flags, heuristic::markControlledByBlack);
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
        EXPECT_TRUE(h.any);
        EXPECT_EQ(h.getPassage(c.man.x, c.man.y), c.passage) << c.picture;
    }
}

TEST(Heuristic, ManySquaresOnBothSidesBalance) {
    for (const int size : allSizes)
        EXPECT_EQ(Analysed(picture(board(size))).freedom(), 0);
}

} // namespace
