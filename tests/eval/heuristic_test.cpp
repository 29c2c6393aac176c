#include "eval/heuristic.h"

#include "tests/support/drawnboard.h"

#include <gtest/gtest.h>

namespace {

// Maps show the squares' owners after the flood as w or b, in capitals where they lie on a passage.
const struct {
    const char *name, *picture, *map;
    bool whitePasses, blackPasses;
    int freedom;
} floods[] = {
    {"a man on row 1 is marked, one on row 0 is not", "w ...... ...... ...... ...... .w...W w.....",
     " .W.W.W W.W.W. .W.W.. W.W... .W...w w.....", true, false, 4},
    {"black's marks end on row size - 3", "b ...... ..b... .....b ...... ...... ......",
     " ...... ..b... .B.B.B B.B.B. .B.B.B B.B.B.", false, true, -4},
    {"controlled squares are refused",
     "w .....b.... .......... .......... ....w..... .......... .......... .......... .......... "
     ".......... ..........",
     " .W.W.b.... ..W....... ...W.w.... ....W..... .......... .......... .......... .......... "
     ".......... ..........",
     true, false, 3},
    {"of the edge nothing is controlled; the side to move claims first",
     "w .b.... ...... .w.... ...... ...... ......", " .b.... w..... .w.... ...... ...... ......",
     false, false, 1},
    {"kings do not run; more than four squares are no better",
     "w .W.... ...... .W.... ...... .W.W.. B...W.", " .w.... ...... .w.... ...... .w.w.. b...w.",
     false, false, 3},
};

std::string mapOf(const heuristic &h) {
    std::string map;
    for (int y = h.size - 1; y >= 0; --y) {
        map += ' ';
        for (int x = 0; x < h.size; ++x) {
            const int owner = h.getOwner(x, y);
            const bool passage = h.getPassage(x, y) != 0;
            map += owner == 0 ? '.' : (owner == codeWhite ? "wW" : "bB")[passage];
        }
    }
    return map;
}

TEST(Heuristic, Floods) {
    for (const auto &c : floods) {
        const board b = drawn(c.picture);
        heuristic h;
        h.analyse(&b);
        bool white = !c.whitePasses;
        bool black = !c.blackPasses;
        EXPECT_EQ(h.canPass(white, black), c.whitePasses || c.blackPasses) << c.name;
        EXPECT_EQ(white, c.whitePasses) << c.name;
        EXPECT_EQ(black, c.blackPasses) << c.name;
        h.findPassage(codeWhite);
        h.findPassage(codeBlack); // a side that cannot pass gets no marks
        EXPECT_EQ(mapOf(h), c.map) << c.name;
        EXPECT_EQ(h.freedom(), c.freedom) << c.name;
    }
}

} // namespace
