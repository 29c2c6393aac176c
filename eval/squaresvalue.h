// SquaresValue: what a man is worth on each square beyond its material value.
#ifndef EVAL_SQUARESVALUE_H
#define EVAL_SQUARESVALUE_H

#include "rules/xy.h"

// Positional values for white men, in points; for black the table is read turned by half a turn.
// Only dark squares of the first `size` columns and rows are meaningful. There is a variant for the
// normal game and one for the "gambit" phase with few pieces left. The search refills the game's
// one table at its start.
class SquaresValue {
public:
    int values[maxBoardSize][maxBoardSize]; // indexed [x][y]
    int size;                               // board size the table was built for

    SquaresValue(int n, bool gambit) { reFill(n, gambit); }

    // Rebuilds the whole table for an n x n board; nothing of the former one remains.
    void reFill(int n, bool gambit);
    void clear();

    // The steps of reFill, in its order; each overwrites (fillGambit: adds to) the earlier ones.
    void fillCenterLine();
    void fillBaseRow();
    void fillNoFar();
    void fillGambit();
    void fillCenterSQ(bool gambit);
    void fillSpecial(bool gambit);
};

#endif
