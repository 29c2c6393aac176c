// What users give the tools is either refused with a message or gives options and positions that
// the tools can work with.

#include "bits/bitposition.h"
#include "bits/dispatch.h"
#include "tests/properties/editedtext.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tools/bench/benchrun.h"
#include "tools/bench/options.h"
#include "tools/perft/options.h"

#include <QCommandLineParser>
#include <QStringList>

namespace {

void want(bool good, const char *what, const std::string &where) {
    if (!good)
        reportFault(what, where);
}

// What the bit sets can hold is a good position.
void wantPlayable(const board &b, const std::string &where) {
    bool good = false;
    dispatchBits(defaultRules, b.size,
                 [&](auto form) { good = BitPosition<form.squares>::representable(b); });
    want(good, "a bad position was accepted", where);
    want(b.plyCount >= 0, "a negative ply counter was accepted", where);
    want(b.whiteToMove == (b.plyCount % 2 == 0), "the wrong side is to move", where);
}

bool parse(QCommandLineParser &parser, const std::string &line) {
    const bool good =
        parser.parse(QStringList("program") + QString::fromStdString(line).split(' '));
    want(good || !parser.errorText().isEmpty(), "refused without a message", line);
    return good;
}

void perftArguments(Bytes &bytes) {
    const Edits edits(bytes);
    const std::string position = lineOf(readSituation(bytes).position);
    const std::string line = edits.of("--rules american --depth 3 --divide " + position);
    QCommandLineParser parser;
    describePerft(parser);
    PerftOptions options;
    if (!parse(parser, line) || !readPerftOptions(parser, options).isEmpty() ||
        options.standardInput)
        return;
    want(options.depth >= 1 && options.depth <= 30, "the depth", line);
    wantPlayable(options.position, line);
}

void benchArguments(Bytes &bytes) {
    const std::string line = Edits(bytes).of("--depth 3 --time 2 --only x --positions file -m");
    QCommandLineParser parser;
    describeBench(parser);
    BenchOptions options;
    if (!parse(parser, line) || !readBenchOptions(parser, options).isEmpty())
        return;
    want(options.depth >= 0 && options.depth <= mostDepth, "the depth", line);
    want(options.seconds >= 0, "the time", line);
    QString error;
    want(!tasksText(options, error).isEmpty() || !error.isEmpty(), "no tasks, no message", line);
}

void benchTasks(Bytes &bytes) {
    const Edits edits(bytes);
    const std::string text = edits.of(describe(readSituation(bytes)));
    QString error;
    for (const BenchTask &task : readTasks(QString::fromStdString(text), error)) {
        wantPlayable(task.position, text);
        want(task.depth >= 1 && task.depth <= mostDepth, "a task's depth", text);
    }
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {perftArguments, benchArguments, benchTasks};
    return all;
}
