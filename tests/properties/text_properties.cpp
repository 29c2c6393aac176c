// Positions and tables as text: whatever is read, what is then written reads back as the same.

#include "tests/properties/editedtext.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tests/properties/tablefault.h"
#include "tests/support/enginerig.h"

#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

// The reader's complaints about keys would drown what else is said.
void beQuiet() {
    static const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;
    if (!quiet)
        std::perror("/dev/null");
}

// All that the text form has, and the marks.
std::string contents(const board &b) {
    std::string text = lineOf(b) + (b.whiteToMove ? " white" : " black");
    for (const auto &column : b.squares) {
        for (const unsigned char code : column)
            text += ' ' + std::to_string(code);
    }
    return text;
}

std::string readFrom(QTextStream &stream, int size) {
    board b(size);
    b.fromStream(stream);
    if (b.whiteToMove != (b.plyCount % 2 == 0))
        reportFault("the side to move does not follow from the ply counter", lineOf(b));
    return contents(b);
}

std::string readFrom(const std::string &text, int size) {
    QString unicode = QString::fromStdString(text);
    QTextStream stream(&unicode);
    return readFrom(stream, size);
}

void positionsReadBack(Bytes &bytes) {
    beQuiet();
    const Edits edits(bytes);
    Situation situation = readSituation(bytes);
    const std::string text = edits.of(lineOf(situation.position));
    const int size = situation.position.size;

    board b(size);
    QString unicode = QString::fromStdString(text);
    QTextStream stream(&unicode);
    b.fromStream(stream);
    wantSame(contents(b), readFrom(lineOf(b), size), text);

    // Letters of one byte each read the same from bytes as from a string.
    if (std::all_of(text.begin(), text.end(), [](char c) { return c > 0; })) {
        QTextStream ofBytes(QByteArray::fromStdString(text));
        wantSame(contents(b), readFrom(ofBytes, size), text);
    }
}

std::string dumpOf(const hashTable &table) {
    QString text;
    QTextStream stream(&text);
    table.toStream(stream);
    stream.flush();
    return text.toStdString();
}

void reload(hashTable &table, const std::string &text, int n) {
    QString unicode = QString::fromStdString(text);
    QTextStream stream(&unicode);
    table.fromStream(stream, n);
    if (const std::string fault = tableFault(table); !fault.empty())
        reportFault(fault, text);
    for (int i = 0; i < table.size; ++i) {
        if (!table.Tempty[i] && table.Tboards[i].size != n)
            reportFault("a reloaded position has another size", text);
    }
}

// What a search of a few hundred nodes stores.
std::string searchedTable(const Situation &situation) {
    EngineRig rig(situation.rules, situation.position, 101);
    rig.statistic.setReqDepth(3);
    rig.host.onEvents = [&rig] { AbstractEngine::breakThinking = rig.host.eventRounds > 2; };
    rig.search();
    return dumpOf(rig.table);
}

// One node below the root: only there the table is not emptied first.
void searchWithTable(const std::string &text, const Situation &situation, int capacity) {
    EngineRig rig(situation.rules, situation.position, capacity);
    reload(rig.table, text, situation.position.size);
    rig.host.onEvents = [&rig] { AbstractEngine::breakThinking = rig.host.eventRounds > 5; };
    AbstractEngine::absHorizon = 2;
    rig.engine->depth = 20;
    const Score none(Score::none, -1);
    rig.engine->getBestMove(1, rig.score, none, none, rig.line, false);
    if (const std::string fault = tableFault(rig.table); !fault.empty())
        reportFault(fault, text);
}

void tablesReload(Bytes &bytes) {
    beQuiet();
    constexpr int capacities[] = {0, 1, 2, 11, 101, 1009};
    const int capacity = bytes.oneOf(capacities);
    const Edits edits(bytes);
    const Situation situation = readSituation(bytes);
    const std::string text = edits.of(searchedTable(situation));
    const int size = situation.position.size;
    hashTable table(capacity);
    reload(table, text, size);
    hashTable again(capacity);
    reload(again, dumpOf(table), size);
    wantSame(dumpOf(table), dumpOf(again), text);
    searchWithTable(text, situation, capacity);
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {{"positions", positionsReadBack}, {"tables", tablesReload}};
    return all;
}
