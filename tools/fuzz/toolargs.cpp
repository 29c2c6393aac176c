// Fuzzes what users give the tools: arguments, position lines, lists of bench tasks. Each is either
// refused with a message or gives options and positions that the tools can work with.

#include "bits/bitposition.h"
#include "tools/bench/benchrun.h"
#include "tools/bench/options.h"
#include "tools/common/positionline.h"
#include "tools/fuzz/situation.h"
#include "tools/perft/options.h"
#include "tools/perft/perft.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStringList>

namespace {

bool isPlayable(const board &b) {
    return (BitPosition<6>::representable(b) || BitPosition<8>::representable(b) ||
            BitPosition<10>::representable(b) || BitPosition<12>::representable(b)) &&
           b.plyCount >= 0 && b.whiteToMove == (b.plyCount % 2 == 0);
}

void wantPlayable(RuleSet rules, const board &b) {
    if (!isPlayable(b))
        reportFault({rules, b}, "a bad position was accepted");
}

void want(bool good, const char *what) {
    if (!good)
        reportFault({RuleSet::International, board()}, what);
}

// One ply of it, unless flying kings among many pieces would make that long.
void countOnePly(const PerftOptions &options) {
    int white = 0;
    int black = 0;
    options.position.countPieces(white, black);
    Perft perft(options.rules, options.position);
    perft.setDistinct(options.distinct);
    if (white + black > 18)
        return;
    quint64 sum = 0;
    for (const Perft::Share &share : perft.divide(1))
        sum += share.positions;
    if (sum != perft.count(1))
        reportFault({options.rules, options.position}, "the shares do not add up");
}

void perftArguments(const QStringList &arguments) {
    QCommandLineParser parser;
    describePerft(parser);
    if (!parser.parse(arguments)) {
        want(!parser.errorText().isEmpty(), "refused without a message");
        return;
    }
    PerftOptions options;
    if (!readPerftOptions(parser, options).isEmpty() || options.standardInput)
        return;
    want(options.depth >= 1 && options.depth <= 30, "perft's depth");
    wantPlayable(options.rules, options.position);
    countOnePly(options);
}

void benchArguments(const QStringList &arguments) {
    QCommandLineParser parser;
    describeBench(parser);
    BenchOptions options;
    if (!parser.parse(arguments) || !readBenchOptions(parser, options).isEmpty())
        return;
    want(options.depth >= 0 && options.depth <= mostDepth && options.seconds >= 0,
         "bench's depth and time");
}

void benchTasks(const QString &text) {
    QString error;
    for (const BenchTask &task : readTasks(text, error)) {
        wantPlayable(task.rules, task.position);
        want(task.depth >= 1 && task.depth <= mostDepth, "a task's depth");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static int argc = 1;
    static char name[] = "fuzz_toolargs";
    static char *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);

    Bytes bytes(data, size);
    const int kind = bytes.below(3);
    const QString text = QString::fromUtf8(bytes.rest());
    const QStringList arguments = QStringList{name} + text.split('\n');
    if (kind == 0)
        perftArguments(arguments);
    else if (kind == 1)
        benchArguments(arguments);
    else
        benchTasks(text);
    return 0;
}
