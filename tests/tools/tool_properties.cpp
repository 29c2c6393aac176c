// What users give the tools is either refused with a message or gives options and positions that
// the tools can work with.

#include "tests/properties/editedtext.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tools/bench/benchrun.h"
#include "tools/bench/options.h"
#include "tools/perft/options.h"

#include <QCommandLineParser>
#include <QStringList>

#include <algorithm>

namespace {

void wantPlayable(const board &b, const std::string &where) {
    for (int x = 0; x < b.size; ++x) {
        for (int y = 0; y < b.size; ++y) {
            constexpr int known[] = {0, whiteMan, whiteKing, blackMan, blackKing};
            const int code = b.squares[x][y];
            if (std::find(std::begin(known), std::end(known), code) == std::end(known))
                reportFault("a square's code", where);
            if (code != 0 && (x + y) % 2 != 0)
                reportFault("a piece on a light square", where);
        }
    }
    if (std::find(std::begin(allBoardSizes), std::end(allBoardSizes), b.size) ==
        std::end(allBoardSizes))
        reportFault("the size", where);
    if (b.plyCount < 0 || b.whiteToMove != (b.plyCount % 2 == 0))
        reportFault("the ply counter", where);
}

QStringList argumentsOf(const std::string &line) {
    return QStringList("program") + QString::fromStdString(line).split(' ');
}

void perftArguments(Bytes &bytes) {
    const Edits edits(bytes);
    const std::string position = lineOf(readSituation(bytes).position);
    const std::string line = edits.of("--rules american --depth 3 --divide " + position);
    QCommandLineParser parser;
    describePerft(parser);
    PerftOptions options;
    if (!parser.parse(argumentsOf(line)) || !readPerftOptions(parser, options).isEmpty() ||
        options.standardInput)
        return;
    if (options.depth < 1 || options.depth > 30)
        reportFault("the depth", line);
    wantPlayable(options.position, line);
}

void benchArguments(Bytes &bytes) {
    const std::string line = Edits(bytes).of("--depth 3 --time 2 --only x --positions file -m");
    QCommandLineParser parser;
    describeBench(parser);
    BenchOptions options;
    QString error;
    if (!parser.parse(argumentsOf(line)) || !readBenchOptions(parser, options).isEmpty())
        return;
    if (options.depth < 0 || options.depth > mostDepth || options.seconds < 0)
        reportFault("depth or time", line);
    if (tasksText(options, error).isEmpty() && error.isEmpty() && options.file != "/dev/null")
        reportFault("a file without tasks and without a message", line);
}

void benchTasks(Bytes &bytes) {
    const Edits edits(bytes);
    const std::string text = edits.of(describe(readSituation(bytes)));
    QString error;
    const QList<BenchTask> tasks = readTasks(QString::fromStdString(text), error);
    if (tasks.isEmpty() && error.isEmpty() && !text.empty() && text.find('#') == text.npos &&
        text.find_first_not_of(" \t\n") != text.npos)
        reportFault("no task and no message", text);
    for (const BenchTask &task : tasks) {
        wantPlayable(task.position, text);
        if (task.depth < 1 || task.depth > mostDepth)
            reportFault("a task's depth", text);
    }
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {{"perft-arguments", perftArguments},
                                       {"bench-arguments", benchArguments},
                                       {"bench-tasks", benchTasks}};
    return all;
}
