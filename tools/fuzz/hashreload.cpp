// Fuzzes the hash table's reload, and a search with the reloaded table in force.

#include "eval/squaresvalue.h"
#include "search/abstractengine.h"
#include "search/bestline.h"
#include "search/hashtable.h"
#include "search/thinkstatistic.h"
#include "tests/support/recordinghost.h"
#include "tools/common/tablefault.h"
#include "tools/fuzz/situation.h"

#include <QIODevice>
#include <QString>
#include <QTextStream>

#include <cstdio>
#include <memory>

namespace {

constexpr int tableSizes[] = {0, 1, 2, 11, 101, 10003};

QString dumpOf(const hashTable &table) {
    QString text;
    QTextStream stream(&text);
    table.toStream(stream);
    stream.flush();
    return text;
}

void reload(hashTable &table, QString text, int n) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    table.fromStream(stream, n);
}

void checkTable(const hashTable &table, const Situation &situation) {
    if (const QString fault = tableFault(table); !fault.isEmpty())
        reportFault(situation, fault.toStdString());
    for (int i = 0; i < table.size; ++i) {
        if (!table.Tempty[i] && table.Tboards[i].size != situation.position.size)
            reportFault(situation, "a reloaded position has another size");
    }
}

// One node below the root: only there the table is not emptied first.
void searchWith(hashTable &table, Situation &situation) {
    const int size = situation.position.size;
    XY::B_SIZE = size;
    thinkStatistic statistic;
    statistic.scoreNoise = 1;
    SquaresValue values(size, false);
    AbstractEngine::setSQV(&values);
    AbstractEngine::setHashTable(&table);
    AbstractEngine::eventLoop = 0;
    AbstractEngine::breakThinking = false;
    AbstractEngine::absHorizon = 2;
    constexpr int twoPlies = 20;
    const std::unique_ptr<AbstractEngine> engine(
        newEngine(situation.rules, &situation.position, twoPlies, &statistic, size));
    const Score none(Score::none, -1);
    Score value = none;
    BestLine line;
    engine->getBestMove(1, value, none, none, line, false);
    AbstractEngine::setSQV(nullptr);
    AbstractEngine::setHashTable(nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;
    RecordingHost host;
    Bytes bytes(data, size);
    hashTable table(tableSizes[bytes.below(6)]);
    Situation situation{allRuleSets[bytes.below(3)],
                        board(quiet ? allBoardSizes[bytes.below(4)] : 6)};
    reload(table, QString::fromUtf8(bytes.rest()), situation.position.size);
    checkTable(table, situation);
    const QString dump = dumpOf(table);
    hashTable again(table.size);
    reload(again, dump, situation.position.size);
    if (dumpOf(again) != dump)
        reportFault(situation, "a dump reloads differently:\n" + dump.toStdString());
    host.onEvents = [&host] { AbstractEngine::breakThinking = host.eventRounds > 5; };
    searchWith(table, situation);
    return 0;
}
