#include "eval/squaresvalue.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

// The dark squares' values from the top row down, each from left to right: those of the normal
// game, then with few pieces left.
constexpr char tables[] = R"(
6 x 6
-10 -10 -10 | 40 40 10
100 -10 -10 | 100 38 38
-10 60 -10 | 36 80 6
50 80 30 | 50 80 34
30 30 0 | 32 32 2
10 70 10 | 0 40 30
8 x 8
-10 -10 -10 -10 | 14 44 44 14
100 -10 -10 -10 | 100 42 42 12
-10 -10 -10 -10 | 10 40 40 10
50 40 60 -10 | 50 50 80 8
0 80 50 0 | 6 80 50 6
0 30 30 0 | 4 34 34 4
0 30 30 0 | 2 32 32 2
10 70 70 10 | 0 40 40 0
10 x 10
-10 -10 -10 -10 -10 | 18 48 48 48 18
100 -10 -10 -10 -10 | 100 46 46 46 16
-10 -10 -10 -10 -10 | 14 44 44 44 14
50 -10 -10 -10 -10 | 50 42 42 42 12
-10 40 60 40 -10 | 10 50 80 50 10
0 50 80 50 0 | 8 50 80 50 8
0 30 30 30 0 | 6 36 36 36 6
0 30 30 30 0 | 4 34 34 34 4
0 30 30 30 0 | 2 32 32 32 2
10 10 70 10 10 | 0 30 40 30 0
12 x 12
-10 -10 -10 -10 -10 -10 | 22 52 52 52 22 22
100 -10 -10 -10 -10 -10 | 100 20 50 50 50 20
-10 -10 -10 -10 -10 -10 | 18 48 48 48 18 18
50 -10 -10 -10 -10 -10 | 50 16 46 46 46 16
-10 -10 -10 -10 -10 -10 | 14 44 44 44 14 14
-10 40 40 60 40 -10 | 12 50 50 80 50 12
0 50 80 50 50 0 | 10 50 80 50 50 10
0 0 30 30 30 0 | 8 8 38 38 38 8
0 30 30 30 0 0 | 6 36 36 36 6 6
0 0 30 30 30 0 | 4 4 34 34 34 4
0 30 30 30 0 0 | 2 32 32 32 2 2
10 10 70 70 10 10 | 0 0 40 40 30 0
)";

void writeRow(std::ostream &out, const SquaresValue &table, int y) {
    for (int x = y % 2; x < table.size; x += 2)
        out << (x < 2 ? "" : " ") << table.values[x][y];
}

TEST(SquaresValue, Tables) {
    SquaresValue normal(12, true); // nothing of these stays
    SquaresValue gambit(6, false);
    std::ostringstream out;
    out << '\n';
    for (const int size : {6, 8, 10, 12}) {
        normal.reFill(size, false);
        gambit.reFill(size, true);
        out << size << " x " << size << '\n';
        for (int y = size - 1; y >= 0; --y) {
            writeRow(out, normal, y);
            out << " | ";
            writeRow(out, gambit, y);
            out << "\n";
        }
    }
    EXPECT_EQ(out.str(), tables);
}

} // namespace
