// The command line of bench.
#ifndef TOOLS_BENCH_OPTIONS_H
#define TOOLS_BENCH_OPTIONS_H

#include <QString>

class QCommandLineParser;

struct BenchOptions {
    int depth = 0; // 0: each position's own
    int seconds = 0;
    QString file = ":/bench/positions.txt";
    QString only;
    int moveTimes = 0; // above 0: searches no positions, tells the times of so many moves ...
    int level = 0;     // ... at this item of the playing levels
    bool machine = false;
    bool straightforward = false;
};

void describeBench(QCommandLineParser &parser);
// What is wrong with the parsed command line, empty when nothing is; then `options` holds it.
QString readBenchOptions(const QCommandLineParser &parser, BenchOptions &options);
// The tasks asked for, as text: the file's. On failure `error` says what is
// wrong.
QString tasksText(const BenchOptions &options, QString &error);

#endif
