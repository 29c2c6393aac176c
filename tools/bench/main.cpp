// bench: searches fixed positions to a fixed depth and prints what the search found and how fast.

#include "tools/bench/benchrun.h"
#include "tools/bench/movetimes.h"
#include "tools/bench/options.h"
#include "tools/common/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

void printPerson(QTextStream &out, const BenchTask &task, const BenchResult &result) {
    out << qSetFieldWidth(34) << Qt::left << task.name << qSetFieldWidth(16) << result.move
        << Qt::right << qSetFieldWidth(9) << result.score << qSetFieldWidth(12)
        << result.statistic.nodes << qSetFieldWidth(10) << result.microseconds / 1000
        << qSetFieldWidth(0) << " ms";
    if (task.seconds > 0)
        out << "  depth " << result.depth;
    out << '\n' << Qt::flush;
}

void printMachine(QTextStream &out, const BenchTask &task, const BenchResult &result) {
    const thinkStatistic &s = result.statistic;
    QString line = result.line.trimmed();
    line.replace(" \n", ";");
    out << task.name << '\t' << result.move << '\t' << result.score << '\t' << s.nodes << '\t'
        << s.movesGenerated << '\t' << s.scoresCalculated << '\t' << s.cutoffs << '\t'
        << s.senselessSacrifices << '\t' << s.hashHits << '\t' << s.maxLevel << '\t'
        << result.microseconds << '\t' << line << '\n'
        << Qt::flush;
}

void keepOnly(const QString &name, QList<BenchTask> &tasks) {
    const bool exact = std::any_of(tasks.cbegin(), tasks.cend(),
                                   [&](const BenchTask &task) { return task.name == name; });
    tasks.removeIf([&](const BenchTask &task) {
        return exact ? task.name != name : !task.name.contains(name);
    });
}

void run(const QList<BenchTask> &tasks, const BenchOptions &options) {
    QTextStream out(stdout);
    if (options.machine) {
        out << "name\tmove\tscore\tnodes\tmovesGenerated\tscoresCalculated\tcutoffs\t"
               "senselessSacrifices\thashHits\tmaxLevel\tmicroseconds\tline\n";
    }
    Signature signature;
    qint64 nodes = 0;
    qint64 microseconds = 0;
    for (const BenchTask &task : tasks) {
        const BenchResult result = runTask(task, options.straightforward);
        signature.add(result);
        nodes += result.statistic.nodes;
        microseconds += result.microseconds;
        (options.machine ? printMachine : printPerson)(out, task, result);
    }
    const double seconds = static_cast<double>(std::max<qint64>(microseconds, 1)) / 1e6;
    const double speed = static_cast<double>(nodes) / seconds;
    out << "positions " << tasks.size() << ", nodes " << nodes << ", time "
        << QString::number(seconds, 'f', 3) << " s, nodes per second "
        << QString::number(speed, 'f', 0) << "\nsignature " << signature.text() << '\n';
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    describeBench(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    BenchOptions options;
    if (const QString wrong = readBenchOptions(parser, options); !wrong.isEmpty())
        return fail(wrong);
    if (options.moveTimes > 0) {
        QTextStream out(stdout);
        printMoveTimes(out, options.moveTimes, levels[options.level]);
        return 0;
    }
    QString error;
    QList<BenchTask> tasks = readTasks(tasksText(options, error), error);
    if (!error.isEmpty())
        return fail(error);
    keepOnly(options.only, tasks);
    if (tasks.isEmpty())
        return fail("no positions to search");
    for (BenchTask &task : tasks) {
        task.depth = options.depth > 0 ? options.depth : task.depth;
        task.seconds = options.seconds;
    }
    run(tasks, options);
    return 0;
}
