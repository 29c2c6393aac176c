#include "eval/squaresvalue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace {

void writeRow(std::ostream &out, const SquaresValue &table, int y) {
    for (int x = y % 2; x < table.size; x += 2)
        out << (x < 2 ? "" : " ") << table.values[x][y];
}

// squares.txt has the dark squares' values from the top row down, each from left to right: those of
// the normal game, then with few pieces left.
TEST(SquaresValue, Tables) {
    std::ifstream file(TEST_DATA "/squares.txt");
    const std::string tables{std::istreambuf_iterator<char>(file), {}};
    SquaresValue normal(12, true); // nothing of these stays
    SquaresValue gambit(6, false);
    std::ostringstream out;
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
