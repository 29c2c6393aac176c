// What is read as text: written positions and tables read back as the same, and what users give the
// tools is either refused with a message or something that the tools can work with.

#include "bits/bitposition.h"
#include "bits/dispatch.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tests/properties/tablefault.h"
#include "tests/support/enginerig.h"
#include "tools/bench/benchrun.h"
#include "tools/bench/options.h"

#include <QCommandLineParser>
#include <QStringList>
#include <QTextStream>

#include <cstdio>

namespace {

// The reader's complaints about keys would drown what else is said.
const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;

// Texts as careless users write them: up to six times a part of a good one is written twice, or
// gives way to a word that readers stumble over.
class Edits {
public:
    explicit Edits(Bytes &bytes) : changes_(bytes.front(3 * bytes.below(7))) {}

    std::string of(std::string text) const {
        constexpr const char *words[] = {
            "",  " ",  "\n", "\t", "wm",     "--",      "#",  "//idx,score\n", "\xe2\x80\x83",
            "0", "-1", "7",  "12", "polish", "--depth", "99", "2147483648",    "/dev/zero"};
        for (Bytes changes = changes_; !changes.empty();) {
            const std::size_t at = text.size() * static_cast<std::size_t>(changes.take()) / 256;
            const auto length = static_cast<std::size_t>(changes.below(64));
            const char *const word = changes.oneOf(words);
            if (length >= 16)
                text.insert(at, text.substr(at, length));
            else
                text.replace(at, length, word);
        }
        return text;
    }

private:
    Bytes changes_;
};

void want(bool good, const char *what, const std::string &where) {
    if (!good)
        reportFault(what, where);
}

std::string readAndWritten(const std::string &text, int size) {
    QString unicode = QString::fromStdString(text);
    QTextStream stream(&unicode);
    board b(size);
    b.fromStream(stream);
    want(b.whiteToMove == (b.plyCount % 2 == 0), "the wrong side is to move", text);
    return lineOf(b);
}

void positionsReadBack(Bytes &bytes) {
    const Edits edits(bytes);
    const Situation situation = readSituation(bytes);
    const std::string text = edits.of(lineOf(situation.position));
    const int size = situation.position.size;
    const std::string once = readAndWritten(text, size);
    wantSame(once, readAndWritten(once, size), text);
}

QString dumpOf(const hashTable &table) {
    QString text;
    QTextStream stream(&text);
    table.toStream(stream);
    stream.flush();
    return text;
}

// The dump of what was read.
std::string reloaded(const std::string &text, int capacity, int size) {
    hashTable table(capacity);
    QString unicode = QString::fromStdString(text);
    QTextStream stream(&unicode);
    table.fromStream(stream, size);
    wantSame("", tableFault(table), text);
    return dumpOf(table).toStdString();
}

void tablesReload(Bytes &bytes) {
    constexpr int capacities[] = {0, 1, 2, 11, 101, 1009};
    const int capacity = bytes.oneOf(capacities);
    const Edits edits(bytes);
    const Situation situation = readSituation(bytes);
    EngineRig searched(situation.rules, situation.position, 101);
    searched.statistic.setReqDepth(1);
    searched.search();
    const std::string text = edits.of(dumpOf(searched.table).toStdString());
    const std::string once = reloaded(text, capacity, situation.position.size);
    wantSame(once, reloaded(once, capacity, situation.position.size), text);
}

// What the bit sets can hold is a good position.
void wantPlayable(const board &b, const std::string &where) {
    bool good = false;
    dispatchBits(defaultRules, b.size,
                 [&](auto form) { good = BitPosition<form.squares>::representable(b); });
    want(good, "a bad position was accepted", where);
    want(b.plyCount >= 0, "a negative ply counter was accepted", where);
}

void benchArguments(Bytes &bytes) {
    const std::string line = Edits(bytes).of("--depth 3 --time 2 --only x --positions file -m");
    QCommandLineParser parser;
    describeBench(parser);
    BenchOptions options;
    if (!parser.parse(QStringList("program") + QString::fromStdString(line).split(' '))) {
        want(!parser.errorText().isEmpty(), "refused without a message", line);
        return;
    }
    if (!readBenchOptions(parser, options).isEmpty())
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
    static constexpr Property all[] = {positionsReadBack, tablesReload, benchArguments, benchTasks};
    return all;
}
