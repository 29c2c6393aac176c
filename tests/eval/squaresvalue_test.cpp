#include "eval/squaresvalue.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// The dark squares' values by row, from the top row down, each row from left to right.
struct Table {
    int size;
    bool gambit;
    std::vector<std::vector<int>> rows;
};

const Table tables[] = {
    {10,
     false,
     {{-10, -10, -10, -10, -10},
      {100, -10, -10, -10, -10},
      {-10, -10, -10, -10, -10},
      {50, -10, -10, -10, -10},
      {-10, 40, 60, 40, -10},
      {0, 50, 80, 50, 0},
      {0, 30, 30, 30, 0},
      {0, 30, 30, 30, 0},
      {0, 30, 30, 30, 0},
      {10, 10, 70, 10, 10}}},
    {10,
     true,
     {{18, 48, 48, 48, 18},
      {100, 46, 46, 46, 16},
      {14, 44, 44, 44, 14},
      {50, 42, 42, 42, 12},
      {10, 50, 80, 50, 10},
      {8, 50, 80, 50, 8},
      {6, 36, 36, 36, 6},
      {4, 34, 34, 34, 4},
      {2, 32, 32, 32, 2},
      {0, 30, 40, 30, 0}}},
    {8,
     false,
     {{-10, -10, -10, -10},
      {100, -10, -10, -10},
      {-10, -10, -10, -10},
      {50, 40, 60, -10},
      {0, 80, 50, 0},
      {0, 30, 30, 0},
      {0, 30, 30, 0},
      {10, 70, 70, 10}}},
    {6,
     false,
     {{-10, -10, -10}, {100, -10, -10}, {-10, 60, -10}, {50, 80, 30}, {30, 30, 0}, {10, 70, 10}}},
    {12,
     true,
     {{22, 52, 52, 52, 22, 22},
      {100, 20, 50, 50, 50, 20},
      {18, 48, 48, 48, 18, 18},
      {50, 16, 46, 46, 46, 16},
      {14, 44, 44, 44, 14, 14},
      {12, 50, 50, 80, 50, 12},
      {10, 50, 80, 50, 50, 10},
      {8, 8, 38, 38, 38, 8},
      {6, 36, 36, 36, 6, 6},
      {4, 4, 34, 34, 34, 4},
      {2, 32, 32, 32, 2, 2},
      {0, 0, 40, 40, 30, 0}}}};

TEST(SquaresValue, Tables) {
    SquaresValue values(12, true); // one object for all: nothing of the former table stays
    for (const Table &table : tables) {
        values.reFill(table.size, table.gambit);
        EXPECT_EQ(values.size, table.size);
        for (int y = 0; y < table.size; ++y) {
            const auto &row = table.rows[static_cast<std::size_t>(table.size - 1 - y)];
            for (int x = y % 2; x < table.size; x += 2) {
                EXPECT_EQ(values.values[x][y], row[static_cast<std::size_t>(x / 2)])
                    << "(" << x << "," << y << ") of " << table.size
                    << (table.gambit ? ", gambit" : "");
            }
        }
    }
}

TEST(SquaresValue, ClearAndConstruction) {
    SquaresValue values(10, true);
    EXPECT_EQ(values.values[1][9], 18);
    values.clear();
    for (const auto &column : values.values) {
        for (const int value : column)
            EXPECT_EQ(value, 0);
    }
}

} // namespace
