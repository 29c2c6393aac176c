// The node procedure of the search, written once for every kind of node.
#ifndef SEARCH_NODEPROCEDURE_H
#define SEARCH_NODEPROCEDURE_H

#include "search/abstractengine.h"
#include "search/score.h"
#include "search/searchcontext.h"

#include <concepts>

// At this many plies below the root a node is valued statically whatever it holds: captures and
// single moves are searched on past the horizon, and there are positions where they never end.
inline constexpr int levelLimit = 100;

// The budget of a node where a capture must be made grows by this, in tenths of a ply.
inline constexpr int captureExtension = 7;

// A node: a position with its move list, set up for one visit by the search. Moves are named by
// their index. Values are points for the side to move and take no account of giving away. `bound`
// stands for a window's bounds, see AbstractEngine::getBestMove.
template <class Node>
concept SearchNode = requires(Node node, const Node seen, typename Node::Line line, Score value,
                              const Score bound, int level, int horizon, int i, int points) {
    // What it shares with all nodes of the search. (`Line` is the kind of best line it fills, see
    // BestLine.)
    { seen.context() } -> std::same_as<SearchContext &>;
    // Depth budget in tenths of a ply.
    { seen.budget() } -> std::same_as<int>;

    // Lists the moves, or orders a list that is there already: the last is to be examined first.
    // True when there is none. From here on: their number, and whether they are captures.
    { node.listMoves() } -> std::same_as<bool>;
    { seen.moves() } -> std::same_as<int>;
    { seen.mustCapture() } -> std::same_as<bool>;

    // The static value without an analysis, with the position's ply counter.
    { node.material() } -> std::same_as<Score>;
    // The same with an analysis and the mobility term; false when a man's run delays the valuation.
    { node.staticValue(level, horizon, value) } -> std::same_as<bool>;

    // Called once before moves are entered.
    node.prepareMoves();
    // Sets up the child of move i with a depth budget, before the move's reduction. Returns the
    // move's score of an earlier visit, none without one.
    { node.enter(i, points) } -> std::same_as<int>;
    // Answers the child from the transposition table; arguments as AbstractEngine::canUseHT.
    { node.probe(points, points, value) } -> std::same_as<bool>;
    // Searches the child as a node at `level`.
    node.search(level, value, bound, bound, line);
    // Ends the visit to the child of move i, which gave the move this score.
    node.leave(i, points);

    // Records move i as the best.
    node.updateLine(line, i, level);
    // Adds the bonus for several good moves.
    seen.addChoiceBonus(value);
    // Writes the search record (value, alpha at entry, beta); stores it in the table if asked to.
    node.record(bound, points, bound, true);
};

// Negamax alpha-beta over one node.
template <SearchNode Node>
class NodeProcedure {
    using Line = typename Node::Line;

public:
    // In place of the index of a best move: there is none, and the moves were not even searched.
    static constexpr int noBest = -1;
    static constexpr int unsearched = -2;

    NodeProcedure(Node &node, int level)
        : node_(node), level_(level), horizon_(node.budget() / 10) {}

    // Values the node into `result` from its side's point of view. Returns the index of the best
    // move; `noBest` after a cut-off or when no move has a value; `unsearched` when the node was
    // valued without searching its moves, or broken off. Window: see AbstractEngine::getBestMove.
    int run(Score &result, Score alpha, Score beta, Line &line) {
        line.setTop(level_);
        alpha.reviveNone();
        beta.reviveNone();
        if (level_ > 0 && AbstractEngine::breakThinking) {
            breakOff(level_, result, line);
            return unsearched;
        }
        const bool noMoves = node_.listMoves();
        if (context().listingWatch().isGivenUp()) { // a part of the list says nothing
            breakOff(level_, result, line);
            return unsearched;
        }
        context().countNode(level_, node_.moves());
        result.setNone(horizon_);
        if (valuedUnsearched(noMoves, result, alpha, beta))
            return unsearched;
        const int extension = node_.mustCapture() ? captureExtension : 0;
        return searchMoves(node_.budget() + extension, result, alpha, beta, line);
    }

    // What a node answers once the search is broken off.
    static void breakOff(int level, Score &result, Line &line) {
        line.setTop(level);
        result.setNone(-1);
    }

