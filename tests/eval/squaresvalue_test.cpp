#include "eval/squaresvalue.h"

#include <gtest/gtest.h>

namespace {

// The dark squares' values of the normal game, from the top row down, each from left to right.
constexpr int rows[10][5] = {{-10, -10, -10, -10, -10}, {100, -10, -10, -10, -10},
                             {-10, -10, -10, -10, -10}, {50, -10, -10, -10, -10},
                             {-10, 40, 60, 40, -10},    {0, 50, 80, 50, 0},
                             {0, 30, 30, 30, 0},        {0, 30, 30, 30, 0},
                             {0, 30, 30, 30, 0},        {10, 10, 70, 10, 10}};

TEST(SquaresValue, Table) {
    SquaresValue values(12, true);
    values.reFill(10, false); // nothing of the former table stays
    for (int y = 0; y < 10; ++y) {
        for (int x = y % 2; x < 10; x += 2)
            EXPECT_EQ(values.values[x][y], rows[9 - y][x / 2]) << "(" << x << "," << y << ")";
    }
}

} // namespace
