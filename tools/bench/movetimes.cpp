#include "tools/bench/movetimes.h"

#include "base/host.h"
#include "eval/squaresvalue.h"
#include "rules/boardsizes.h"
#include "rules/ruleset.h"
#include "search/bestline.h"
#include "search/hashtable.h"
#include "tools/bench/benchrun.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <random>

namespace {

// Each game begins with up to so many random moves, and is cut after so many measured ones, so that
// many kinds of positions come up.
constexpr int mostOpeningPlies = 8;
constexpr int movesOfAGame = 5;

// What the games share. A clearly best move is not held back.
class SelfPlay : public Host {
public:
    explicit SelfPlay(const Level &level) : previous_(setHost(this)) {
        level.request(statistic_);
        AbstractEngine::setSQV(&values_);
        AbstractEngine::setHashTable(&table_);
    }
    ~SelfPlay() override {
        AbstractEngine::setSQV(nullptr);
        AbstractEngine::setHashTable(nullptr);
        setHost(previous_);
    }
    SelfPlay(const SelfPlay &) = delete;
    SelfPlay &operator=(const SelfPlay &) = delete;

    void pause(int) override {}

    // Sizes change from game to game, then rules.
    void play(unsigned game, int mostMoves) {
        const RuleRow &rules = ruleRows[game / std::size(boardSizes) % std::size(ruleRows)];
        const int squares = boardSizes[game % std::size(boardSizes)].squares;
        XY::B_SIZE = squares;
        statistic_.newGame();
        board position(squares);
        const auto engine = rules.newEngine(&position, 1, &statistic_, squares);
        std::mt19937 random(game);
        const int opening = static_cast<int>(random() % (mostOpeningPlies + 1));
        const int last = std::min(used.count() + movesOfAGame, mostMoves);
        while (used.count() < last && !engine->FillMoveList()) {
            const auto moves = static_cast<unsigned>(engine->moveList.count());
            LegalMove *move = position.plyCount < opening
                                  ? engine->getLegalMove(static_cast<int>(random() % moves))
                                  : think(*engine);
            engine->makeMove(&position, move);
        }
    }

    Distribution used;
    Distribution shares;

private:
    LegalMove *think(AbstractEngine &engine) {
        const auto budget = static_cast<double>(statistic_.budgetMs());
        Score score(Score::none, -1);
        BestLine line;
        LegalMove *move = engine.getBestMove(score, line);
        if (engine.moveList.count() > 1) {
            used.add(statistic_.elapsedMs);
            shares.add(100 * statistic_.elapsedMs / budget);
        }
        return move;
    }

    thinkStatistic statistic_;
    SquaresValue values_{defaultSquares, false};
    hashTable table_{benchHashSlots};
    Host *previous_;
};

void printRow(QTextStream &out, const char *name, const Distribution &figures) {
    out << QString::asprintf("%-22s%8.0f%8.0f%8.0f%8.0f%8.0f\n", name, figures.percentile(50),
                             figures.mean(), figures.percentile(90), figures.percentile(95),
                             figures.percentile(100));
}

} // namespace

double Distribution::mean() const {
    return std::accumulate(figures_.begin(), figures_.end(), 0.0) /
           static_cast<double>(figures_.size());
}

double Distribution::percentile(int percent) const {
    std::vector<double> sorted = figures_;
    std::sort(sorted.begin(), sorted.end());
    const double rank = std::ceil(percent / 100.0 * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(rank) - 1];
}

void printMoveTimes(QTextStream &out, int moves, const Level &level) {
    SelfPlay games(level);
    for (unsigned game = 0; games.used.count() < moves; ++game)
        games.play(game, moves);
    out << moves << " moves at " << level.name
        << "\n                        median    mean    90 %    95 %    most\n";
    printRow(out, "used, ms", games.used);
    printRow(out, "share of the budget, %", games.shares);
}
