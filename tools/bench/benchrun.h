// One search of the bench: its task, and everything that it must reproduce.
#ifndef TOOLS_BENCH_BENCHRUN_H
#define TOOLS_BENCH_BENCHRUN_H

#include "rules/board.h"
#include "rules/ruleset.h"
#include "search/thinkstatistic.h"

#include <QList>
#include <QString>

struct BenchTask {
    QString name;
    RuleSet rules = defaultRules;
    bool giveAway = false;
    int depth = 1;   // plies
    int seconds = 0; // above 0: search that long instead
    board position;
};

struct BenchResult {
    QString move; // the notation; empty when there is no legal move
    int score = 0;
    QString line;  // the principal variation, one move a line
    int depth = 0; // plies of the last iteration
    thinkStatistic statistic;
    qint64 microseconds = 0;
};

// The transposition table of every search, as in the game.
inline constexpr int benchHashSlots = 10003;

// The deepest search that can be asked for, in plies.
inline constexpr int mostDepth = 99;

// Reads tasks, one a line: name, rules, "normal" or "giveaway", depth in plies, then the position
// line; '#' starts a comment. Stops at the first bad line, with its number and fault in `error`.
QList<BenchTask> readTasks(const QString &text, QString &error);

// Searches the task to its depth, or for its time, without the random term. `straightforward`
// searches every node over engines and boards instead of bit sets; the result is the same.
BenchResult runTask(const BenchTask &task, bool straightforward);

// A running hash (FNV-1a) over all that a search reports but its time.
class Signature {
public:
    void add(const BenchResult &result);
    QString text() const;

private:
    void addText(const QString &text);
    void addNumber(int number);
    void addByte(unsigned char byte);

    quint64 hash_ = 0xcbf29ce484222325U;
};

#endif
