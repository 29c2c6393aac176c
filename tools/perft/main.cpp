// perft: counts the move tree of a position by depth, to check a move generator and to time it.

#include "tools/common/commandline.h"
#include "tools/common/positionline.h"
#include "tools/perft/options.h"
#include "tools/perft/perft.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

using Clock = std::chrono::steady_clock;

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

void countTree(const board &position, const PerftOptions &options) {
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

int countLine(const QString &line, const PerftOptions &options) {
    QString error;
    const std::optional<board> position = readPositionLine(line, error);
    if (!position.has_value())
        return fail(error);
    countTree(*position, options);
    return 0;
}

int countStandardInput(const PerftOptions &options) {
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
    describePerft(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    PerftOptions options;
    if (const QString wrong = readPerftOptions(parser, options); !wrong.isEmpty())
        return fail(wrong);
    if (options.standardInput)
        return countStandardInput(options);
    countTree(options.position, options);
    return 0;
}
