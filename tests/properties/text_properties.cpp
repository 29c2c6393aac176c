// What is read as text: written positions and tables read back as the same, and what users give the
// tools is either refused with a message or something that the tools can work with.

#include "tests/properties/harness.h"
#include "tests/support/enginerig.h"
#include "tools/bench/benchrun.h"
#include "tools/bench/options.h"

#include <QCommandLineParser>

#include <cstdio>

namespace {

// The reader's complaints about keys would drown what else is said.
const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;

// Up to six changes of a text, three bytes each.
Bytes takeChanges(Bytes &bytes) {
    return bytes.front(3 * bytes.below(7));
}

// A text as careless users write it: a part of a good one is written twice, or gives way to a word
// that readers stumble over.
std::string changed(std::string text, Bytes changes) {
    constexpr const char *words[] = {
        "",  " ",  "\n", "\t", "wm",     "--",      "#",  "//idx,score\n", "\xe2\x80\x83",
        "0", "-1", "7",  "12", "polish", "--depth", "99", "2147483648",    "/dev/zero"};
    while (!changes.empty()) {
        const std::size_t at = text.size() * static_cast<std::size_t>(changes.take()) / 256;
        const auto length = static_cast<std::size_t>(changes.below(64));
        const std::string word = changes.oneOf(words);
        text.replace(at, length < 16 ? length : 0, length < 16 ? word : text.substr(at, length));
    }
    return text;
}

// Reads a board or a table from any text and writes it again.
std::string rewritten(auto &thing, const std::string &text, auto... size) {
    QString unicode = QString::fromStdString(text);
    QTextStream stream(&unicode);
    thing.fromStream(stream, size...);
    return textOf(thing);
}

void positionsReadBack(Bytes &bytes) {
    const Bytes changes = takeChanges(bytes);
    board b = readSituation(bytes).position;
    const std::string text = changed(textOf(b), changes);
    const std::string once = rewritten(b, text);
    want(b.whiteToMove == (b.plyCount % 2 == 0), "the wrong side is to move", text);
    board again(b.size);
    wantSame(once, rewritten(again, once), text);
}

void tablesReload(Bytes &bytes) {
    constexpr int capacities[] = {0, 1, 2, 11, 101, 1009};
    const int capacity = bytes.oneOf(capacities);
    const Bytes changes = takeChanges(bytes);
    const Situation situation = readSituation(bytes);
    EngineRig searched(situation.rules, situation.position, 101);
    searched.statistic.setReqDepth(1);
    searched.search();
    const std::string text = changed(textOf(searched.table), changes);
    hashTable table(capacity);
    const std::string once = rewritten(table, text, situation.position.size);
    wantSound(table, text);
    hashTable again(capacity);
    wantSame(once, rewritten(again, once, situation.position.size), text);
}

void benchArguments(Bytes &bytes) {
    const std::string line =
        changed("--depth 3 --time 2 --only x --positions file -m", takeChanges(bytes));
    QCommandLineParser parser;
    describeBench(parser);
    BenchOptions options;
    const bool parsed =
        parser.parse(QStringList("program") + QString::fromStdString(line).split(' '));
    want(parsed || !parser.errorText().isEmpty(), "refused without a message", line);
    if (!parsed || !readBenchOptions(parser, options).isEmpty())
        return;
    want(options.depth >= 0 && options.depth <= mostDepth, "the depth", line);
    want(options.seconds >= 0, "the time", line);
    QString error;
    want(!tasksText(options, error).isEmpty() || !error.isEmpty(), "no tasks, no message", line);
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {positionsReadBack, tablesReload, benchArguments};
    return all;
}
