// The node procedure of the search, written once for every kind of node.
#ifndef SEARCH_NODEPROCEDURE_H
#define SEARCH_NODEPROCEDURE_H

#include "search/abstractengine.h"
#include "search/score.h"
#include "search/searchcontext.h"

#include <algorithm>
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
concept SearchNode = requires(Node node, const Node seen, Score &value, int bound, int i,
                              int points) {
    // What it shares with all nodes of the search.
    { seen.context() } -> std::same_as<SearchContext &>;
    // Plies below the root.
    { seen.level() } -> std::same_as<int>;
    // Depth budget in tenths of a ply, and the level where that has it valued statically.
    { seen.budget() } -> std::same_as<int>;
    { seen.horizon() } -> std::same_as<int>;

    // The best line of the node ends at its own position.
    node.endLine();
    // Lists the moves, or orders a list that is there already: the last is to be examined first.
    // False when the listing was given up, so that the list says nothing. From here on: their
    // number, and whether they are captures.
    { node.listMoves() } -> std::same_as<bool>;
    { seen.moves() } -> std::same_as<int>;
    { seen.mustCapture() } -> std::same_as<bool>;

    // The static value without an analysis, with the position's ply counter.
    { node.material() } -> std::same_as<Score>;
    // The same with an analysis and the mobility term; none when a man's run delays the valuation.
    { node.staticValue() } -> std::same_as<Score>;

    // Called once before moves are entered, with the depth budget of the children.
    node.prepareMoves(points);
    // Sets up the child of move i. Returns the move's score of an earlier visit, none without one.
    { node.enter(i) } -> std::same_as<int>;
    // Answers the child from the transposition table; arguments as AbstractEngine::canUseHT.
    { node.probe(bound, bound, value) } -> std::same_as<bool>;
    // Searches the child, whose own bounds these are.
    { node.search(bound, bound) } -> std::same_as<Score>;
    // Ends the visit to the child of move i, which gave the move this score.
    node.leave(i, points);

    // Move i is the best so far: the best line is that of its child.
    node.setBest(i);
    // The moves that were searched were enough to know that the node will not be reached.
    node.cutOff();
    // Adds the bonus for several good moves.
    seen.addChoiceBonus(value);
    // Writes the search record (value, alpha at entry, beta); stores it in the table if asked to.
    node.record(points, bound, bound, true);
};

// Negamax alpha-beta over one node. The bounds of a window are points, never a negated none.
template <SearchNode Node>
class NodeProcedure {
public:
    // Values the node from its side's point of view. Window: see AbstractEngine::getBestMove. Most
    // nodes end here: what searches moves is a function of its own, out of their way.
    [[gnu::always_inline]] static Score run(Node &node, int alpha, int beta) {
        node.endLine();
        if (AbstractEngine::breakThinking && node.level() > 0)
            return Score::brokenOff();
        if (!node.listMoves())
            return Score::brokenOff();
        node.context().countNode(node.level(), node.moves());
        if (node.level() >= levelLimit)
            return turned(node, node.material());
        if (node.moves() == 0)
            return turned(node, {Score::lost + node.level(), node.horizon()});
        // A position with a capture to make is always searched.
        if (!node.mustCapture()) {
            Score value(Score::none, 0);
            if (canScore(node.level(), node.horizon(), node.moves())) {
                value = node.staticValue();
                if (value.value != Score::none)
                    return turned(node, value);
            } else if (senselessSacrifice(node, alpha, beta, value)) {
                return value;
            }
        }
        return searchMoves(node, alpha, beta);
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
    static bool senselessSacrifice(Node &node, int alpha, int beta, Score &value) {
        if (!Score::isOrdinary(beta) || Score::aroundGameOver(alpha))
            return false;
        value = turned(node, node.material());
        const int balance = -Score::hiPart(value.value) + (AbstractEngine::isGambit ? 1 : 0);
        if (balance >= Score::hiPart(beta))
            return false;
        node.context().countSacrifice();
        return true;
    }

private:
    // The last move of the list first.
    [[gnu::noinline]] static Score searchMoves(Node &node, int alpha, int beta) {
        const int alpha0 = alpha;
        Score best(Score::none, node.horizon());
        node.prepareMoves(node.budget() + (node.mustCapture() ? captureExtension : 0));
        for (int i = node.moves() - 1; i >= 0; --i) {
            Score value = searchMove(node, i, alpha, beta);
            if (value.value == Score::none) {
                node.leave(i, Score::none);
                continue;
            }
            value.neg();
            node.leave(i, value.value);
            if (value > best) {
                best = value;
                node.setBest(i);
            }
            alpha = std::max(alpha, value.value);
            // Alpha is now a value, not none, and at least that of the move.
            if (i > 0 && -alpha <= beta)
                return cutOff(node, value, alpha0, beta);
        }
        if (node.level() + 1 >= node.horizon())
            node.addChoiceBonus(best);
        node.record(best.value, alpha0, beta, alpha0 != -beta);
        return best;
    }

    // The value of move i, in the child's view. A decided score of the last iteration stands;
    // otherwise the table or a search answers, the child getting the bounds swapped and not
    // negated.
    static Score searchMove(Node &node, int i, int alpha, int beta) {
        Score value(-node.enter(i), node.horizon());
        if (value.aroundGameOver())
            return value;
        if (!node.probe(beta, alpha, value))
            return node.search(beta, alpha);
        node.context().countHashHit();
        return value;
    }

    // A cut-off on the window alone leaves no record.
    static Score cutOff(Node &node, const Score &value, int alpha0, int beta) {
        node.context().countCutoff();
        node.cutOff();
        if (-value.value <= beta)
            node.record(value.value, alpha0, beta, true);
        return value;
    }

    // Who gives away wants what is bad for the side.
    static Score turned(Node &node, Score value) {
        if (node.context().giveAway())
            value.neg();
        return value;
    }
};

#endif
