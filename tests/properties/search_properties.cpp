// Whole searches and games: on bit sets they go as over engines alone, and nothing is left behind.

#include "search/nodeprocedure.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tests/properties/tablefault.h"
#include "tests/support/enginerig.h"

#include <sstream>

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
    constexpr struct {
        int plies, seconds, scoreNoise;
    } levels[] = {{1, 0, 1000}, {2, 0, 400}, {0, 2, 5},  {0, 5, 5},
                  {0, 10, 5},   {0, 20, 5},  {0, 60, 5}, {0, thinkStatistic::unlimitedSeconds, 5}};
    const auto &level = bytes.oneOf(levels);
    const int plies = bytes.below(6);
    const bool giveAway = bytes.below(2) == 1;
    constexpr int tableSizes[] = {1009, 1, 7, 101};
    const int tableSize = bytes.oneOf(tableSizes);
    // Most searches short: what matters happens in the first thousand nodes.
    const int rounds = bytes.take();
    return {.plies = plies > 0 ? plies : level.plies,
            .seconds = level.seconds,
            .scoreNoise = level.scoreNoise,
            .giveAway = giveAway,
            .tableSize = tableSize,
            .eventRounds = rounds < 224 ? rounds % 5 : 20 * (rounds % 20),
            .msPerReading = 100 * bytes.take(),
            .timeCredit = 1000 * (bytes.take() - 128),
            .seed = static_cast<unsigned>(bytes.take())};
}

// A rig that searches as requested, until BREAK where there is one.
struct RequestedRig : EngineRig {
    RequestedRig(const Situation &situation, const Request &request)
        : EngineRig(situation.rules, situation.position, request.tableSize) {
        statistic.giveAway = request.giveAway;
        statistic.scoreNoise = request.scoreNoise;
        if (request.plies > 0)
            statistic.setReqDepth(request.plies);
        else
            statistic.setReqTime(request.seconds);
        statistic.timeCredit = request.timeCredit;
        host.msPerReading = request.msPerReading;
        host.fixedSeed = request.seed;
        host.onEvents = [this, rounds = request.eventRounds] {
            AbstractEngine::breakThinking |= host.eventRounds > rounds;
        };
    }
};

// All that a search says and leaves, but the tree.
std::string outcome(const EngineRig &rig, const std::string &move) {
    const thinkStatistic &s = rig.statistic;
    std::ostringstream out;
    out << "move " << move << ", score " << rig.score.value << " of depth " << rig.score.depth
        << "\nline\n"
        << rig.lineText() << "position " << lineOf(rig.position) << "\nbudget " << rig.engine->depth
        << ", nodes " << s.nodes << ", moves " << s.movesGenerated << ", valued "
        << s.scoresCalculated << ", cut-offs " << s.cutoffs << ", sacrifices "
        << s.senselessSacrifices << ", hash hits " << s.hashHits << ", deepest level " << s.maxLevel
        << ", time credit " << s.timeCredit << ", rounds of events " << rig.host.eventRounds
        << ", beeps " << rig.host.beeps << ", stored " << rig.table.count << ", broken off "
        << AbstractEngine::breakThinking << '\n';
    for (const LegalMove &m : rig.engine->moveList)
        out << moveText(m) << ' ' << m.score << ", reduced by " << m.reduction << '\n';
    for (const RecordingHost::Box &box : rig.host.boxes)
        out << box.title.toStdString() << ": " << box.text.toStdString() << '\n';
    return out.str();
}

// Every board in the tree is the one above after the move that it hangs on.
void wantSoundTree(AbstractEngine &engine, const std::string &where) {
    for (LegalMove &m : engine.moveList) {
        if (m.subBoard == nullptr)
            continue;
        board after(engine.board);
        engine.makeMove(&after, &m);
        wantSame(picture(after), picture(*m.subBoard), "the tree below " + where);
        if (m.subEngine == nullptr)
            continue;
        if (m.subEngine->board != m.subBoard)
            reportFault("an engine of the tree has another's board", where);
        wantSoundTree(*m.subEngine, where);
    }
}

