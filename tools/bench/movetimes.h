// How long the computer thinks about its moves at a level, against what it may.
#ifndef TOOLS_BENCH_MOVETIMES_H
#define TOOLS_BENCH_MOVETIMES_H

#include "search/levels.h"

#include <QTextStream>

#include <vector>

// Figures of one kind. To be asked when there are some.
class Distribution {
public:
    void add(double figure) { figures_.push_back(figure); }
    int count() const { return static_cast<int>(figures_.size()); }
    double mean() const;
    // The least figure that so many percent of all, 1 to 100, do not exceed.
    double percentile(int percent) const;

private:
    std::vector<double> figures_;
};

// Lets the computer play against itself, from random openings of all rules and sizes, until it has
// thought about so many moves with a choice, and prints what they took. A level with a time.
void printMoveTimes(QTextStream &out, int moves, const Level &level);

#endif