    // The rules of static valuation, shared with AbstractEngine's operations of these names.
    static bool canScore(int level, int horizon, int moves) {
        constexpr int surelyBeyond = 3;
        if (level < horizon || moves <= 1)
            return false;
        return level > horizon + surelyBeyond || moves >= 3;
    }

    // Seen from the parent and counted in thousands, the material balance is already below what the
    // parent is sure to get elsewhere. With few pieces left one unit more may be given.
    bool senselessSacrifice(const Score &alpha, const Score &beta, Score &value) {
        if (beta.isNone() || beta.aroundGameOver() || alpha.aroundGameOver())
            return false;
        value = material();
        const int balance = -Score::hiPart(value.value) + (AbstractEngine::isGambit ? 1 : 0);
        if (balance >= Score::hiPart(beta.value))
            return false;
        context().countSacrifice();
        return true;
    }

private:
    SearchContext &context() const { return node_.context(); }

    // Nodes that end here: the level limit, no move, a senseless sacrifice, a quiet position at the
    // horizon. A position with a capture to make is always searched.
    bool valuedUnsearched(bool noMoves, Score &result, const Score &alpha, const Score &beta) {
        if (level_ >= levelLimit) {
            result = material();
            return true;
        }
        if (noMoves) {
            result = turned({Score::lost + level_, horizon_});
            return true;
        }
        if (node_.mustCapture())
            return false;
        Score value = result;
        const bool done = canScore(level_, horizon_, node_.moves())
                              ? staticValue(value)
                              : senselessSacrifice(alpha, beta, value);
        if (done)
            result = value;
        return done;
    }

    // The last move of the list first.
    int searchMoves(int childBudget, Score &result, Score alpha, const Score &beta, Line &line) {
        const int alpha0 = alpha.value;
        int best = noBest;
        Line childLine;
        node_.prepareMoves();
        for (int i = node_.moves() - 1; i >= 0; --i) {
            Score value(Score::none, horizon_);
            searchMove(i, childBudget, value, alpha, beta, childLine);
            if (value.isNone())
                continue;
            if (value > result) {
                result = value;
                best = i;
                line.copyFrom(&childLine, level_ + 1);
                node_.updateLine(line, i, level_);
            }
            if (value > alpha)
                alpha = value;
            if (i > 0 && cutsOff(value, alpha, beta)) {
                finishCutOff(value, result, alpha0, beta);
                return noBest;
            }
        }
        if (level_ + 1 >= horizon_)
            node_.addChoiceBonus(result);
        node_.record(result, alpha0, beta, alpha0 != -beta.value);
        return best;
    }

    // A decided score of the last iteration stands; otherwise the table or a search answers, the
    // child getting the bounds swapped and not negated. `value` ends up in this node's view.
    void searchMove(int i, int childBudget, Score &value, const Score &alpha, const Score &beta,
                    Line &childLine) {
        const Score earlier(-node_.enter(i, childBudget), horizon_);
        if (earlier.aroundGameOver())
            value = earlier;
        else if (node_.probe(beta.value, alpha.value, value))
            context().countHashHit();
        else
            node_.search(level_ + 1, value, beta, alpha, childLine);
        if (value.isNone())
            value.value = Score::none;
        else
            value.neg();
        node_.leave(i, value.value);
    }

    static bool cutsOff(const Score &value, const Score &alpha, const Score &beta) {
        return -value.value <= beta.value || (!alpha.isNone() && -alpha.value <= beta.value);
    }

    // A cut-off on the window alone leaves no record.
    void finishCutOff(const Score &value, Score &result, int alpha0, const Score &beta) {
        context().countCutoff();
        result = value;
        if (-value.value <= beta.value)
            node_.record(result, alpha0, beta, true);
    }

    Score material() { return turned(node_.material()); }

    bool staticValue(Score &value) {
        if (!node_.staticValue(level_, horizon_, value))
            return false;
        value = turned(value);
        return true;
    }

    // Who gives away wants what is bad for the side.
    Score turned(Score value) const {
        if (context().giveAway())
            value.neg();
        return value;
    }

    Node &node_;
    const int level_;
    const int horizon_;
};

#endif