void wantSoundCounters(const thinkStatistic &s, const std::string &where) {
    for (const int counter : {s.nodes, s.movesGenerated, s.scoresCalculated, s.cutoffs,
                              s.senselessSacrifices, s.hashHits, s.elapsedMs, s.movesPerMs}) {
        if (counter < 0)
            reportFault("a negative counter", where);
    }
    if (s.maxLevel > levelLimit)
        reportFault("beyond the level limit", where);
}

// Searches, and looks whether all is sound afterwards. The move; none where there is no legal one.
LegalMove *searchSoundly(EngineRig &rig, const std::string &where) {
    const std::string before = picture(rig.position);
    LegalMove *found = rig.engine->getBestMove(rig.score, rig.line);
    wantSame(before, picture(rig.position), where);
    wantSoundCounters(rig.statistic, where);
    wantSoundTree(*rig.engine, where);
    wantSame("", tableFault(rig.table), where);
    bool listed = found == nullptr && rig.engine->moveList.isEmpty();
    for (const LegalMove &m : rig.engine->moveList)
        listed = listed || &m == found;
    if (!listed)
        reportFault("the move is not one of the list", where);
    return found;
}

std::string outcomeOfSearch(EngineRig &rig, const std::string &where) {
    const LegalMove *move = searchSoundly(rig, where);
    return outcome(rig, move == nullptr ? "none" : moveText(*move));
}

void searchesOnBitsGoAsOverEngines(Bytes &bytes) {
    const Request request = readRequest(bytes);
    const Situation situation = readSituation(bytes);
    const std::string where = describe(situation);
    const auto found = [&](bool overEngines) {
        RequestedRig rig(situation, request);
        if (overEngines)
            rig.leaveOutBits();
        return outcomeOfSearch(rig, where);
    };
    wantSame(found(true), found(false), where);
}

// Whatever was searched before and however that ended: the next search goes as in a fresh rig.
void aSearchLeavesNothingBehind(Bytes &bytes) {
    const Request request = readRequest(bytes);
    const Situation situation = readSituation(bytes);
    const std::string where = describe(situation);
    const auto shortSearch = [&](bool afterAnother) {
        RequestedRig rig(situation, request);
        if (afterAnother)
            searchSoundly(rig, where);
        rig.statistic.setReqDepth(2);
        rig.host.onEvents = nullptr;
        rig.host.eventRounds = rig.host.beeps = 0;
        rig.host.boxes.clear();
        AbstractEngine::eventLoop = 0;
        return outcomeOfSearch(rig, where);
    };
    wantSame(shortSearch(false), shortSearch(true), where);
}

void playGame(const Request &request, const Situation &start) {
    constexpr int mostPlies = 80;
    RequestedRig rig(start, request);
    rig.statistic.setReqDepth(1 + request.plies % 2);
    rig.host.onEvents = nullptr;
    for (int ply = 0; ply < mostPlies; ++ply) {
        const std::string where = describe({start.rules, rig.position});
        board copy = rig.position;
        const auto referee = newEngine(start.rules, &copy, 1, &rig.statistic, copy.size);
        referee->FillMoveList();
        LegalMove *move = searchSoundly(rig, where);
        if (move == nullptr)
            return;
        if (rig.score.isNone())
            reportFault("the score is none", where);
        if (moveText(referee->moveList).find(moveText(*move)) == std::string::npos)
            reportFault("an illegal move " + moveText(*move), where);
        rig.engine->makeMove(&rig.position, move);
    }
}

// The heap in use has what the allocator keeps for the next request of a size, a few hundred
// kilobytes at most; it is always 0 where a sanitizer looks after the heap.
void gamesAreLegalAndGiveTheirMemoryBack(Bytes &bytes) {
    const Request request = readRequest(bytes);
    const Situation start = readSituation(bytes);
    playGame(request, start);
    constexpr std::size_t mostGrowth = 512 << 10;
    static const std::size_t settled = mallinfo2().uordblks;
    if (mallinfo2().uordblks > settled + mostGrowth)
        reportFault("the games until now have lost memory", describe(start));
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {searchesOnBitsGoAsOverEngines, aSearchLeavesNothingBehind,
                                       gamesAreLegalAndGiveTheirMemoryBack};
    return all;
}
