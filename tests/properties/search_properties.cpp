// Whole searches and games: on bit sets they go as over engines alone, and nothing is left behind.

#include "tests/properties/harness.h"
#include "tests/support/enginerig.h"

#include <sstream>

namespace {

constexpr int requestBytes = 8;
constexpr int tableSizes[] = {1009, 1, 7, 101};
constexpr int noises[] = {1000, 400, 5, 5, 5, 5, 5, 5};
constexpr int times[] = {2, 5, 10, 20, 60, thinkStatistic::unlimitedSeconds};

// A rig that searches as some bytes request, by depth or by time, until BREAK.
struct RequestedRig : EngineRig {
    RequestedRig(const Situation &situation, Bytes request)
        : EngineRig(situation.rules, situation.position, request.oneOf(tableSizes)) {
        statistic.scoreNoise = request.oneOf(noises);
        const int byte = request.take();
        if (byte % 6 > 0)
            statistic.setReqDepth(byte % 6);
        else
            statistic.setReqTime(times[byte / 6 % 6]);
        statistic.giveAway = request.below(2) == 1;
        // Most searches are short: what matters happens in the first thousand nodes.
        const int end = request.take();
        host.onEvents = [this, rounds = end < 224 ? end % 5 : 20 * (end % 20)] {
            AbstractEngine::breakThinking |= host.eventRounds > rounds;
        };
        host.msPerReading = 100 * request.take();
        statistic.timeCredit = 1000 * (request.take() - 128);
        host.fixedSeed = static_cast<unsigned>(request.take());
    }
};

// All that a search says and leaves, but the tree.
std::string outcome(const EngineRig &rig, const LegalMove *move) {
    const thinkStatistic &s = rig.statistic;
    std::ostringstream out;
    out << "move " << (move == nullptr ? "none" : moveText(*move)) << ", score " << rig.score.value
        << " of depth " << rig.score.depth << "\nline\n"
        << rig.lineText() << "position " << textOf(rig.position) << "\nbudget " << rig.engine->depth
        << ", nodes " << s.nodes << ", moves " << s.movesGenerated << ", valued "
        << s.scoresCalculated << ", cut-offs " << s.cutoffs << ", sacrifices "
        << s.senselessSacrifices << ", hash hits " << s.hashHits << ", deepest level " << s.maxLevel
        << ", time credit " << s.timeCredit << ", rounds of events " << rig.host.eventRounds
        << ", beeps " << rig.host.beeps << ", stored " << rig.table.count << ", broken off "
        << AbstractEngine::breakThinking << '\n'
        << rig.host.boxes;
    for (const LegalMove &m : rig.engine->moveList)
        out << moveText(m) << ' ' << m.score << ", reduced by " << m.reduction << '\n';
    return out.str();
}

// Searches, and looks whether all is sound afterwards. The move; none where there is no legal one.
LegalMove *searchSoundly(EngineRig &rig, const std::string &where) {
    const std::string before = picture(rig.position);
    LegalMove *found = rig.engine->getBestMove(rig.score, rig.line);
    wantSame(before, picture(rig.position), where);
    wantSound(rig.table, where);
    bool listed = found == nullptr && rig.engine->moveList.isEmpty();
    for (const LegalMove &m : rig.engine->moveList)
        listed = listed || &m == found;
    want(listed, "the move is not one of the list", where);
    return found;
}

void searchesOnBitsGoAsOverEngines(Bytes &bytes) {
    const Bytes request = bytes.front(requestBytes);
    const Situation situation = readSituation(bytes);
    const std::string where = describe(situation);
    const auto found = [&](bool overEngines) {
        RequestedRig rig(situation, request);
        if (overEngines)
            rig.leaveOutBits();
        return outcome(rig, searchSoundly(rig, where));
    };
    wantSame(found(true), found(false), where);
}

// Whatever was searched before and however that ended: the next search goes as in a fresh rig.
void aSearchLeavesNothingBehind(Bytes &bytes) {
    const Bytes request = bytes.front(requestBytes);
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
        return outcome(rig, searchSoundly(rig, where));
    };
    wantSame(shortSearch(false), shortSearch(true), where);
}

void gamesEndSoundly(Bytes &bytes) {
    constexpr int mostPlies = 80;
    const Bytes request = bytes.front(requestBytes);
    Situation now = readSituation(bytes);
    RequestedRig rig(now, request);
    rig.statistic.setReqDepth(2);
    rig.host.onEvents = nullptr;
    for (int ply = 0; ply < mostPlies; ++ply) {
        LegalMove *const move = searchSoundly(rig, describe(now));
        if (move == nullptr)
            break;
        want(!rig.score.isNone(), "the score is none", describe(now));
        rig.engine->makeMove(&rig.position, move);
        now.position = rig.position;
    }
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {searchesOnBitsGoAsOverEngines, aSearchLeavesNothingBehind,
                                       gamesEndSoundly};
    return all;
}
