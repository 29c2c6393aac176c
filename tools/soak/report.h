// What a soak found, in tables.
#ifndef TOOLS_SOAK_REPORT_H
#define TOOLS_SOAK_REPORT_H

#include "tools/soak/enginegame.h"

#include <QTextStream>

#include <map>
#include <utility>
#include <vector>

// The games by rules, size and aim.
class GameTable {
public:
    void add(const GameSetup &setup, const GameOutcome &outcome);
    void print(QTextStream &out) const;

private:
    struct Row {
        int games = 0;
        int whiteWon = 0; // the side that moved last, or in a give-away game the other
        int blackWon = 0;
        int cut = 0;
        qint64 plies = 0;
        int longest = 0;
        qint64 nodes = 0;
    };
    static void printRow(QTextStream &out, const QString &name, const Row &row);

    std::map<std::pair<QString, int>, Row> rows_; // by rules and aim, then size
};

// The time that moves took, against what was asked for and against the budget.
class TimeTable {
public:
    void add(int requestedSeconds, const Thought &thought);
    void print(QTextStream &out) const;
    // The most that a move took of its budget.
    qint64 worstPercent() const;
    int count() const { return static_cast<int>(thoughts_.size()); }

private:
    struct Timed {
        int requestedMs;
        Thought thought;
        qint64 percent() const { return 100 * thought.usedMs / thought.budgetMs; }
    };
    // The figure of all moves at some percentages of them, in ascending order.
    template <class Figure>
    void printDistribution(QTextStream &out, const char *name, Figure figure) const;

    std::vector<Timed> thoughts_;
};

// Resident memory of this process in kilobytes, 0 where that cannot be read.
long residentKb();

#endif
