#include "eval/squaresvalue.h"

#include <cstring>

void SquaresValue::reFill(int n, bool gambit) {
    size = n;
    clear();
    fillCenterLine();
    if (gambit) {
        fillGambit();
    } else {
        fillBaseRow();
        fillNoFar();
    }
    fillCenterSQ(gambit);
    fillSpecial(gambit);
}

void SquaresValue::clear() {
    std::memset(values, 0, sizeof values);
}

// The middle columns.
void SquaresValue::fillCenterLine() {
    const int q = size / 4;
    for (int x = q; x < size - q; ++x) {
        for (int y = x % 2; y < size; y += 2)
            values[x][y] = 30;
    }
}

// Men that guard the opponent's promotion row.
void SquaresValue::fillBaseRow() {
    for (int x = 0; x < size; x += 2)
        values[x][0] = 10;
}

// Men far from home are easily lost.
void SquaresValue::fillNoFar() {
    for (int x = 0; x < size; ++x) {
        for (int y = size / 2; y < size; ++y)
            values[x][y] = -10;
    }
}

// With few pieces left every step forward counts.
void SquaresValue::fillGambit() {
    for (int x = 0; x < size; ++x) {
        for (int y = 0; y < size; ++y)
            values[x][y] += 2 * y;
    }
}

void SquaresValue::fillCenterSQ(bool gambit) {
    const int middle = size / 2;
    for (int x = 2; x <= size - 3; ++x) {
        values[x][middle - 1] = 50;
        values[x][middle] = gambit ? 50 : 40;
    }
    values[middle][middle] = gambit ? 80 : 60;
    values[middle - 1][middle - 1] = 80;
}

// The run along the left edge, and the guards in the middle of the back row.
void SquaresValue::fillSpecial(bool gambit) {
    values[0][size - 2] = 100;
    values[0][size - 4] = 50;
    int first = size / 2 - 2;
    first += first % 2;
    for (int x = first; x < size - first; x += 2)
        values[x][0] = gambit ? 40 : 70;
}
