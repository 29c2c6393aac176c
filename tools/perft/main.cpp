// perft: counts the move tree of a position by depth, to check a move generator and to time it.

#include "tools/common/commandline.h"
#include "tools/common/positionline.h"
#include "tools/perft/perft.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int defaultDepth = 6;
constexpr int mostDepth = 30;

struct Options {
    RuleSet rules = RuleSet::International;
    int depth = defaultDepth;
    bool divide = false;
    bool leavesOnly = false;
    bool distinct = false;
};

void describe(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        "Counts the positions of a move tree by depth, from the start position of a board or from "
        "a "
        "position line (size, ply, key, score, horizon, squares), given as the argument or, for "
        "\"-\", on standard input, where there may be several. Every route of a capture counts.");
    parser.addOption({{"r", "rules"},
                      "international (the default), american or polish.",
                      "rules",
                      "international"});
    parser.addOption({{"s", "size"},
                      "Start position of 6, 8, 10 (the default) or 12 squares a "
                      "side.",
                      "size",
                      "10"});
    parser.addOption({{"d", "depth"},
                      QString("Count up to so many plies, 1 to %1.").arg(mostDepth),
                      "plies",
                      QString::number(defaultDepth)});
    parser.addOption({"divide", "Show the count of each first move, at the full depth only."});
    parser.addOption({"distinct",
                      "Count captures of a piece that take the same pieces and end on the "
                      "same square once, whatever their routes."});
    parser.addOption({"last", "Count at the full depth only."});
    parser.addPositionalArgument("position", "A position line, or - for standard input.",
                                 "[position]");
}

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// A line on standard error that is written over every second of a long count.
class ProgressLine {
public:
    ~ProgressLine() { clear(); }
    void show(quint64 positions) {
        if (secondsSince(last_) < 1.0)
            return;
        last_ = Clock::now();
        std::fprintf(stderr, "\r%llu positions so far ",
                     static_cast<unsigned long long>(positions));
        shown_ = true;
    }
    void clear() {
        if (shown_)
            std::fputs("\r                                      \r", stderr);
        shown_ = false;
    }

private:
    Clock::time_point last_ = Clock::now();
    bool shown_ = false;
};

void printCount(QTextStream &out, int depth, quint64 positions, double seconds) {
    out << depth << ' ' << positions << ' ' << QString::number(seconds, 'f', 3) << " s "
        << QString::number(static_cast<double>(positions) / std::max(seconds, 1e-6), 'f', 0)
        << " nodes/s\n"
        << Qt::flush;
}

void countTree(const board &position, const Options &options) {
    QTextStream out(stdout);
    ProgressLine progress;
    Perft perft(options.rules, position);
    perft.setDistinct(options.distinct);
    perft.setProgress([&](quint64 positions) { progress.show(positions); });
    if (options.divide) {
        const Clock::time_point start = Clock::now();
        quint64 total = 0;
        for (const Perft::Share &share : perft.divide(options.depth)) {
            progress.clear();
            out << share.move << ' ' << share.positions << '\n';
            total += share.positions;
        }
        printCount(out, options.depth, total, secondsSince(start));
        return;
    }
    for (int depth = options.leavesOnly ? options.depth : 1; depth <= options.depth; ++depth) {
        const Clock::time_point start = Clock::now();
        const quint64 positions = perft.count(depth);
        progress.clear();
        printCount(out, depth, positions, secondsSince(start));
    }
}

QString readOptions(const QCommandLineParser &parser, Options &options) {
    const std::optional<RuleSet> rules = ruleSetOf(parser.value("rules"));
    if (!rules.has_value())
        return QString("unknown rules \"%1\"").arg(parser.value("rules"));
    options.rules = *rules;
    options.depth = parser.value("depth").toInt();
    if (options.depth < 1 || options.depth > mostDepth) {
        return QString("the depth must be 1 to %1, not \"%2\"")
            .arg(mostDepth)
            .arg(parser.value("depth"));
    }
    options.divide = parser.isSet("divide");
    options.distinct = parser.isSet("distinct");
    options.leavesOnly = parser.isSet("last");
    return {};
}

int countStart(const QString &sizeText, const Options &options) {
    const int size = sizeText.toInt();
    if (std::find(std::begin(allBoardSizes), std::end(allBoardSizes), size) ==
        std::end(allBoardSizes))
        return fail(QString("the size must be 6, 8, 10 or 12, not \"%1\"").arg(sizeText));
    countTree(board(size), options);
    return 0;
}

int countLine(const QString &line, const Options &options) {
    QString error;
    const std::optional<board> position = readPositionLine(line, error);
    if (!position.has_value())
        return fail(error);
    countTree(*position, options);
    return 0;
}

int countStandardInput(const Options &options) {
    QTextStream in(stdin);
    int lines = 0;
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.isEmpty())
            continue;
        ++lines;
        if (const int status = countLine(line, options); status != 0)
            return status;
    }
    return lines == 0 ? fail("no position on standard input") : 0;
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
    const QStringList positions = parser.positionalArguments();
    if (positions.isEmpty())
        return countStart(parser.value("size"), options);
    if (parser.isSet("size"))
        return fail("a position has its own size; leave --size out");
    if (positions.size() == 1 && positions.first() == "-")
        return countStandardInput(options);
    return countLine(positions.join(' '), options);
}
