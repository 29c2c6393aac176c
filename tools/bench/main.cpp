// bench: searches fixed positions to a fixed depth and prints what the search found and how fast.

#include "tools/bench/benchrun.h"
#include "tools/common/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

struct Options {
    int depth = 0; // 0: each position's own
    int seconds = 0;
    QString file;
    QString only;
    bool machine = false;
    bool straightforward = false;
};

void describe(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        "Searches a list of positions to fixed depths, without the random term, and prints move, "
        "score, nodes and time of each, the totals, and one signature over everything the searches "
        "reported but time. The signature changes when, and only when, the search does.");
    parser.addOption({{"d", "depth"},
                      QString("Search all positions so many plies deep (1 to %1), instead of each "
                              "to its own depth.")
                          .arg(mostDepth),
                      "plies"});
    parser.addOption({{"t", "time"},
                      "Search each position so many seconds, as the game's levels do, "
                      "and tell the depth reached.",
                      "seconds"});
    parser.addOption({{"p", "positions"},
                      "Read the positions from a file: on each line a name, the rules "
                      "(international, american, polish), normal or giveaway, the depth in plies, "
                      "and a position line.",
                      "file"});
    parser.addOption({{"o", "only"},
                      "Only the position of this name or, where there is none, those "
                      "whose names contain it.",
                      "name"});
    parser.addOption({{"m", "machine"},
                      "One tab-separated line a position, with all counters and "
                      "the best line; totals and signature follow."});
    parser.addOption({{"s", "straightforward"},
                      "Search over engines and boards only, without the "
                      "bit sets: slow, with the same results."});
}

// What is wrong with the command line, empty when nothing is.
QString readOptions(const QCommandLineParser &parser, Options &options) {
    options.depth = parser.value("depth").toInt();
    if (parser.isSet("depth") && (options.depth < 1 || options.depth > mostDepth)) {
        return QString("the depth must be 1 to %1, not \"%2\"")
            .arg(mostDepth)
            .arg(parser.value("depth"));
    }
    options.seconds = parser.value("time").toInt();
    if (parser.isSet("time") && options.seconds < 1)
        return QString("the time must be a number of seconds, not \"%1\"")
            .arg(parser.value("time"));
    if (!parser.positionalArguments().isEmpty())
        return QString("unexpected argument \"%1\"").arg(parser.positionalArguments().first());
    options.file = parser.value("positions");
    options.only = parser.value("only");
    options.machine = parser.isSet("machine");
    options.straightforward = parser.isSet("straightforward");
    return {};
}

QString tasksText(const Options &options, QString &error) {
    if (options.file.isEmpty())
        return builtInTasks();
    QFile file(options.file);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QString("cannot read %1: %2").arg(options.file, file.errorString());
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

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

void run(const QList<BenchTask> &tasks, const Options &options) {
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
    describe(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    Options options;
    if (const QString wrong = readOptions(parser, options); !wrong.isEmpty())
        return fail(wrong);
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
