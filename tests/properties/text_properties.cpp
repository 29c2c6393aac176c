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
const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;

std::string readAndWritten(QTextStream &&stream, int size) {
    board b(size);
    b.fromStream(stream);
    return lineOf(b) + (b.whiteToMove ? ", white" : ", black");
}

std::string readAndWritten(const std::string &text, int size) {
    QString unicode = QString::fromStdString(text);
    return readAndWritten(QTextStream(&unicode), size);
}

void positionsReadBack(Bytes &bytes) {
    const Edits edits(bytes);
    const Situation situation = readSituation(bytes);
    const std::string text = edits.of(lineOf(situation.position));
    const int size = situation.position.size;
    const std::string once = readAndWritten(text, size);
    wantSame(once, readAndWritten(once, size), text);
    if (once.ends_with("white") != (once[once.find(' ', 3) - 1] % 2 == 0))
        reportFault("the side to move does not follow from the ply counter", text);

    // Letters of one byte each read the same from bytes as from a string.
    if (std::all_of(text.begin(), text.end(), [](char c) { return c > 0; }))
        wantSame(once, readAndWritten(QTextStream(QByteArray::fromStdString(text)), size), text);
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
    wantSame("", tableFault(table), text);
    for (int i = 0; i < table.size; ++i) {
        if (!table.Tempty[i] && table.Tboards[i].size != n)
            reportFault("a reloaded position has another size", text);
    }
}

// Searches some nodes of a node below the root: there the table is not emptied first.
void searchNode(EngineRig &rig) {
    rig.host.onEvents = [&rig] { AbstractEngine::breakThinking = rig.host.eventRounds > 2; };
    AbstractEngine::absHorizon = 2;
    rig.engine->depth = 20;
    const Score none(Score::none, -1);
    rig.engine->getBestMove(1, rig.score, none, none, rig.line, false);
}

void tablesReload(Bytes &bytes) {
    constexpr int capacities[] = {0, 1, 2, 11, 101, 1009};
    const int capacity = bytes.oneOf(capacities);
    const Edits edits(bytes);
    const Situation situation = readSituation(bytes);
    const int size = situation.position.size;
    EngineRig searched(situation.rules, situation.position, 101);
    searchNode(searched);
    const std::string text = edits.of(dumpOf(searched.table));

    EngineRig rig(situation.rules, situation.position, capacity);
    reload(rig.table, text, size);
    hashTable again(capacity);
    reload(again, dumpOf(rig.table), size);
    wantSame(dumpOf(rig.table), dumpOf(again), text);
    searchNode(rig);
    wantSame("", tableFault(rig.table), text);
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {positionsReadBack, tablesReload};
    return all;
}
