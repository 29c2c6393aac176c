// Whole searches and games: on bit sets they go as over engines alone, and nothing is left behind.

#include "search/nodeprocedure.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tests/properties/tablefault.h"
#include "tests/support/enginerig.h"

#include <algorithm>

#include <memory>

#include <malloc.h>

namespace {

struct Request {
    int plies; // 0: by time
    int seconds;
    int scoreNoise;
    bool giveAway;
    int tableSize;
    int eventRounds; // until BREAK; 201 nodes each
    int msPerReading;
    int timeCredit;
    unsigned seed;
};

Request readRequest(Bytes &bytes) {
    constexpr int unlimited = thinkStatistic::unlimitedSeconds;
    constexpr struct {
        int plies, seconds, scoreNoise;
    } levels[] = {{1, 0, 1000}, {2, 0, 400}, {0, 2, 5},  {0, 5, 5},
                  {0, 10, 5},   {0, 20, 5},  {0, 60, 5}, {0, unlimited, 5}};
    constexpr int tableSizes[] = {1009, 1, 7, 101};
    const auto &level = bytes.oneOf(levels);
    const int plies = bytes.below(6);
    // Most searches short: what matters happens in the first thousand nodes.
    const auto rounds = [&bytes](int byte) { return byte < 224 ? byte % 5 : 20 * (byte % 20); };
    return {.plies = plies > 0 ? plies : level.plies,
            .seconds = level.seconds,
            .scoreNoise = level.scoreNoise,
            .giveAway = bytes.below(2) == 1,
            .tableSize = bytes.oneOf(tableSizes),
            .eventRounds = rounds(bytes.take()),
            .msPerReading = 100 * bytes.take(),
            .timeCredit = 1000 * (bytes.take() - 128),
            .seed = static_cast<unsigned>(bytes.take())};
}

std::string words(std::initializer_list<std::pair<const char *, int>> numbers) {
    std::string text;
    for (const auto &[name, number] : numbers)
        text += std::string(name) + ' ' + std::to_string(number) + '\n';
    return text;
}

// All that a search says and leaves, but the tree.
std::string outcome(const EngineRig &rig, const std::string &move) {
    const thinkStatistic &s = rig.statistic;
    const board &b = rig.position;
    std::string text = "move " + move + '\n' + rig.lineText() + lineOf(b) + '\n';
    text += words({{"score", rig.score.value},
                   {"score's depth", rig.score.depth},
                   {"budget", rig.engine->depth},
                   {"nodes", s.nodes},
                   {"moves", s.movesGenerated},
                   {"valued", s.scoresCalculated},
                   {"cut-offs", s.cutoffs},
                   {"sacrifices", s.senselessSacrifices},
                   {"hash hits", s.hashHits},
                   {"deepest level", s.maxLevel},
                   {"time credit", s.timeCredit},
                   {"rounds of events", rig.host.eventRounds},
                   {"beeps", rig.host.beeps},
                   {"stored", rig.table.count},
                   {"broken off", AbstractEngine::breakThinking}});
    for (const LegalMove &m : rig.engine->moveList)
        text += moveText(m) + words({{"", m.score}, {"reduced by", m.reduction}});
    for (const RecordingHost::Box &box : rig.host.boxes)
        text += box.title.toStdString() + ": " + box.text.toStdString() + '\n';
    return text;
}

// Every board in the tree is the one above after the move that it hangs on.
std::string treeFault(AbstractEngine &engine) {
    for (LegalMove &m : engine.moveList) {
        if (m.subBoard == nullptr)
            continue;
        board after(engine.board);
        engine.makeMove(&after, &m);
        if (picture(after) != picture(*m.subBoard))
            return "the tree has another position after " + moveText(m);
        if (m.subEngine == nullptr)
            continue;
        if (m.subEngine->board != m.subBoard)
            return "an engine of the tree with another's board";
        const std::string below = treeFault(*m.subEngine);
        if (!below.empty())
            return below;
    }
    return {};
}

std::string countersFault(const thinkStatistic &s) {
    for (const int counter : {s.nodes, s.movesGenerated, s.scoresCalculated, s.cutoffs,
                              s.senselessSacrifices, s.hashHits, s.elapsedMs, s.movesPerMs}) {
        if (counter < 0)
            return "a negative counter";
    }
    return s.maxLevel <= levelLimit ? "" : "beyond the level limit";
}

std::string listFault(const EngineRig &rig, const std::string &move) {
    const QValueList<LegalMove> &list = rig.engine->moveList;
    const bool listed = std::any_of(list.begin(), list.end(),
                                    [&](const LegalMove &m) { return moveText(m) == move; });
    return listed || (list.isEmpty() && move == "none") ? "" : "a move that is not listed";
}

// Searches, and looks whether all is sound afterwards.
std::string searchSoundly(EngineRig &rig, const std::string &where) {
    const std::string before = picture(rig.position);
    const std::string move = rig.search();
    wantSame(before, picture(rig.position), where);
    for (const std::string &fault : {listFault(rig, move), countersFault(rig.statistic),
                                     tableFault(rig.table), treeFault(*rig.engine)}) {
        if (!fault.empty())
            reportFault(fault, where);
    }
    return move;
}

void prepare(EngineRig &rig, const Request &request) {
    rig.statistic.giveAway = request.giveAway;
    rig.statistic.scoreNoise = request.scoreNoise;
    if (request.plies > 0)
        rig.statistic.setReqDepth(request.plies);
    else
        rig.statistic.setReqTime(request.seconds);
    rig.statistic.timeCredit = request.timeCredit;
    rig.host.msPerReading = request.msPerReading;
    rig.host.fixedSeed = request.seed;
    rig.host.onEvents = [&rig, rounds = request.eventRounds] {
        if (rig.host.eventRounds > rounds)
            AbstractEngine::breakThinking = true;
    };
}

// A short search without a break, of a rig that is fresh or not.
std::string shortSearch(EngineRig &rig, const std::string &where) {
    rig.statistic.setReqDepth(2);
    rig.host.onEvents = nullptr;
    rig.host.eventRounds = rig.host.beeps = 0;
    rig.host.boxes.clear();
    rig.position.plyCount = 0; // as the record below, not what this is about
    AbstractEngine::eventLoop = 0;
    return outcome(rig, searchSoundly(rig, where));
}

void searchesOnBitsGoAsOverEngines(Bytes &bytes) {
    const Request request = readRequest(bytes);
    const Situation situation = readSituation(bytes);
    const std::string where = describe(situation);
    const auto found = [&](bool overEngines) {
        EngineRig rig(situation.rules, situation.position, request.tableSize);
        if (overEngines)
            rig.leaveOutBits();
        prepare(rig, request);
        return outcome(rig, searchSoundly(rig, where));
    };
    wantSame(found(true), found(false), where);
}

void aSearchLeavesNothingBehind(Bytes &bytes) {
    const Request request = readRequest(bytes);
    const Situation situation = readSituation(bytes);
    const std::string where = describe(situation);
    std::string again;
    {
        EngineRig rig(situation.rules, situation.position, request.tableSize);
        prepare(rig, request);
        searchSoundly(rig, where);
        again = shortSearch(rig, where);
    }
    EngineRig fresh(situation.rules, situation.position, request.tableSize);
    prepare(fresh, request);
    wantSame(again, shortSearch(fresh, where), where);
}

// Bytes in use on the heap, with what the allocator keeps for the next request of a size: a few
// hundred kilobytes at most. Always 0 where a sanitizer looks after the heap.
std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

void playGame(const Request &request, const Situation &start) {
    constexpr int mostPlies = 80;
    EngineRig rig(start.rules, start.position, request.tableSize);
    prepare(rig, request);
    rig.statistic.setReqDepth(1 + request.plies % 2);
    rig.host.onEvents = nullptr;
    for (int ply = 0; ply < mostPlies; ++ply) {
        const Situation now{start.rules, rig.position};
        const std::string where = describe(now);
        const std::string move = searchSoundly(rig, where);
        if (move == "none")
            return;
        if (rig.score.isNone())
            reportFault("the score is none", where);
        board copy = now.position;
        const std::unique_ptr<AbstractEngine> referee(
            newEngine(now.rules, &copy, 1, &rig.statistic, copy.size));
        referee->FillMoveList();
        QValueList<LegalMove> &legal = referee->moveList;
        const auto played = std::find_if(legal.begin(), legal.end(),
                                         [&](const LegalMove &m) { return moveText(m) == move; });
        if (played == legal.end())
            reportFault("an illegal move " + move, where);
        rig.engine->makeMove(&rig.position, &*played);
    }
}

void gamesAreLegalAndGiveTheirMemoryBack(Bytes &bytes) {
    const Request request = readRequest(bytes);
    const Situation start = readSituation(bytes);
    playGame(request, start);
    constexpr std::size_t mostGrowth = 512 << 10;
    static const std::size_t settled = heapInUse();
    if (heapInUse() > settled + mostGrowth)
        reportFault("the games until now have lost memory", describe(start));
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {{"bits", searchesOnBitsGoAsOverEngines},
                                       {"soundness", aSearchLeavesNothingBehind},
                                       {"games", gamesAreLegalAndGiveTheirMemoryBack}};
    return all;
}
