#include "eval/squaresvalue.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

// The dark squares' values by row, from the top row down, each row from left to right.
const struct {
    int size;
    bool gambit;
    const char *rows;
} tables[] = {{10, false,
               "-10 -10 -10 -10 -10  100 -10 -10 -10 -10  -10 -10 -10 -10 -10  50 -10 -10 -10 -10 "
               "-10 40 60 40 -10  0 50 80 50 0  0 30 30 30 0  0 30 30 30 0  0 30 30 30 0 "
               "10 10 70 10 10"},
              {10, true,
               "18 48 48 48 18  100 46 46 46 16  14 44 44 44 14  50 42 42 42 12  10 50 80 50 10 "
               "8 50 80 50 8  6 36 36 36 6  4 34 34 34 4  2 32 32 32 2  0 30 40 30 0"},
              {6, false, "-10 -10 -10 100 -10 -10 -10 60 -10 50 80 30 30 30 0 10 70 10"}};

TEST(SquaresValue, Tables) {
    SquaresValue values(12, true); // one object for all: nothing of the former table stays
    for (const auto &table : tables) {
        values.reFill(table.size, table.gambit);
        std::istringstream rows(table.rows);
        for (int y = table.size - 1; y >= 0; --y) {
            for (int x = y % 2; x < table.size; x += 2) {
                int want = -1;
                rows >> want;
                EXPECT_EQ(values.values[x][y], want)
                    << "(" << x << "," << y << ") of " << table.size << (table.gambit ? "g" : "");
            }
        }
    }
}

} // namespace
