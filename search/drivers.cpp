// The drivers of the search: iterative deepening, one ply a time, within a time or to a depth.

#include "base/host.h"
#include "eval/squaresvalue.h"
#include "rules/capturelimit.h"
#include "search/abstractengine.h"
#include "search/bestline.h"
#include "search/hashtable.h"
#include "search/nodeprocedure.h"
#include "search/thinkstatistic.h"

#include <cstdlib>
#include <vector>

namespace {

constexpr int ply = 10;

// The fixed-time driver's first iteration goes one ply beyond this.
constexpr int fixedTimeStart = 2 * ply;

// How long a clearly best move is held back, in microseconds.
constexpr int favouritePause = 100000;

const Score unbounded(Score::none, -1);

void announceFavourite() {
    host().beep();
    host().processEvents();
    host().pause(favouritePause);
}

} // namespace

// The root list as an iteration left it: later iterations change the order and the scores of its
// moves, which stay where they are in memory.
class AbstractEngine::SavedRoot {
public:
    void save(QValueList<LegalMove> &list, LegalMove *chosen) {
        chosen_ = chosen;
        entries_.clear();
        for (auto move = list.begin(); move != list.end(); ++move)
            entries_.push_back({move, move->score, move->reduction});
    }
    void forget() { chosen_ = nullptr; }
    bool isEmpty() const { return chosen_ == nullptr; }
    // Brings order and scores back. Returns the chosen move.
    LegalMove *restore(QValueList<LegalMove> &list) const {
        QValueList<LegalMove> restored;
        for (const Entry &entry : entries_) {
            entry.move->score = entry.score;
            entry.move->reduction = entry.reduction;
            restored.take(list, entry.move);
        }
        list.swap(restored);
        return chosen_;
    }

private:
    struct Entry {
        QValueList<LegalMove>::iterator move;
        int score;
        int reduction;
    };

    std::vector<Entry> entries_;
    LegalMove *chosen_ = nullptr;
};

LegalMove *AbstractEngine::getBestMove(Score &score, BestLine &line) {
    const CaptureLimitScope report;
    line.reset();
    pHT->clear();
    std::srand(host().seed());
    isGambit = board->isGambit();
    pSQV->reFill(size, isGambit);
    const bool timed = statistic->getReqTime() > 0;
    statistic->clear();
    LegalMove *best = timed ? getBestMoveFixTime(score, line) : getBestMoveFixDepth(score, line);
    statistic->stop(moveList.count());
    board->hashHorizon = score.depth;
    board->hashScore = score.value;
    host().beep();
    return best;
}

// Lists the root's moves and counts the root as a node; false when the game is over.
bool AbstractEngine::startDriver(Score &score) {
    const bool noMoves = FillMoveList();
    thinkStatistic::count(statistic->nodes, 1);
    thinkStatistic::count(statistic->movesGenerated, moveList.count());
    score.set(Score::lost, noMoves ? 0 : -1);
    breakThinking = false;
    return !noMoves;
}

// One ply deeper than before. False when it was broken off or named no move; then `score` is what
// it was.
bool AbstractEngine::runIteration(Score &score, LegalMove *&best, BestLine &line) {
    Score value(Score::lost, -1);
    depth += ply;
    randTestSort();
    best = getBestMove(0, value, unbounded, unbounded, line, false);
    if (breakThinking || best == nullptr)
        return false;
    score = value;
    return true;
}

// Deeper iterations would find nothing more.
bool AbstractEngine::atLevelLimit() const {
    return depth / ply >= levelLimit;
}

// The move of the last completed iteration; without one, or when that named none (`last` is null
// and nothing broke it off), the first of the list.
LegalMove *AbstractEngine::finishDriver(SavedRoot &saved, const LegalMove *last) {
    if (last == nullptr && !breakThinking)
        saved.forget();
    if (saved.isEmpty())
        return &moveList.first();
    breakThinking = false;
    return saved.restore(moveList);
}

LegalMove *AbstractEngine::getBestMoveFixTime(Score &score, BestLine &line) {
    if (!startDriver(score))
        return nullptr;
    depth = fixedTimeStart;
    if (moveList.count() == 1) {
        getBestMove(0, score, unbounded, unbounded, line, false);
        return &moveList.first();
    }
    SavedRoot saved;
    LegalMove *best = nullptr;
    while (runIteration(score, best, line)) {
        saved.save(moveList, best);
        if (!statistic->canTry(moveList.count()) || score.aroundGameOver() || atLevelLimit())
            break;
        if (FavouriteMove(&moveList)) {
            announceFavourite();
            break;
        }
    }
    return finishDriver(saved, best);
}

LegalMove *AbstractEngine::getBestMoveFixDepth(Score &score, BestLine &line) {
    if (!startDriver(score))
        return nullptr;
    depth = 0;
    SavedRoot saved;
    LegalMove *best = nullptr;
    while (runIteration(score, best, line)) {
        saved.save(moveList, best);
        if (score.aroundGameOver() || depth / ply >= statistic->getReqDepth() || atLevelLimit())
            break;
    }
    return finishDriver(saved, best);
}
