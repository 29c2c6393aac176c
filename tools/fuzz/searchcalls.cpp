// Fuzzes the search: over bit sets and over engines it finds the same, down to the last counter, at
// every level, with and without giving away, broken off or not, with large tables and tiny ones.

#include "app/choices.h"
#include "eval/squaresvalue.h"
#include "search/abstractengine.h"
#include "search/bestline.h"
#include "search/deepsearch.h"
#include "search/hashtable.h"
#include "search/nodeprocedure.h"
#include "search/thinkstatistic.h"
#include "tests/support/recordinghost.h"
#include "tools/fuzz/situation.h"

#include <memory>
#include <vector>

namespace {

constexpr int levels = 8;
constexpr int tableSizes[] = {1009, 1, 7, 101};

struct Request {
    Level level;
    int plies; // above 0: in place of the level's request
    bool giveAway;
    int tableSize;
    int eventRounds; // until BREAK; 201 nodes each
    int msPerReading;
    int timeCredit;
    unsigned int seed;
};

Request readRequest(Bytes &bytes) {
    Request request{};
    request.level = levelChoice(bytes.below(levels)).value_or(fallbackLevel);
    request.plies = bytes.below(6);
    request.giveAway = bytes.below(2) == 1;
    request.tableSize = tableSizes[bytes.below(4)];
    // Most searches short: what matters happens in the first thousand nodes.
    const int rounds = bytes.take();
    request.eventRounds = rounds < 224 ? rounds % 5 : rounds % 20;
    request.msPerReading = 100 * bytes.take();
    request.timeCredit = 1000 * (bytes.take() - 128);
    request.seed = static_cast<unsigned>(bytes.take());
    return request;
}

struct Found {
    QString move;
    QString line;
    std::vector<int> numbers;
    std::vector<RecordingHost::Box> boxes;
    bool operator==(const Found &) const = default;
};

void applyRequest(const Request &request, thinkStatistic &statistic) {
    statistic.giveAway = request.giveAway;
    statistic.scoreNoise = request.level.scoreNoise;
    if (request.plies > 0)
        statistic.setReqDepth(request.plies);
    else if (request.level.plies > 0)
        statistic.setReqDepth(request.level.plies);
    else
        statistic.setReqTime(request.level.seconds);
    statistic.timeCredit = request.timeCredit;
}

// What is wrong with the outcome whatever the twin says.
void checkOutcome(const Situation &situation, AbstractEngine &engine, const LegalMove *best) {
    const thinkStatistic &s = *engine.statistic;
    for (const int counter : {s.nodes, s.movesGenerated, s.scoresCalculated, s.cutoffs,
                              s.senselessSacrifices, s.hashHits, s.elapsedMs, s.movesPerMs}) {
        if (counter < 0)
            reportFault(situation, "a negative counter");
    }
    if (s.maxLevel > levelLimit)
        reportFault(situation, "beyond the level limit");
    bool listed = best == nullptr && engine.moveList.isEmpty();
    for (const LegalMove &m : engine.moveList)
        listed = listed || &m == best;
    if (!listed)
        reportFault(situation, "the move is not one of the list");
}

Found search(const Situation &situation, const Request &request, bool straightforward) {
    RecordingHost host;
    host.msPerReading = request.msPerReading;
    host.fixedSeed = request.seed;
    host.onEvents = [&] {
        if (host.eventRounds > request.eventRounds)
            AbstractEngine::breakThinking = true;
    };
    board position = situation.position;
    thinkStatistic statistic;
    applyRequest(request, statistic);
    SquaresValue values(position.size, false);
    hashTable table(request.tableSize);
    AbstractEngine::setSQV(&values);
    AbstractEngine::setHashTable(&table);
    AbstractEngine::eventLoop = 0;
    DeepSearch::enable(!straightforward);
    const std::unique_ptr<AbstractEngine> engine(
        newEngine(situation.rules, &position, 1, &statistic, position.size));

    Score score(0, -1);
    BestLine line;
    const LegalMove *best = engine->getBestMove(score, line);
    checkOutcome(situation, *engine, best);
    Found found;
    if (best != nullptr)
        best->ToString(found.move);
    line.asString(found.line);
    const thinkStatistic &s = statistic;
    found.numbers = {score.value,          score.depth,        engine->depth, s.nodes,
                     s.movesGenerated,     s.scoresCalculated, s.cutoffs,     s.senselessSacrifices,
                     s.hashHits,           s.maxLevel,         s.timeCredit,  position.hashScore,
                     position.hashHorizon, host.eventRounds,   table.count};
    found.boxes = host.boxes;
    DeepSearch::enable(true);
    AbstractEngine::setSQV(nullptr);
    AbstractEngine::setHashTable(nullptr);
    return found;
}

std::string text(const Found &found) {
    std::string all = found.move.toStdString();
    for (const int number : found.numbers)
        all += ' ' + std::to_string(number);
    return all + '\n' + found.line.toStdString();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Bytes bytes(data, size);
    const Request request = readRequest(bytes);
    const Situation situation = readSituation(bytes);
    const Found overEngines = search(situation, request, true);
    const Found onBits = search(situation, request, false);
    if (!(overEngines == onBits))
        reportFault(situation,
                    "over engines: " + text(overEngines) + "on bit sets: " + text(onBits));
    return 0;
}
