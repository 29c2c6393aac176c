// What is to be told of a square.
#ifndef VIEW_SQUAREREPORT_H
#define VIEW_SQUAREREPORT_H

#include "rules/xy.h"

#include <QString>

#include <functional>

// One square in the user's language.
struct SquareReport {
    QString name;          // the place and what stands there: "c3, white man"
    QString states;        // what else matters: "can move"; empty for nothing
    bool selected = false; // part of the move being entered

    bool operator==(const SquareReport &) const = default;
};

// Tells of any playing square of the board.
using SquareReader = std::function<SquareReport(XY)>;

#endif
